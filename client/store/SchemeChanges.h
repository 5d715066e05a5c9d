#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QMap>

#include <optional>

/// The six parts of a scheme that the store saves one by one.
namespace SchemeParts {

enum Part : unsigned
{
    Open = 1U << 0U,
    Notify = 1U << 1U,
    Video = 1U << 2U,
    Door = 1U << 3U,
    AlarmOut = 1U << 4U,
    DefenceTime = 1U << 5U,
    All = (1U << 6U) - 1U,
};

/// The parts in which two records differ; both as they are stored. 0 when they are equal.
unsigned Differing(const AlarmInfo& a, const AlarmInfo& b);

/// The parts to be saved so that a stored scheme becomes the wanted one; both as they are stored. All parts
/// of a scheme that may consist of its key alone: once one part of such a scheme is stored, its week counts
/// as never armed.
unsigned ToSave(const AlarmInfo& stored, const AlarmInfo& wanted);

} // namespace SchemeParts

/// What is known of the file and of the editors' map before a save.
struct SchemeBase
{
    using State = std::optional<AlarmInfo>; ///< nothing: no such scheme

    /// What the file held when it was last read or written here.
    AlarmInfoMap held;
    /// Where the editors' map was made from something else: schemes that somebody else has changed and that
    /// were kept so.
    QMap<AlarmSourceKey, State> stale;
};

/// What a save has to do.
struct SavePlan
{
    struct Change
    {
        AlarmSourceKey key;
        unsigned iParts = 0; ///< of SchemeParts
        AlarmInfo wanted;    ///< as the editors have it; what it stores beyond what is loaded is theirs too
        AlarmInfo stored;    ///< as it is stored afterwards
    };
    QList<Change> changes;

    /// Stored schemes that are deleted.
    QList<AlarmSourceKey> removed;

    /// Stored schemes that are left out have to be disabled, all but these.
    bool bDisable = false;
    AlarmInfoMap remaining;
    /// The schemes that become disabled and were not, as they are stored afterwards.
    AlarmInfoMap disabled;

    /// SchemeBase::stale after this save.
    QMap<AlarmSourceKey, SchemeBase::State> stale;

    int iForeign = 0;  ///< schemes that somebody else has changed, into something else than the editors have
    int iBoth = 0;     ///< those of them that the editors have changed too
    bool bAsk = false; ///< whether the operator has not agreed yet to what this save does about them

    bool IsEmpty() const { return changes.isEmpty() && disabled.isEmpty() && removed.isEmpty(); }
    int Schemes() const { return changes.size() + disabled.size() + removed.size(); }
};

enum class SaveRule
{
    OwnChanges, ///< only schemes that the editors have changed since the base; others stay as they are stored
    Everything, ///< the file becomes what the editors have, whatever is stored
};

/// Compares, scheme by scheme, the base, what the file holds now and what the editors have. A scheme that the
/// editors do not have counts as disabled by them. Pure; any thread.
SavePlan PlanSave(const SchemeBase& base, const AlarmInfoMap& theirs, const AlarmInfoMap& mine,
                  SaveRule eRule);

/// How the file, which holds `theirs`, comes to hold exactly these schemes under their keys and none under
/// the keys to remove; all others stay. Pure; any thread.
SavePlan PlanReplacement(const AlarmInfoMap& theirs, const AlarmInfoMap& schemes,
                         const QList<AlarmSourceKey>& remove);
