#pragma once

#include "platform/LXPluginAPI/ReservedSlots.h"
#include "vantalogic_export.h"

#include <QString>

#include <cstdint>

namespace VantaLogic {

/// One channel of a device. Reference-counted: whoever is handed one releases it exactly once through
/// slot 11. Stays usable after the channel has gone from the site; then IsEnabled() answers false.
class VANTALOGIC_EXPORT IChannel
{
public:
    // clang-format off
    virtual int64_t GetId() const = 0; // slot 0
    virtual int32_t GetType() const = 0; // slot 1: channel kind, 0 to 6
    virtual int32_t GetNumber() const = 0; // slot 2: number on its device
    virtual QString GetName() const = 0; // slot 3
    virtual bool IsEnabled() const = 0; // slot 4: known and enabled in the configuration, offline or not
    LX_RESERVED_SLOTS_5(5, 6, 7, 8, 9) // slots 5 to 9
    LX_RESERVED_SLOT(10) // slot 10
    virtual void Release() = 0; // slot 11: gives the reference back
    // clang-format on

protected:
    ~IChannel(); // never deleted from outside, see Release()
};

/// One device. Reference-counted: whoever is handed one releases it exactly once through slot 48.
/// Stays usable after the device has gone from the site; then IsEnabled() answers false.
class VANTALOGIC_EXPORT IDevice
{
public:
    // clang-format off
    virtual int32_t GetType() const = 0; // slot 0: device type, 0 to 18
    virtual int64_t GetId() const = 0; // slot 1
    virtual QString GetName() const = 0; // slot 2
    LX_RESERVED_SLOT(3) LX_RESERVED_SLOT(4) // slots 3 and 4
    LX_RESERVED_SLOTS_5(5, 6, 7, 8, 9) // slots 5 to 9
    LX_RESERVED_SLOTS_5(10, 11, 12, 13, 14) // slots 10 to 14
    virtual bool IsEnabled() const = 0; // slot 15: known and enabled in the configuration
    virtual bool IsOnline() const = 0; // slot 16
    LX_RESERVED_SLOT(17) LX_RESERVED_SLOT(18) // slots 17 and 18
    LX_RESERVED_SLOT(19) // slot 19
    LX_RESERVED_SLOTS_5(20, 21, 22, 23, 24) // slots 20 to 24
    LX_RESERVED_SLOT(25) // slot 25
    virtual IChannel* GetChannel(int32_t iType, int32_t iNumber) = 0; // slot 26: null when there is none
    LX_RESERVED_SLOT(27) LX_RESERVED_SLOT(28) LX_RESERVED_SLOT(29) // slots 27 to 29
    LX_RESERVED_SLOTS_10(3) // slots 30 to 39
    LX_RESERVED_SLOTS_5(40, 41, 42, 43, 44) // slots 40 to 44
    LX_RESERVED_SLOT(45) LX_RESERVED_SLOT(46) LX_RESERVED_SLOT(47) // slots 45 to 47
    virtual void Release() = 0; // slot 48: gives the reference back
    // clang-format on

protected:
    ~IDevice(); // never deleted from outside, see Release()
};

} // namespace VantaLogic
