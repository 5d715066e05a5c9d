#pragma once

#include "AlarmCtrl/CopyMode.h"

#include <array>

/// The kinds of event source of the page's copy popup: ACSCopy::Door and ACSCopy::AlarmInput.
namespace ACSCopy {

constexpr int32_t Door = 1;       ///< the schemes of a door, to doors of access-control devices
constexpr int32_t AlarmInput = 2; ///< the scheme of an alarm input, to alarm inputs of such devices

const std::array<CopyMode, 2>& Modes();

} // namespace ACSCopy
