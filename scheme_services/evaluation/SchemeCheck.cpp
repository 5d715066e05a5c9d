#include "scheme_services/evaluation/SchemeCheck.h"

#include "scheme_services/evaluation/ArmedWeek.h"
#include "scheme_services/evaluation/SchemeReactions.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QSet>

#include <algorithm>

using VantaLogic::ChannelInfo;
using VantaLogic::DeviceInfo;

namespace {

/// Schemes between two reports of the progress.
constexpr int ProgressStep = 256;

class Checker
{
public:
    explicit Checker(const SiteIndex& site)
        : m_site(site)
    {
    }

    void Scheme(const AlarmSourceKey& key, const AlarmInfo& info)
    {
        m_pKey = &key;
        if (info.bOpen)
            Arming(info);
        for (int day = 0; day < AlarmWeek::DayCount; ++day)
            Day(info.defenceTime[day], day);
        Outputs(info.listAlarmOut);
        if (m_site.IsEmpty())
            return;
        Links(info);
        Source(key.strEventSource, info.bOpen);
    }

    void Doors(const AlarmInfoMap& map)
    {
        QSet<QString> enabled;
        for (auto scheme = map.begin(); scheme != map.end(); ++scheme) {
            if (scheme->bOpen)
                enabled.insert(scheme.key().strEventSource);
        }
        for (const DeviceInfo& device : m_site.GetSite().devices) {
            // Elsewhere, and where it is disabled in the configuration, a door cannot have a scheme.
            if (device.iDeviceType != VantaLogic::DeviceTypeAccessControl || !device.bEnabled ||
                enabled.contains(EventSource::WholeDevice(device.iDeviceId))) {
                continue;
            }
            for (const ChannelInfo& channel : device.channels) {
                const QString strDoor = EventSource::Door(device.iDeviceId, channel.iChannelId);
                if (channel.iChannelType == VantaLogic::ChannelTypeDoor && channel.bEnabled &&
                    !enabled.contains(strDoor)) {
                    m_findings.append({FindingCode::UnwatchedDoor, {strDoor, -1}, -1, 0, {}});
                }
            }
        }
    }

    QVector<Finding> Take() { return std::move(m_findings); }

private:
    void Add(FindingCode code, int iDay = -1, int iValue = 0, const QString& strLink = {})
    {
        m_findings.append({code, *m_pKey, iDay, iValue, strLink});
    }

    void Arming(const AlarmInfo& info)
    {
        const AlarmDefenceTime_t* const pDays = info.defenceTime.data();
        const bool armed = std::any_of(pDays, pDays + AlarmWeek::DayCount, [](const AlarmDefenceTime_t& day) {
            return std::any_of(day.begin(), day.end(), [](const AlarmTimeRegion& region) {
                return ArmedWeek::CoveredBy(region).has_value();
            });
        });
        if (!armed) {
            Add(FindingCode::NeverArmed);
        } else if (!SchemeReactions::HasAny(info)) {
            Add(FindingCode::NoReaction);
        }
    }

    void Day(const AlarmDefenceTime_t& regions, int iDay)
    {
        if (regions.size() > SchemeCheck::MaxRegions)
            Add(FindingCode::TooManyRegions, iDay, regions.size());
        bool impossible = false;
        m_spans.clear();
        for (const AlarmTimeRegion& region : regions) {
            impossible = impossible || region.Begin < 0 || region.Begin > region.End ||
                         region.End >= ArmedWeek::DaySeconds;
            if (const auto span = ArmedWeek::CoveredBy(region))
                m_spans.push_back(*span);
        }
        if (impossible)
            Add(FindingCode::ImpossibleRegion, iDay);
        std::sort(m_spans.begin(), m_spans.end(),
                  [](const ArmedWeek::Span& a, const ArmedWeek::Span& b) { return a.iBegin < b.iBegin; });
        bool overlap = false;
        bool touch = false;
        int end = -1;
        for (const ArmedWeek::Span& span : m_spans) {
            overlap = overlap || span.iBegin < end;
            touch = touch || span.iBegin == end;
            end = std::max(end, span.iEnd);
        }
        if (overlap)
            Add(FindingCode::OverlappingRegions, iDay);
        if (touch)
            Add(FindingCode::TouchingRegions, iDay);
    }

    void Outputs(const QList<AlarmLinkAlarmOut>& links)
    {
        for (const AlarmLinkAlarmOut& link : links) {
            if (link.Time < SchemeCheck::ShortestSeconds || link.Time > SchemeCheck::LongestSeconds)
                Add(FindingCode::BadDuration, -1, link.Time, link.strLinkAlarmID);
        }
    }

    void Links(const AlarmInfo& info)
    {
        for (const AlarmLinkAlarmOut& link : info.listAlarmOut) {
            if (!m_site.HasOutput(link.strLinkAlarmID))
                Add(FindingCode::UnknownOutput, -1, 0, link.strLinkAlarmID);
        }
        for (const AlarmLinkDoor& link : info.listDoor) {
            if (!m_site.HasDoor(link.strDoorID))
                Add(FindingCode::UnknownDoor, -1, 0, link.strDoorID);
        }
        for (const AlarmLinkVideo& link : info.videoSplit.videoLinks) {
            if (!m_site.HasVideo(link.strLinkDevID))
                Add(FindingCode::UnknownVideo, -1, 0, link.strLinkDevID);
        }
    }

    void Source(const QString& strSource, bool bEnabled)
    {
        if (!m_site.HasSource(strSource)) {
            Add(FindingCode::UnknownSource);
            return;
        }
        const DeviceInfo* const pDevice = m_site.DeviceOf(strSource);
        if (bEnabled && pDevice != nullptr && !pDevice->bOnline)
            Add(FindingCode::OfflineDevice);
    }

    const SiteIndex& m_site;
    const AlarmSourceKey* m_pKey = nullptr; ///< the scheme that is looked at
    std::vector<ArmedWeek::Span> m_spans;
    QVector<Finding> m_findings;
};

} // namespace

QVector<Finding> SchemeCheck::Run(const AlarmInfoMap& map, const SiteIndex& site, const Progress& progress)
{
    Checker checker(site);
    int done = 0;
    for (auto scheme = map.begin(); scheme != map.end(); ++scheme) {
        if (progress && done % ProgressStep == 0 && !progress(done, map.size()))
            return checker.Take();
        checker.Scheme(scheme.key(), scheme.value());
        ++done;
    }
    if (!site.IsEmpty())
        checker.Doors(map);
    return checker.Take();
}
