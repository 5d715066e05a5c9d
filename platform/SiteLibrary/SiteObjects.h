#pragma once

#include "platform/SiteLibrary/SiteData.h"
#include "platform/VantaLogic/IDevice.h"

#include <QHash>

#include <memory>

class SiteDevice;
class SiteChannel;

/// A site's data and the device and channel objects handed out over it. Lives until the manager and the last
/// object have gone, so that an object released late finds its home.
class SiteObjects : public std::enable_shared_from_this<SiteObjects>
{
public:
    SiteData data;

    VantaLogic::IDevice* AcquireDevice(int64_t iDeviceId);
    VantaLogic::IChannel* AcquireChannel(int64_t iDeviceId, int32_t iType, int32_t iNumber);
    int Outstanding() const { return m_iOutstanding; }
    /// Lets the objects in use keep what they last knew, before the data changes.
    void RememberAll();
    void Remember(int64_t iDeviceId);

private:
    friend class SiteDevice;
    friend class SiteChannel;
    QHash<int64_t, SiteDevice*> m_devices;
    QHash<int64_t, SiteChannel*> m_channels;
    int m_iOutstanding = 0;
};

/// One object a device however often it is handed out; deletes itself with its last reference.
class SiteDevice final : public VantaLogic::IDevice
{
public:
    int32_t GetType() const override;
    int64_t GetId() const override;
    QString GetName() const override;
    bool IsEnabled() const override;
    bool IsOnline() const override;
    VantaLogic::IChannel* GetChannel(int32_t iType, int32_t iNumber) override;
    void Release() override;

private:
    friend class SiteObjects;
    SiteDevice(std::shared_ptr<SiteObjects> pHome, const VantaLogic::DeviceInfo& info);
    ~SiteDevice() = default;
    const VantaLogic::DeviceInfo& Info() const;

    std::shared_ptr<SiteObjects> m_pHome;
    VantaLogic::DeviceInfo m_last; ///< what is answered once the device has gone
    int m_iReferences = 0;
};

/// The same for a channel.
class SiteChannel final : public VantaLogic::IChannel
{
public:
    int64_t GetId() const override;
    int32_t GetType() const override;
    int32_t GetNumber() const override;
    QString GetName() const override;
    bool IsEnabled() const override;
    void Release() override;

private:
    friend class SiteObjects;
    SiteChannel(std::shared_ptr<SiteObjects> pHome, const VantaLogic::ChannelInfo& info);
    ~SiteChannel() = default;
    const VantaLogic::ChannelInfo& Info() const;

    std::shared_ptr<SiteObjects> m_pHome;
    VantaLogic::ChannelInfo m_last;
    int m_iReferences = 0;
};
