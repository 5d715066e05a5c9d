#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "schemeevaluation_export.h"

#include <QString>
#include <QVector>

#include <cstdint>

/// One scheme that links an alarm output.
struct SCHEMEEVALUATION_EXPORT OutputUse
{
    AlarmSourceKey key;
    bool bEnabled = false;   ///< the scheme is switched on
    bool bEverArmed = false; ///< at any time of the week
    bool bAutoOpen = false;  ///< the output is switched on automatically
    int32_t iSeconds = 0;    ///< and stays on for so long

    /// Whether an event can switch the output on.
    bool Switches() const { return bEnabled && bEverArmed && bAutoOpen; }

    /// Every scheme that links the output, in key order. Keys that name one output channel are the same
    /// output however they are spelled; any other text means itself. Of several links in a scheme the last
    /// counts.
    static QVector<OutputUse> Of(const AlarmInfoMap& map, const QString& strOutput);
};
