#include "scheme_services/evaluation/SiteIndex.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <algorithm>
#include <iterator>

using VantaLogic::ChannelInfo;
using VantaLogic::DeviceInfo;

namespace {

constexpr int64_t DoorUnitType = 1;
constexpr int64_t AlarmUnitType = 3;

/// So many of several possible meanings are named.
constexpr int MaxNamed = 5;

/// Kind of channel that a key's unit type stands for; -1 for any.
int32_t KindOf(int64_t iUnitType)
{
    if (iUnitType == DoorUnitType)
        return VantaLogic::ChannelTypeDoor;
    return iUnitType == AlarmUnitType ? VantaLogic::ChannelTypeAlarmInput : -1;
}

/// The key of a channel that events come from; empty for any other.
QString SourceOf(const DeviceInfo& device, const ChannelInfo& channel)
{
    if (channel.iChannelType == VantaLogic::ChannelTypeDoor)
        return EventSource::Door(device.iDeviceId, channel.iChannelId);
    if (channel.iChannelType == VantaLogic::ChannelTypeAlarmInput) {
        return EventSource::AlarmInput(device.iDeviceId, channel.iChannelId,
                                       device.iDeviceType == VantaLogic::DeviceTypeAccessControl);
    }
    return {};
}

QString SourceOf(const DeviceInfo& device)
{
    return device.iDeviceType == VantaLogic::DeviceTypeAccessControl
               ? EventSource::AccessControlDevice(device.iDeviceId)
               : EventSource::Unit(device.iDeviceId);
}

QString OutputOf(const ChannelInfo& channel)
{
    return channel.iChannelType == VantaLogic::ChannelTypeAlarmOutput
               ? EventSource::AlarmOutput(channel.iChannelId)
               : QString();
}

} // namespace

SiteIndex::SiteIndex(const Site& site)
    : m_site(site)
{
    m_devices.reserve(site.devices.size());
    for (int device = 0; device < site.devices.size(); ++device) {
        const DeviceInfo& info = site.devices.at(device);
        m_devices.insert(info.iDeviceId, device);
        for (int channel = 0; channel < info.channels.size(); ++channel)
            m_channels.insert(info.channels.at(channel).iChannelId, {device, channel});
    }
}

QStringList SiteIndex::Sources() const
{
    QStringList sources;
    for (const DeviceInfo& device : m_site.devices) {
        sources.append(SourceOf(device));
        for (const ChannelInfo& channel : device.channels) {
            const QString source = SourceOf(device, channel);
            if (!source.isEmpty())
                sources.append(source);
        }
    }
    return sources;
}

const DeviceInfo* SiteIndex::FindDevice(int64_t iDeviceId) const
{
    const auto found = m_devices.constFind(iDeviceId);
    return found == m_devices.constEnd() ? nullptr : &m_site.devices.at(*found);
}

const ChannelInfo* SiteIndex::FindChannel(int64_t iChannelId) const
{
    const auto found = m_channels.constFind(iChannelId);
    return found == m_channels.constEnd() ? nullptr
                                          : &m_site.devices.at(found->first).channels.at(found->second);
}

const DeviceInfo* SiteIndex::DeviceOf(const QString& strSource) const
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strSource);
    return fields ? FindDevice(fields->iOwner) : nullptr;
}

bool SiteIndex::HasSource(const QString& strSource) const
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strSource);
    if (!fields || FindDevice(fields->iOwner) == nullptr)
        return false;
    if (fields->iChannel == 0 || fields->iChannel == -1)
        return true;
    const ChannelInfo* const pChannel = FindChannel(fields->iChannel);
    const int32_t kind = KindOf(fields->iUnitType);
    return pChannel != nullptr && pChannel->iDeviceId == fields->iOwner &&
           (kind == -1 || pChannel->iChannelType == kind);
}

bool SiteIndex::HasOutput(const QString& strOutput) const
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strOutput);
    if (fields && fields->iUnitType == DoorUnitType)
        return HasSource(strOutput);
    const ChannelInfo* const pChannel = FindChannel(EventSource::OutputChannelId(strOutput));
    return pChannel != nullptr && pChannel->iChannelType == VantaLogic::ChannelTypeAlarmOutput;
}

bool SiteIndex::HasDoor(const QString& strDoorId) const
{
    const ChannelInfo* const pChannel = strDoorId.contains(QLatin1Char('$'))
                                            ? nullptr
                                            : FindChannel(EventSource::FirstField(strDoorId).value_or(-1));
    return pChannel != nullptr && pChannel->iChannelType == VantaLogic::ChannelTypeDoor;
}

