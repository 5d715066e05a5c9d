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

    /// Everything is handed over for saving.
    void MarkSaved();
    /// The last save did not come about: what counts is the state before it. `schemes` is the present state.
    void MarkUnsaved(const AlarmInfoMap& schemes);

    bool IsEmpty() const { return m_originals.isEmpty(); }
    int Count() const { return m_originals.size(); }
    /// From the state last loaded or saved to the present one.
    SchemeChange Difference(const AlarmInfoMap& schemes) const;

private:
    void Note(const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter);

    SchemeContent::KnownOutput m_isKnown;
    AlarmInfoMap m_originals;  ///< of the schemes that differ; the default record for absent ones
    AlarmInfoMap m_beforeSave; ///< the originals as they were when the last save began
};
