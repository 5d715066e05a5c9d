#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <QString>

#include <cstdint>
#include <optional>

/// What is selected on the page, and which scheme that is.
struct SchemeSelection
{
    QString strSource;            ///< key of the selected door or device, empty for none
    int32_t iAlarmType = -1;      ///< event type picked in the shown list, -1 for none
    QString strAlarmInput;        ///< key of the selected alarm input, empty for none
    int32_t iAlarmInputType = -1; ///< event type of alarm inputs
    bool bExternal = false;       ///< the alarm inputs are shown

    /// Event type of the shown event, -1 for none.
    int32_t ShownType() const { return bExternal && !strAlarmInput.isEmpty() ? iAlarmInputType : iAlarmType; }

    /// Whether an event of a source is selected at all. Such a selection may still have no key: the
    /// per-device event of a source that does not split into four fields.
    bool HasEvent() const
    {
        return (bExternal && !strAlarmInput.isEmpty()) || (!strSource.isEmpty() && iAlarmType >= 0);
    }

    /// The key of the current scheme; nothing when there is none.
    std::optional<AlarmSourceKey> CurrentKey() const
    {
        if (bExternal && !strAlarmInput.isEmpty())
            return AlarmSourceKey{strAlarmInput, iAlarmInputType};
        if (!HasEvent())
            return std::nullopt;
        return EventSource::SchemeKey(strSource, iAlarmType);
    }
};
