#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <cstdint>

/// Whether a stored row of the week plan is a region of a day. The numbers are judged in 64 bits: cut to 32
/// they might look sound.
bool IsSoundTimeRow(int64_t iDay, int64_t iBegin, int64_t iEnd);

/// Seven days without a region; all that are handed out share their memory.
AlarmWeek EmptyAlarmWeek();
