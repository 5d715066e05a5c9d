#include "scheme_editor/edits/SchemeActionText.h"

#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

int64_t Seconds(const AlarmDefenceTime_t& regions)
{
    int64_t iSeconds = 0;
    for (const AlarmTimeRegion& region : regions)
        iSeconds += int64_t{region.End} - region.Begin;
    return iSeconds;
}

QSet<QString> Ids(const QList<AlarmLinkAlarmOut>& links)
{
    QSet<QString> ids;
    for (const AlarmLinkAlarmOut& link : links)
        ids.insert(link.strLinkAlarmID);
    return ids;
}

} // namespace

QString SchemeActionText::OfEdit(const AlarmInfo& before, const AlarmInfo& after, Way way)
{
    const bool bOpen = before.bOpen != after.bOpen;
    const bool bSound = before.bOpenSound != after.bOpenSound;
    const bool bMail = before.bSendEmail != after.bSendEmail;
    const bool bOutputs = !(before.listAlarmOut == after.listAlarmOut);
    const bool bWeek = before.defenceTime != after.defenceTime;
    if (int{bOpen} + int{bSound} + int{bMail} + int{bOutputs} + int{bWeek} != 1)
        return tr("Change Scheme");
    if (bOpen)
        return after.bOpen ? tr("Switch Scheme On") : tr("Switch Scheme Off");
    if (bSound)
        return after.bOpenSound ? tr("Switch Alarm Sound On") : tr("Switch Alarm Sound Off");
    if (bMail)
        return after.bSendEmail ? tr("Switch Mail On") : tr("Switch Mail Off");
    return bOutputs ? OfOutputs(before.listAlarmOut, after.listAlarmOut)
                    : OfWeek(before.defenceTime, after.defenceTime, way);
}

QString SchemeActionText::OfCopy(int iSources)
{
    return tr("Copy to %Ln Source(s)", nullptr, iSources);
}

QString SchemeActionText::OfDraft()
{
    return tr("Restore Unsaved Edits");
}

QString SchemeActionText::OfOutputs(const QList<AlarmLinkAlarmOut>& before,
                                    const QList<AlarmLinkAlarmOut>& after)
{
    const QSet<QString> had = Ids(before);
    const QSet<QString> has = Ids(after);
    const int iAdded = (QSet<QString>(has) - had).size();
    const int iRemoved = (QSet<QString>(had) - has).size();
    if (iAdded > 0 && iRemoved == 0)
        return tr("Link %Ln Output(s)", nullptr, iAdded);
    if (iRemoved > 0 && iAdded == 0)
        return tr("Unlink %Ln Output(s)", nullptr, iRemoved);
    return iAdded > 0 ? tr("Change Outputs") : tr("Change Output Settings");
}

QString SchemeActionText::OfWeek(const AlarmWeek& before, const AlarmWeek& after, Way way)
{
    QVector<int> changed;
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        if (before[day] != after[day])
            changed.append(day);
    }
    const auto all = [&changed](auto holds) { return std::all_of(changed.cbegin(), changed.cend(), holds); };
    const int iDays = changed.size();
    const QString strDay = DayName(changed.first());
    if (way == Way::InDialog) {
        // A day that stayed as it was and that the others are like now is the one that was copied. One day
        // alone may have been typed like another.
        for (int day = 0; iDays > 1 && day < AlarmWeek::DayCount; ++day) {
            if (!changed.contains(day) && all([&](int other) { return after[other] == after[day]; }))
                return tr("Copy %1 to %n Day(s)", nullptr, iDays).arg(DayName(day));
        }
        return iDays == 1 ? tr("Set %1").arg(strDay) : tr("Set %n Day(s)", nullptr, iDays);
    }
    if (all([&](int day) { return Seconds(after[day]) > Seconds(before[day]); }))
        return iDays == 1 ? tr("Paint %1").arg(strDay) : tr("Paint %n Day(s)", nullptr, iDays);
    if (all([&](int day) { return Seconds(after[day]) < Seconds(before[day]); }))
        return iDays == 1 ? tr("Erase %1").arg(strDay) : tr("Erase %n Day(s)", nullptr, iDays);
    return iDays == 1 ? tr("Change %1").arg(strDay) : tr("Change %n Day(s)", nullptr, iDays);
}

QString SchemeActionText::DayName(int iDay)
{
    switch (iDay) {
    case 0:
        return tr("Sunday");
    case 1:
        return tr("Monday");
    case 2:
        return tr("Tuesday");
    case 3:
        return tr("Wednesday");
    case 4:
        return tr("Thursday");
    case 5:
        return tr("Friday");
    default:
        return tr("Saturday");
    }
}
