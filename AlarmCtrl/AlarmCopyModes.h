#pragma once

#include "AlarmCtrl/CopyMode.h"

#include <array>

/// The five kinds of event source of the general copy popup, mode numbers 1 to 5.
const std::array<CopyMode, 5>& AlarmCopyModes();
