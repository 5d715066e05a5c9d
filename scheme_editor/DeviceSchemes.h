#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_editor/edits/SchemeChange.h"

#include <cstdint>

namespace DeviceSchemes {

/// Removes every scheme whose source has four fields of which the first is this device, and says what that
/// was. Keys are ordered, so a device's entries lie together and only they are visited.
SchemeChange Remove(AlarmInfoMap& schemes, int64_t iDeviceId);

} // namespace DeviceSchemes
