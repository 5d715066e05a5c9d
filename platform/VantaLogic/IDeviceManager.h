#pragma once

#include "platform/LXPluginAPI/ReservedSlots.h"
#include "platform/VantaLogic/IDevice.h"
#include "platform/VantaLogic/Records.h"

namespace VantaLogic {

/// Is told of changes to the site, on the user-interface thread, after the manager itself has changed.
/// An observer may add or remove observers while it is being called.
class VANTALOGIC_EXPORT IDeviceObserver
{
public:
    virtual ~IDeviceObserver();                          // slot 0
    virtual void OnDeviceAdded(int64_t iDeviceId) = 0;   // slot 1
    virtual void OnDeviceRemoved(int64_t iDeviceId) = 0; // slot 2: the device and its channels are gone
    virtual void OnDeviceChanged(int64_t iDeviceId) = 0; // slot 3: name, type, group, enabled or channels
    virtual void OnDeviceOnline(int64_t iDeviceId, bool bOnline) = 0; // slot 4
    virtual void OnGroupsChanged() = 0; // slot 5: the list of groups or a group's name
};

/// The host's device manager: what devices and channels the site has. User-interface thread only; the host
/// owns it. "Yes/no" queries mean known and enabled in the configuration, never online: an offline controller
/// can be configured, and a channel look-up succeeds for it.
class VANTALOGIC_EXPORT IDeviceManager
{
public:
    // clang-format off
    virtual ~IDeviceManager(); // slot 0
    virtual void AddObserver(IDeviceObserver* pObserver) = 0; // slot 1: not owned; twice is once
    virtual void RemoveObserver(IDeviceObserver* pObserver) = 0; // slot 2
    virtual QVector<int64_t> GetDeviceIds() const = 0; // slot 3: in the site's order
    virtual QVector<GroupInfo> GetGroups() const = 0; // slot 4: in the site's order
    virtual bool RemoveDevice(int64_t iDeviceId) = 0; // slot 5: false when not known
    LX_RESERVED_SLOT(6) LX_RESERVED_SLOT(7) // slots 6 and 7
    LX_RESERVED_SLOT(8) LX_RESERVED_SLOT(9) // slots 8 and 9
    LX_RESERVED_SLOTS_10(1) // slots 10 to 19
    LX_RESERVED_SLOTS_10(2) // slots 20 to 29
    LX_RESERVED_SLOTS_10(3) // slots 30 to 39
    LX_RESERVED_SLOTS_5(40, 41, 42, 43, 44) // slots 40 to 44
    LX_RESERVED_SLOT(45) LX_RESERVED_SLOT(46) // slots 45 and 46
    virtual int32_t
    GetDevice(int64_t iDeviceId, DeviceInfo& out) const = 0; // slot 47: 0 on success, else -1
    virtual IDevice* GetDeviceObject(int64_t iDeviceId) = 0; // slot 48: null when not known; Release() it
    virtual int32_t GetDeviceType(int64_t iDeviceId) const = 0; // slot 49: -1 when not known
    virtual bool IsDeviceEnabled(int64_t iDeviceId) const = 0; // slot 50: known and enabled
    LX_RESERVED_SLOT(51) LX_RESERVED_SLOT(52) // slots 51 and 52
    LX_RESERVED_SLOT(53) LX_RESERVED_SLOT(54) // slots 53 and 54
    LX_RESERVED_SLOTS_5(55, 56, 57, 58, 59) // slots 55 to 59
    LX_RESERVED_SLOTS_10(6) // slots 60 to 69
    LX_RESERVED_SLOTS_5(70, 71, 72, 73, 74) // slots 70 to 74
    LX_RESERVED_SLOT(75) LX_RESERVED_SLOT(76) // slots 75 and 76
    LX_RESERVED_SLOT(77) LX_RESERVED_SLOT(78) // slots 77 and 78
    virtual int32_t
    GetChannel(int64_t iChannelId, ChannelInfo& out) const = 0; // slot 79: 0 on success, else -1
    // clang-format on
};

} // namespace VantaLogic
