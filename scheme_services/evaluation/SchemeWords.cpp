#include "scheme_services/evaluation/SchemeWords.h"

#include "platform/SystemLibrary/QCommon.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QLocale>

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

QString SchemeWords::Name(const AlarmSourceKey& key, const SiteIndex& site)
{
    return tr("%1, %2", "source, event")
        .arg(site.NameOfSource(key.strEventSource), QCommon::GetAlarmNameByType(key.AlarmType));
}

QStringList SchemeWords::Reactions(const SchemeReactions& reactions, const SiteIndex& site)
{
    QStringList lines;
    if (reactions.bSound)
        lines += tr("plays the alarm sound");
    if (reactions.bTwinkle)
        lines += tr("lets the icon twinkle on the e-map");
    if (reactions.bMail)
        lines += tr("sends a mail");
    for (const AlarmLinkAlarmOut& output : reactions.outputs)
        lines += Output(output, site);
    for (const AlarmLinkDoor& door : reactions.doors)
        lines += Door(door, site);
    for (auto video = reactions.videos.begin(); video != reactions.videos.end(); ++video)
        lines += Video(video.key(), *video, site);
    return lines;
}

QString SchemeWords::Day(const AlarmDefenceTime_t& regions)
{
    if (regions.isEmpty())
        return tr("not armed");
    QStringList texts;
    for (const AlarmTimeRegion& region : regions)
        texts += Clock(region.Begin) + QLatin1Char('-') + Clock(region.End);
    return texts.join(QStringLiteral(", "));
}

QString SchemeWords::Output(const AlarmLinkAlarmOut& link, const SiteIndex& site)
{
    const QString text = link.bAutoOpen ? tr("switches on %1 for %2 s") : tr("is linked to %1 (%2 s)");
    return text.arg(site.NameOfOutput(link.strLinkAlarmID), QString::number(link.Time));
}

QString SchemeWords::Door(const AlarmLinkDoor& link, const SiteIndex& site)
{
    return (link.bAlwaysOpen ? tr("keeps %1 open") : tr("opens %1")).arg(site.NameOfDoor(link.strDoorID));
}

QString SchemeWords::Video(int32_t iWindow, const AlarmLinkVideo& link, const SiteIndex& site)
{
    const QString strWhat = !link.bRecord ? tr("shows %1 in window %2 for %3 s")
                            : link.bOpen  ? tr("shows and records %1 in window %2 for %3 s")
                                          : tr("records %1 of window %2 for %3 s");
    return strWhat.arg(site.NameOfSource(link.strLinkDevID), QString::number(iWindow),
                       QString::number(link.Time));
}

void SchemeWords::AddListDifference(QStringList& lines, const QStringList& before, const QStringList& after)
{
    for (const QString& line : after) {
        if (!before.contains(line))
            lines += tr("now %1").arg(line);
    }
    for (const QString& line : before) {
        if (!after.contains(line))
            lines += tr("no longer %1").arg(line);
    }
}

QStringList SchemeWords::Differences(const AlarmInfo& before, const AlarmInfo& after, const SiteIndex& site)
{
    QStringList lines;
    if (before.bOpen != after.bOpen)
        lines += after.bOpen ? tr("switched on") : tr("switched off");
    const auto all = [&site](const AlarmInfo& info) {
        SchemeReactions reactions;
        reactions.bSound = info.bOpenSound;
        reactions.bTwinkle = info.bEmapTwinkle;
        reactions.bMail = info.bSendEmail;
        reactions.outputs = info.listAlarmOut;
        reactions.doors = info.listDoor;
        reactions.videos = info.videoSplit.videoLinks;
        return Reactions(reactions, site);
    };
    AddListDifference(lines, all(before), all(after));
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        if (before.defenceTime[day] == after.defenceTime[day])
            continue;
        // Qt counts Monday as 1 and Sunday as 7.
        lines += tr("%1: %2, was %3", "day, armed time, armed time before")
                     .arg(QLocale().dayName(day == 0 ? AlarmWeek::DayCount : day),
                          Day(after.defenceTime[day]), Day(before.defenceTime[day]));
    }
    AlarmVideoSplit layout = after.videoSplit;
    layout.videoLinks = before.videoSplit.videoLinks;
    if (!(layout == before.videoSplit))
        lines += tr("another layout of the video wall");
    return lines;
}
