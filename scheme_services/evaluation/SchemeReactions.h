#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "schemeevaluation_export.h"

#include <QList>
#include <QMap>

#include <cstdint>

/// What a scheme does when its event occurs while it is armed.
struct SCHEMEEVALUATION_EXPORT SchemeReactions
{
    bool bSound = false;
    bool bTwinkle = false; ///< of the source's icon on the e-map
    bool bMail = false;
    QList<AlarmLinkAlarmOut> outputs; ///< that are switched on, and for how many seconds
    QList<AlarmLinkDoor> doors;
    QMap<int32_t, AlarmLinkVideo> videos; ///< that are opened or recorded, by window

    bool IsEmpty() const
    {
        return !bSound && !bTwinkle && !bMail && outputs.isEmpty() && doors.isEmpty() && videos.isEmpty();
    }

    /// Outputs that are linked but not to be switched on automatically are no reaction, nor are video links
    /// beyond the cells in use. Of several links to one output the last counts.
    static SchemeReactions Of(const AlarmInfo& info);
    /// Whether there are any, without putting them together.
    static bool HasAny(const AlarmInfo& info);
};
