#pragma once

#include "platform/VantaLogic/ITreeExpansion.h"

#include <QPair>
#include <QSet>

/// Remembers unfolded nodes as a host does, for several trees.
class ExpansionMemory : public VantaLogic::ITreeExpansion
{
public:
    bool IsExpanded(int32_t iNodeKind, int64_t iNodeId) const override
    {
        return unfolded.contains({iNodeKind, iNodeId});
    }
    void SetExpanded(int32_t iNodeKind, int64_t iNodeId, bool bExpanded) override
    {
        if (bExpanded) {
            unfolded.insert({iNodeKind, iNodeId});
        } else {
            unfolded.remove({iNodeKind, iNodeId});
        }
    }

    QSet<QPair<int32_t, int64_t>> unfolded;
};
