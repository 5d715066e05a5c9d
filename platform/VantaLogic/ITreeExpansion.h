#pragma once

#include "vantalogic_export.h"

#include <cstdint>

namespace VantaLogic {

/// Remembers which nodes of a device tree a person has unfolded, for all trees of a host together.
/// User-interface thread only; owned by the host.
class VANTALOGIC_EXPORT ITreeExpansion
{
public:
    virtual ~ITreeExpansion();                                                        // slot 0
    virtual bool IsExpanded(int32_t iNodeKind, int64_t iNodeId) const = 0;            // slot 1
    virtual void SetExpanded(int32_t iNodeKind, int64_t iNodeId, bool bExpanded) = 0; // slot 2
};

} // namespace VantaLogic
