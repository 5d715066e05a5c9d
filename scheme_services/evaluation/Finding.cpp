#include "scheme_services/evaluation/Finding.h"

#include "platform/SystemLibrary/QCommon.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr std::array<const char*, Finding::CodeCount> s_codes{
    "never-armed",       "no-reaction",    "unknown-source",   "unknown-output",      "unknown-door",
    "unknown-video",     "bad-duration",   "too-many-regions", "overlapping-regions", "touching-regions",
    "impossible-region", "unwatched-door", "offline-device"};

} // namespace

QString Finding::CodeName(FindingCode code)
{
    return QLatin1String(s_codes.at(static_cast<std::size_t>(code)));
}

std::optional<FindingCode> Finding::CodeOf(const QString& strName)
{
    const auto* const found = std::find_if(s_codes.begin(), s_codes.end(), [&strName](const char* szCode) {
        return strName == QLatin1String(szCode);
    });
    return found == s_codes.end()
               ? std::nullopt
               : std::optional(static_cast<FindingCode>(std::distance(s_codes.begin(), found)));
}

FindingSeverity Finding::SeverityOf(FindingCode code)
{
    switch (code) {
    case FindingCode::UnwatchedDoor:
        return FindingSeverity::Warning;
    case FindingCode::OfflineDevice:
        return FindingSeverity::Information;
    default:
        return FindingSeverity::Error;
    }
}

QString Finding::SeverityName(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Error:
        return tr("Error");
    case FindingSeverity::Warning:
        return tr("Warning");
    case FindingSeverity::Information:
        break;
    }
    return tr("Information");
}

QString Finding::Place(const SiteIndex& site) const
{
    QString strPlace = site.NameOfSource(key.strEventSource);
    if (key.AlarmType >= 0)
        strPlace = tr("%1, %2", "source, event").arg(strPlace, QCommon::GetAlarmNameByType(key.AlarmType));
    if (iDay >= 0) {
        // The locale counts Monday as 1 and Sunday as 7.
        const QString strDay = QLocale().standaloneDayName(iDay == 0 ? 7 : iDay);
        strPlace = tr("%1, %2", "place, day of the week").arg(strPlace, strDay);
    }
    return strPlace;
}

QString Finding::Text(const SiteIndex& site) const
{
    switch (code) {
    case FindingCode::NeverArmed:
        return tr("The scheme is switched on but never armed.");
    case FindingCode::NoReaction:
        return tr("The scheme is armed but does nothing.");
    case FindingCode::UnknownSource:
        return tr("The site has no such event source.");
    case FindingCode::UnknownOutput:
        return tr("The linked output %1 is not part of the site.").arg(strLink);
    case FindingCode::UnknownDoor:
        return tr("The linked door %1 is not part of the site.").arg(strLink);
    case FindingCode::UnknownVideo:
        return tr("The linked video channel %1 is not part of the site.").arg(strLink);
    case FindingCode::BadDuration:
        return tr("The output %1 stays on for %2 s, which is not within 5 to 43200 s.")
            .arg(site.NameOfOutput(strLink), QString::number(iValue));
    case FindingCode::TooManyRegions:
        return tr("The day has %1 time regions; six is the most.").arg(iValue);
    case FindingCode::OverlappingRegions:
        return tr("Time regions of the day overlap.");
    case FindingCode::TouchingRegions:
        return tr("Time regions of the day touch each other.");
    case FindingCode::ImpossibleRegion:
        return tr("A time region of the day ends before it begins or lies outside the day.");
    case FindingCode::UnwatchedDoor:
        return tr("No scheme of this door is switched on.");
    case FindingCode::OfflineDevice:
        break;
    }
    return tr("The scheme waits for events of a device that is offline.");
}

QString Finding::Advice() const
{
    switch (code) {
    case FindingCode::NeverArmed:
        return tr("Paint the hours in which it is to be armed, or switch it off.");
    case FindingCode::NoReaction:
        return tr("Choose a sound, a mail or an output, or switch the scheme off.");
    case FindingCode::UnknownSource:
        return tr("Delete the scheme, or bring the device back into the site.");
    case FindingCode::UnknownOutput:
    case FindingCode::UnknownDoor:
    case FindingCode::UnknownVideo:
        return tr("Remove the link, or bring the device back into the site.");
    case FindingCode::BadDuration:
        return tr("Set a time from 5 to 43200 s.");
    case FindingCode::TooManyRegions:
    case FindingCode::OverlappingRegions:
    case FindingCode::TouchingRegions:
        return tr("Open the day's details and confirm them; regions that belong together are joined.");
    case FindingCode::ImpossibleRegion:
        return tr("Set the day's hours anew.");
    case FindingCode::UnwatchedDoor:
        return tr("Switch on a scheme for the door if its events matter.");
    case FindingCode::OfflineDevice:
        break;
    }
    return tr("Look after the device; until it answers, nothing is reported.");
}
