#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <cstdint>
#include <optional>
#include <vector>

struct sqlite3;

namespace AlarmSchemeKeyScan {

/// Ids of the stored schemes whose key the map does not hold, ascending: both are gone through side by side.
/// The file has to be known (see AlarmSchemeFileCheck). Nothing when it cannot be read.
std::optional<std::vector<int64_t>> IdsOutside(sqlite3* pDatabase, const AlarmInfoMap& map);

} // namespace AlarmSchemeKeyScan
