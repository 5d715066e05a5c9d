#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "systemlibrary_export.h"

#include <QList>

/// What the host says of event types and schemes.
namespace AlarmSchemeCommon {

/// Event types of a door, by category, in the order in which they are offered. No type stands in two lists.
SYSTEMLIBRARY_EXPORT QList<int> ACSAlarmEvent();
SYSTEMLIBRARY_EXPORT QList<int> ACSAbnormalEvent();
SYSTEMLIBRARY_EXPORT QList<int> ACSNormalEvent();

/// Whether a record still equals a freshly made one.
SYSTEMLIBRARY_EXPORT bool IsAlarmInfoDefault(const AlarmInfo& info);

} // namespace AlarmSchemeCommon
