#include "tests/scheme_editor/SchemeText.h"

namespace {

QString KeyText(const AlarmSourceKey& key)
{
    return key.strEventSource + QLatin1Char('#') + QString::number(key.AlarmType);
}

QString DayText(const AlarmDefenceTime_t& day)
{
    QStringList regions;
    for (const AlarmTimeRegion& region : day)
        regions.append(QStringLiteral("%1-%2").arg(region.Begin).arg(region.End));
    return regions.join(QLatin1Char('+'));
}

} // namespace

QString SchemeText::Line(const AlarmSourceKey& key, const AlarmInfo& info)
{
    const AlarmInfo fresh;
    QStringList parts{KeyText(key)};
    if (info.bOpen)
        parts.append(QStringLiteral("on"));
    if (info.bOpenSound)
        parts.append(QStringLiteral("sound"));
    if (info.bEmapTwinkle)
        parts.append(QStringLiteral("twinkle"));
    if (info.bSendEmail)
        parts.append(QStringLiteral("mail"));
    if (!(info.videoSplit == fresh.videoSplit)) {
        parts.append(QStringLiteral("video %1x%2 of %3, %4 links")
                         .arg(info.videoSplit.SplitRow)
                         .arg(info.videoSplit.SplitCloum)
                         .arg(info.videoSplit.SplitCount)
                         .arg(info.videoSplit.videoLinks.size()));
    }
    for (const AlarmLinkAlarmOut& link : info.listAlarmOut) {
        parts.append(
            QStringLiteral("out %1 %2 %3")
                .arg(link.strLinkAlarmID, link.bAutoOpen ? QStringLiteral("auto") : QStringLiteral("manual"))
                .arg(link.Time));
    }
    for (const AlarmLinkDoor& door : info.listDoor)
        parts.append(
            QStringLiteral("door %1 %2").arg(door.strDoorID, QString::number(door.bAlwaysOpen ? 1 : 0)));
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        if (info.defenceTime[day] != fresh.defenceTime[day])
            parts.append(QStringLiteral("day%1 [%2]").arg(day).arg(DayText(info.defenceTime[day])));
    }
    return parts.join(QLatin1Char(' '));
}

QStringList SchemeText::Edited(const AlarmInfoMap& schemes)
{
    QStringList lines;
    for (auto it = schemes.cbegin(); it != schemes.cend(); ++it) {
        if (it.value() != AlarmInfo())
            lines.append(Line(it.key(), it.value()));
    }
    return lines;
}

QStringList SchemeText::Keys(const AlarmInfoMap& schemes)
{
    QStringList keys;
    for (auto it = schemes.cbegin(); it != schemes.cend(); ++it)
        keys.append(KeyText(it.key()));
    return keys;
}

QStringList SchemeText::KeysOfDevice(const AlarmInfoMap& schemes, int64_t iDeviceId)
{
    const QString prefix = QString::number(iDeviceId) + QLatin1Char('$');
    QStringList keys;
    for (auto it = schemes.cbegin(); it != schemes.cend(); ++it) {
        if (it.key().strEventSource.startsWith(prefix))
            keys.append(KeyText(it.key()));
    }
    return keys;
}
