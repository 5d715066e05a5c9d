#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/LXPluginAPI/ReservedSlots.h"
#include "systemlibrary_export.h"

/// The scheme interface of the host's scheme manager. User-interface thread only.
class SYSTEMLIBRARY_EXPORT IAlarmSchemes
{
public:
    virtual ~IAlarmSchemes(); // slot 0
    virtual int
    LoadAlarmInfo(AlarmInfoMap* pMap) = 0; // slot 1: fill the map with every stored scheme; 0 on success
    LX_RESERVED_SLOT(2)
    LX_RESERVED_SLOT(3) // slots 2 and 3
    LX_RESERVED_SLOT(4)
    LX_RESERVED_SLOT(5)     // slots 4 and 5
        LX_RESERVED_SLOT(6) // slot 6
        virtual int SaveAlarmInfo(
            const AlarmInfoMap* pMap) = 0; // slot 7: store every scheme of the map; 0 on success
};
