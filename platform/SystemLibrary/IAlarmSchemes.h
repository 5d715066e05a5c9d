#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/LXPluginAPI/ReservedSlots.h"
#include "systemlibrary_export.h"

/// The scheme interface of the host's scheme manager. User-interface thread only.
class SYSTEMLIBRARY_EXPORT IAlarmSchemes
{
public:
    virtual ~IAlarmSchemes(); // slot 0
    /// Fills the map with every stored scheme; 0 on success.
    virtual int LoadAlarmInfo(AlarmInfoMap* pMap) = 0; // slot 1
    // clang-format off
    LX_RESERVED_SLOTS_5(2, 3, 4, 5, 6) // slots 2 to 6
    // clang-format on
    /// Stores every scheme of the map; 0 on success.
    virtual int SaveAlarmInfo(const AlarmInfoMap* pMap) = 0; // slot 7
};
