#include "tools/SchemeText.h"

#include "platform/SystemLibrary/QCommon.h"

#include <QJsonArray>

namespace {

QString Clock(int32_t iSeconds)
{
    constexpr int32_t lastSecond = 86399;
    // The end of the day is written as people do.
    if (iSeconds == lastSecond)
        return QStringLiteral("24:00");
    const auto two = [](int32_t iNumber) {
        return QStringLiteral("%1").arg(iNumber, 2, 10, QLatin1Char('0'));
    };
    const QString strMinutes = two(iSeconds / 3600) + QLatin1Char(':') + two(iSeconds / 60 % 60);
    return iSeconds % 60 == 0 ? strMinutes : strMinutes + QLatin1Char(':') + two(iSeconds % 60);
}

} // namespace

QString SchemeText::Name(const AlarmSourceKey& key, const SiteIndex& site)
{
    return tr("%1, %2", "source, event")
        .arg(site.NameOfSource(key.strEventSource), QCommon::GetAlarmNameByType(key.AlarmType));
}

QStringList SchemeText::Reactions(const SchemeReactions& reactions, const SiteIndex& site)
{
    QStringList lines;
    if (reactions.bSound)
        lines += tr("plays the alarm sound");
    if (reactions.bTwinkle)
        lines += tr("lets the icon twinkle on the e-map");
    if (reactions.bMail)
        lines += tr("sends a mail");
    for (const AlarmLinkAlarmOut& output : reactions.outputs) {
        lines += tr("switches on %1 for %2 s")
                     .arg(site.NameOfOutput(output.strLinkAlarmID), QString::number(output.Time));
    }
    for (const AlarmLinkDoor& door : reactions.doors) {
        lines +=
            (door.bAlwaysOpen ? tr("keeps %1 open") : tr("opens %1")).arg(site.NameOfDoor(door.strDoorID));
    }
    for (auto video = reactions.videos.begin(); video != reactions.videos.end(); ++video) {
        const QString strWhat = !video->bRecord ? tr("shows %1 in window %2 for %3 s")
                                : video->bOpen  ? tr("shows and records %1 in window %2 for %3 s")
                                                : tr("records %1 of window %2 for %3 s");
        lines += strWhat.arg(site.NameOfSource(video->strLinkDevID), QString::number(video.key()),
                             QString::number(video->Time));
    }
    return lines;
}

QString SchemeText::Day(const AlarmDefenceTime_t& regions)
{
    if (regions.isEmpty())
        return tr("not armed");
    QStringList texts;
    for (const AlarmTimeRegion& region : regions)
        texts += Clock(region.Begin) + QLatin1Char('-') + Clock(region.End);
    return texts.join(QStringLiteral(", "));
}

QJsonObject SchemeText::KeyJson(const AlarmSourceKey& key, const SiteIndex& site)
{
    return {{QStringLiteral("source"), key.strEventSource},
            {QStringLiteral("sourceName"), site.NameOfSource(key.strEventSource)},
            {QStringLiteral("event"), key.AlarmType},
            {QStringLiteral("eventName"), QCommon::GetAlarmNameByType(key.AlarmType)}};
}

QJsonObject SchemeText::ReactionsJson(const SchemeReactions& reactions, const SiteIndex& site)
{
    QJsonArray outputs;
    for (const AlarmLinkAlarmOut& output : reactions.outputs) {
        outputs += QJsonObject{{QStringLiteral("output"), output.strLinkAlarmID},
                               {QStringLiteral("name"), site.NameOfOutput(output.strLinkAlarmID)},
                               {QStringLiteral("seconds"), output.Time}};
    }
    QJsonArray doors;
    for (const AlarmLinkDoor& door : reactions.doors) {
        doors += QJsonObject{{QStringLiteral("door"), door.strDoorID},
                             {QStringLiteral("name"), site.NameOfDoor(door.strDoorID)},
                             {QStringLiteral("keptOpen"), door.bAlwaysOpen}};
    }
    QJsonArray videos;
    for (auto video = reactions.videos.begin(); video != reactions.videos.end(); ++video) {
        videos += QJsonObject{{QStringLiteral("video"), video->strLinkDevID},
                              {QStringLiteral("name"), site.NameOfSource(video->strLinkDevID)},
                              {QStringLiteral("window"), video.key()},
                              {QStringLiteral("shown"), video->bOpen},
                              {QStringLiteral("recorded"), video->bRecord},
                              {QStringLiteral("preset"), video->Preposition},
                              {QStringLiteral("stream"), video->StreamType},
                              {QStringLiteral("seconds"), video->Time}};
    }
    return {{QStringLiteral("sound"), reactions.bSound},
            {QStringLiteral("twinkle"), reactions.bTwinkle},
            {QStringLiteral("mail"), reactions.bMail},
            {QStringLiteral("outputs"), outputs},
            {QStringLiteral("doors"), doors},
            {QStringLiteral("videos"), videos}};
}
