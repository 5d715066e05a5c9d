#pragma once

#include "scheme_editor/edits/SchemeChange.h"
#include "scheme_editor/edits/SchemeContent.h"

/// Which schemes differ in content from what was last loaded or saved. Knows only the schemes that differ,
/// each with the record that was loaded or saved, so that a map of any size costs what is edited. Pure.
class ModifiedSchemes
{
public:
    explicit ModifiedSchemes(SchemeContent::KnownOutput isKnown);

    /// From the first record of each scheme to the second. Every change of the schemes must pass here.
    void Follow(const SchemeChange& change);
    void FollowBack(const SchemeChange& change); ///< the change is taken back

    /// Everything is handed over for saving; until the end of that is known, what is handed over once more
    /// waits behind it.
    void MarkSaved();
    /// One save has ended; with more to come another one follows that holds everything handed over since.
    void EndSave(bool bStored, bool bMore, const AlarmInfoMap& schemes);
    /// Nothing of what was handed over is stored but what a save has ended with: what counts is the state
    /// before. `schemes` is the present state.
    void MarkUnsaved(const AlarmInfoMap& schemes);

    bool IsEmpty() const { return m_originals.isEmpty(); }
    int Count() const { return m_originals.size(); }
    /// From the state last loaded or saved to the present one.
    SchemeChange Difference(const AlarmInfoMap& schemes) const;

private:
    void Note(const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter);

    SchemeContent::KnownOutput m_isKnown;
    AlarmInfoMap m_originals;     ///< of the schemes that differ; the default record for absent ones
    bool m_bSaving = false;       ///< how the save ends is not known yet
    AlarmInfoMap m_beforeSave;    ///< the originals as they were before what is being saved
    AlarmInfoMap m_beforeWaiting; ///< the same of what was handed over since
};
