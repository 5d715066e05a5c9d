#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <cstdint>

namespace DeviceSchemes {

/// Removes every scheme whose source has four fields of which the first is this device. Keys are ordered, so
/// a device's entries lie together and only they are visited.
void Remove(AlarmInfoMap& schemes, int64_t iDeviceId);

} // namespace DeviceSchemes
