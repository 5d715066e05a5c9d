#include "platform/SiteLibrary/SiteObjects.h"

using namespace VantaLogic;

IDevice* SiteObjects::AcquireDevice(int64_t iDeviceId)
{
    const DeviceInfo* pInfo = data.FindDevice(iDeviceId);
    if (!pInfo)
        return nullptr;
    SiteDevice*& pDevice = m_devices[iDeviceId];
    if (!pDevice)
        pDevice = new SiteDevice(shared_from_this(), *pInfo);
    ++pDevice->m_iReferences;
    ++m_iOutstanding;
    return pDevice;
}

IChannel* SiteObjects::AcquireChannel(int64_t iDeviceId, int32_t iType, int32_t iNumber)
{
    const ChannelInfo* pInfo = data.FindChannel(iDeviceId, iType, iNumber);
    if (!pInfo)
        return nullptr;
    SiteChannel*& pChannel = m_channels[pInfo->iChannelId];
    if (!pChannel)
        pChannel = new SiteChannel(shared_from_this(), *pInfo);
    ++pChannel->m_iReferences;
    ++m_iOutstanding;
    return pChannel;
}

void SiteObjects::RememberAll()
{
    for (SiteDevice* pDevice : qAsConst(m_devices))
        pDevice->m_last = pDevice->Info();
    for (SiteChannel* pChannel : qAsConst(m_channels))
        pChannel->m_last = pChannel->Info();
}

void SiteObjects::Remember(int64_t iDeviceId)
{
    const DeviceInfo* pInfo = data.FindDevice(iDeviceId);
    if (!pInfo)
        return;
    if (SiteDevice* pDevice = m_devices.value(iDeviceId))
        pDevice->m_last = *pInfo;
    for (const ChannelInfo& channel : pInfo->channels) {
        if (SiteChannel* pChannel = m_channels.value(channel.iChannelId))
            pChannel->m_last = channel;
    }
}

SiteDevice::SiteDevice(std::shared_ptr<SiteObjects> pHome, const DeviceInfo& info)
    : m_pHome(std::move(pHome))
    , m_last(info)
{
}

const DeviceInfo& SiteDevice::Info() const
{
    const DeviceInfo* pInfo = m_pHome->data.FindDevice(m_last.iDeviceId);
    return pInfo ? *pInfo : m_last;
}

int32_t SiteDevice::GetType() const
{
    return Info().iDeviceType;
}

int64_t SiteDevice::GetId() const
{
    return m_last.iDeviceId;
}

QString SiteDevice::GetName() const
{
    return Info().strName;
}

bool SiteDevice::IsEnabled() const
{
    const DeviceInfo* pInfo = m_pHome->data.FindDevice(m_last.iDeviceId);
    return pInfo && pInfo->bEnabled;
}

bool SiteDevice::IsOnline() const
{
    const DeviceInfo* pInfo = m_pHome->data.FindDevice(m_last.iDeviceId);
    return pInfo && pInfo->bOnline;
}

IChannel* SiteDevice::GetChannel(int32_t iType, int32_t iNumber)
{
    return m_pHome->AcquireChannel(m_last.iDeviceId, iType, iNumber);
}

void SiteDevice::Release()
{
    --m_pHome->m_iOutstanding;
    if (--m_iReferences > 0)
        return;
    m_pHome->m_devices.remove(m_last.iDeviceId);
    delete this;
}

SiteChannel::SiteChannel(std::shared_ptr<SiteObjects> pHome, const ChannelInfo& info)
    : m_pHome(std::move(pHome))
    , m_last(info)
{
}

const ChannelInfo& SiteChannel::Info() const
{
    const ChannelInfo* pInfo = m_pHome->data.FindChannel(m_last.iChannelId);
    return pInfo ? *pInfo : m_last;
}

int64_t SiteChannel::GetId() const
{
    return m_last.iChannelId;
}

int32_t SiteChannel::GetType() const
{
    return Info().iChannelType;
}

int32_t SiteChannel::GetNumber() const
{
    return Info().iNumber;
}

QString SiteChannel::GetName() const
{
    return Info().strName;
}

bool SiteChannel::IsEnabled() const
{
    const ChannelInfo* pInfo = m_pHome->data.FindChannel(m_last.iChannelId);
    return pInfo && pInfo->bEnabled;
}

void SiteChannel::Release()
{
    --m_pHome->m_iOutstanding;
    if (--m_iReferences > 0)
        return;
    m_pHome->m_channels.remove(m_last.iChannelId);
    delete this;
}
