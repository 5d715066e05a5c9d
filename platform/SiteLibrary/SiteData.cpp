#include "platform/SiteLibrary/SiteData.h"

#include "platform/SiteLibrary/SiteRules.h"

using namespace VantaLogic;

void SiteData::Reset(const Site& site)
{
    *this = SiteData();
    m_groups = site.groups;
    for (int i = 0; i < m_groups.size(); ++i)
        m_groupPlaces.insert(m_groups[i].iGroupId, i);
    m_devices.reserve(site.devices.size());
    for (const DeviceInfo& device : site.devices)
        Insert(device);
    m_bIdsStale = m_bSiteStale = true;
}

bool SiteData::IsTaken(int64_t iId) const
{
    return m_devices.contains(iId) || m_channels.contains(iId) || m_groupPlaces.contains(iId);
}

bool SiteData::Add(const DeviceInfo& device)
{
    if (device.iGroupId != -1 && !m_groupPlaces.contains(device.iGroupId))
        return false;
    return Insert(device);
}

bool SiteData::Insert(const DeviceInfo& device)
{
    if (!SiteRules::IsSound(device) || IsTaken(device.iDeviceId))
        return false;
    for (const ChannelInfo& channel : device.channels) {
        if (IsTaken(channel.iChannelId))
            return false;
    }
    Entry entry;
    entry.info = device;
    entry.iOrder = m_iNextOrder++;
    for (int i = 0; i < device.channels.size(); ++i) {
        ChannelInfo& channel = entry.info.channels[i];
        channel.iDeviceId = device.iDeviceId;
        m_channels.insert(channel.iChannelId, {device.iDeviceId, i});
        entry.places.insert(SiteRules::ChannelPlace(channel.iChannelType, channel.iNumber), i);
    }
    m_order.insert(entry.iOrder, device.iDeviceId);
    m_devices.insert(device.iDeviceId, entry);
    m_bIdsStale = m_bSiteStale = true;
    return true;
}

bool SiteData::Remove(int64_t iDeviceId)
{
    const auto it = m_devices.find(iDeviceId);
    if (it == m_devices.end())
        return false;
    for (const ChannelInfo& channel : qAsConst(it->info.channels))
        m_channels.remove(channel.iChannelId);
    m_order.remove(it->iOrder);
    m_devices.erase(it);
    m_bIdsStale = m_bSiteStale = true;
    return true;
}

const DeviceInfo* SiteData::FindDevice(int64_t iDeviceId) const
{
    const auto it = m_devices.constFind(iDeviceId);
    return it == m_devices.cend() ? nullptr : &it->info;
}

DeviceInfo* SiteData::EditDevice(int64_t iDeviceId)
{
    const auto it = m_devices.find(iDeviceId);
    if (it == m_devices.end())
        return nullptr;
    m_bSiteStale = true;
    return &it->info;
}

const ChannelInfo* SiteData::FindChannel(int64_t iChannelId) const
{
    const auto it = m_channels.constFind(iChannelId);
    if (it == m_channels.cend())
        return nullptr;
    return &m_devices.constFind(it->iDeviceId)->info.channels[it->iPosition];
}

const ChannelInfo* SiteData::FindChannel(int64_t iDeviceId, int32_t iType, int32_t iNumber) const
{
    const auto it = m_devices.constFind(iDeviceId);
    if (it == m_devices.cend())
        return nullptr;
    const int iPosition = it->places.value(SiteRules::ChannelPlace(iType, iNumber), -1);
    return iPosition < 0 ? nullptr : &it->info.channels[iPosition];
}

const QVector<int64_t>& SiteData::DeviceIds() const
{
    if (m_bIdsStale) {
        m_ids.clear();
        m_ids.reserve(m_order.size());
        for (const int64_t iDeviceId : m_order)
            m_ids.append(iDeviceId);
        m_bIdsStale = false;
    }
    return m_ids;
}

const Site& SiteData::AsSite() const
{
    if (m_bSiteStale) {
        m_site.groups = m_groups;
        m_site.devices.clear();
        m_site.devices.reserve(m_order.size());
        for (const int64_t iDeviceId : m_order)
            m_site.devices.append(m_devices.constFind(iDeviceId)->info);
        m_bSiteStale = false;
    }
    return m_site;
}
