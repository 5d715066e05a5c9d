#include "scheme_editor/edits/ModifiedSchemes.h"

#include <utility>

namespace {

const AlarmInfo* Find(const AlarmInfoMap& schemes, const AlarmSourceKey& key)
{
    const auto found = schemes.constFind(key);
    return found == schemes.cend() ? nullptr : &found.value();
}

/// What was there first counts.
void AddOlder(AlarmInfoMap& originals, const AlarmInfoMap& later)
{
    for (auto it = later.cbegin(); it != later.cend(); ++it) {
        if (!originals.contains(it.key()))
            originals.insert(it.key(), it.value());
    }
}

} // namespace

ModifiedSchemes::ModifiedSchemes(SchemeContent::KnownOutput isKnown)
    : m_isKnown(std::move(isKnown))
{
}

void ModifiedSchemes::Follow(const SchemeChange& change)
{
    change.ForEach([this](const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter) {
        Note(key, pBefore, pAfter);
    });
}

void ModifiedSchemes::FollowBack(const SchemeChange& change)
{
    change.ForEach([this](const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter) {
        Note(key, pAfter, pBefore);
    });
}

void ModifiedSchemes::Note(const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter)
{
    const AlarmInfo& after = SchemeContent::OrDefault(pAfter);
    // A change comes in ascending order: most of a large one goes to the end.
    const bool bBeyond = m_originals.isEmpty() || m_originals.lastKey() < key;
    const auto known = bBeyond ? m_originals.end() : m_originals.find(key);
    if (known == m_originals.end()) {
        const AlarmInfo& before = SchemeContent::OrDefault(pBefore);
        if (SchemeContent::AreSame(before, after, m_isKnown))
            return;
        if (bBeyond)
            m_originals.insert(m_originals.cend(), key, before);
        else
            m_originals.insert(key, before);
    } else if (SchemeContent::AreSame(known.value(), after, m_isKnown)) {
        m_originals.erase(known);
    }
}

void ModifiedSchemes::MarkSaved()
{
    const AlarmInfoMap originals = std::exchange(m_originals, AlarmInfoMap());
    if (std::exchange(m_bSaving, true))
        AddOlder(m_beforeWaiting, originals);
    else
        m_beforeSave = originals;
}

void ModifiedSchemes::EndSave(bool bStored, bool bMore, const AlarmInfoMap& schemes)
{
    if (!bStored && !bMore) {
        MarkUnsaved(schemes);
        return;
    }
    const AlarmInfoMap waiting = std::exchange(m_beforeWaiting, AlarmInfoMap());
    if (bStored)
        m_beforeSave = bMore ? waiting : AlarmInfoMap();
    else
        AddOlder(m_beforeSave, waiting);
    m_bSaving = bMore;
}

void ModifiedSchemes::MarkUnsaved(const AlarmInfoMap& schemes)
{
    AlarmInfoMap before = std::exchange(m_beforeSave, AlarmInfoMap());
    AddOlder(before, std::exchange(m_beforeWaiting, AlarmInfoMap()));
    m_bSaving = false;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        const AlarmInfo& now = SchemeContent::OrDefault(Find(schemes, it.key()));
        if (SchemeContent::AreSame(it.value(), now, m_isKnown))
            m_originals.remove(it.key());
        else
            m_originals.insert(it.key(), it.value());
    }
}

SchemeChange ModifiedSchemes::Difference(const AlarmInfoMap& schemes) const
{
    SchemeChange::Builder builder;
    for (auto it = m_originals.cbegin(); it != m_originals.cend(); ++it)
        builder.Add(it.key(), &it.value(), Find(schemes, it.key()));
    return builder.Take();
}
