#pragma once

#include "platform/VantaLogic/ITreeExpansion.h"

#include <QMap>
#include <QPair>
#include <QStringList>

/// Which nodes of the device trees stand unfolded. Until a person says otherwise, groups are unfolded and
/// everything else is folded; only what differs from that is kept.
class TreeExpansion : public VantaLogic::ITreeExpansion
{
public:
    TreeExpansion() = default;
    /// From texts of ToTexts(); texts that are none of those are left out.
    explicit TreeExpansion(const QStringList& texts);

    bool IsExpanded(int32_t iNodeKind, int64_t iNodeId) const override;
    void SetExpanded(int32_t iNodeKind, int64_t iNodeId, bool bExpanded) override;

    /// One text "kind:id:0" or "kind:id:1" for each node that differs, in the order of kind and id.
    QStringList ToTexts() const;

private:
    static bool DefaultOf(int32_t iNodeKind);
    QMap<QPair<int32_t, int64_t>, bool> m_differing;
};