bool SiteIndex::HasVideo(const QString& strVideo) const
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strVideo);
    if (!fields || FindDevice(fields->iOwner) == nullptr)
        return false;
    // Hosts name a camera's channel, or the camera itself.
    const ChannelInfo* const pChannel = FindChannel(fields->iChannel);
    return fields->iChannel <= 0 || (pChannel != nullptr && pChannel->iDeviceId == fields->iOwner);
}

QString SiteIndex::NameOf(int64_t iDeviceId, int64_t iChannelId, const QString& strOtherwise) const
{
    const DeviceInfo* const pDevice = FindDevice(iDeviceId);
    if (pDevice == nullptr)
        return strOtherwise;
    if (iChannelId <= 0)
        return pDevice->strName;
    const ChannelInfo* const pChannel = FindChannel(iChannelId);
    return pChannel == nullptr || pChannel->iDeviceId != iDeviceId
               ? strOtherwise
               : QStringLiteral("%1/%2").arg(pDevice->strName, pChannel->strName);
}

QString SiteIndex::NameOfSource(const QString& strSource) const
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strSource);
    return fields ? NameOf(fields->iOwner, fields->iChannel, strSource) : strSource;
}

QString SiteIndex::NameOfOutput(const QString& strOutput) const
{
    const ChannelInfo* const pChannel = FindChannel(EventSource::OutputChannelId(strOutput));
    return pChannel == nullptr ? NameOfSource(strOutput)
                               : NameOf(pChannel->iDeviceId, pChannel->iChannelId, strOutput);
}

QString SiteIndex::NameOfDoor(const QString& strDoorId) const
{
    if (!HasDoor(strDoorId))
        return strDoorId;
    const ChannelInfo* const pChannel = FindChannel(EventSource::FirstField(strDoorId).value_or(-1));
    return NameOf(pChannel->iDeviceId, pChannel->iChannelId, strDoorId);
}

QVector<SiteIndex::Candidate> SiteIndex::Candidates(const QString& strText, Wanted wanted) const
{
    QVector<Candidate> candidates;
    const auto take = [&candidates, &strText](const QString& strName, const QString& strKey) {
        if (!strKey.isEmpty() && strName.compare(strText, Qt::CaseInsensitive) == 0)
            candidates.append({strKey, strName == strText});
    };
    for (const DeviceInfo& device : m_site.devices) {
        if (!strText.startsWith(device.strName, Qt::CaseInsensitive))
            continue;
        if (wanted == Wanted::Sources)
            take(device.strName, SourceOf(device));
        for (const ChannelInfo& channel : device.channels) {
            take(QStringLiteral("%1/%2").arg(device.strName, channel.strName),
                 wanted == Wanted::Sources ? SourceOf(device, channel) : OutputOf(channel));
        }
    }
    return candidates;
}

SiteIndex::Resolved SiteIndex::Resolve(const QString& strText, Wanted wanted) const
{
    if (EventSource::Split(strText))
        return {strText, {}};
    if (IsEmpty())
        return {{}, tr("\"%1\" is no key, and without a site file there are no names.").arg(strText)};
    QVector<Candidate> found = Candidates(strText, wanted);
    const auto exact = std::count_if(found.begin(), found.end(),
                                     [](const Candidate& candidate) { return candidate.bExact; });
    if (exact > 0) {
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [](const Candidate& candidate) { return !candidate.bExact; }),
                    found.end());
    }
    if (found.isEmpty())
        return {{}, tr("The site has no \"%1\".").arg(strText)};
    if (found.size() == 1)
        return {found.constFirst().strKey, {}};
    QStringList keys;
    for (const Candidate& candidate : qAsConst(found)) {
        if (keys.size() == MaxNamed) {
            keys.append(QStringLiteral("…"));
            break;
        }
        keys.append(candidate.strKey);
    }
    return {{}, tr("\"%1\" may be any of these: %2.").arg(strText, keys.join(QStringLiteral(", ")))};
}

SiteIndex::Resolved SiteIndex::ResolveSource(const QString& strText) const
{
    return Resolve(strText, Wanted::Sources);
}

SiteIndex::Resolved SiteIndex::ResolveOutput(const QString& strText) const
{
    return Resolve(strText, Wanted::Outputs);
}
