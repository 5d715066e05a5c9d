#include "client/store/SchemeChanges.h"

#include "client/store/AsStored.h"

#include <algorithm>

namespace {

using State = SchemeBase::State;

bool IsSame(const AlarmInfo* pA, const AlarmInfo* pB)
{
    return pA == pB || (pA != nullptr && pB != nullptr && *pA == *pB);
}

State ToState(const AlarmInfo* pInfo)
{
    return pInfo == nullptr ? State() : State(*pInfo);
}

/// A map's next entry in a walk over several maps in the order of their keys.
class Cursor
{
public:
    explicit Cursor(const AlarmInfoMap& map)
        : m_at(map.cbegin())
        , m_end(map.cend())
    {
    }

    void Lower(const AlarmSourceKey*& pLeast) const
    {
        if (m_at != m_end && (pLeast == nullptr || m_at.key() < *pLeast))
            pLeast = &m_at.key();
    }
    /// The entry of this key, which is not greater than the next one's; null without.
    const AlarmInfo* Take(const AlarmSourceKey& key)
    {
        if (m_at == m_end || m_at.key() != key)
            return nullptr;
        const AlarmInfo* info = &m_at.value();
        ++m_at;
        return info;
    }

private:
    AlarmInfoMap::const_iterator m_at;
    AlarmInfoMap::const_iterator m_end;
};

class Planner
{
public:
    Planner(const SchemeBase& base, const AlarmInfoMap& mine, SaveRule eRule)
        : m_base(base)
        , m_eRule(eRule)
    {
        m_plan.remaining = mine;
    }

    void Add(const AlarmSourceKey& key, const AlarmInfo* pHeld, const AlarmInfo* pTheirs,
             const AlarmInfo* pMine)
    {
        const AlarmInfo* known = pHeld;
        if (!m_base.stale.isEmpty()) {
            const auto stale = m_base.stale.constFind(key);
            if (stale != m_base.stale.cend())
                known = stale->has_value() ? &**stale : nullptr;
        }
        // Most schemes are as they were, and mostly they share the memory of what they were.
        if (pHeld == known && pTheirs != nullptr && pMine != nullptr && IsSame(pMine, known) &&
            IsSame(pTheirs, known))
            return;

        const State own = Own(known, pMine);
        const AlarmInfo* wanted = own ? &*own : nullptr;
        const bool changed = !IsSame(wanted, known);
        if (!IsSame(pTheirs, known) && !IsSame(pTheirs, wanted)) {
            ++m_plan.iForeign;
            m_plan.iBoth += changed ? 1 : 0;
            m_plan.bAsk = m_plan.bAsk || changed || !IsSame(pTheirs, pHeld);
        }
        if (m_eRule == SaveRule::Everything)
            TakeOver(key, pTheirs, pMine, wanted);
        else
            TakeOwn(key, pTheirs, pMine, wanted, changed);
    }

    SavePlan Plan() { return std::move(m_plan); }

private:
    static State Own(const AlarmInfo* pKnown, const AlarmInfo* pMine)
    {
        if (pMine != nullptr)
            return IsSame(pMine, pKnown) ? *pMine : AsStored(*pMine);
        State own = ToState(pKnown);
        if (own)
            own->bOpen = false;
        return own;
    }

    void TakeOver(const AlarmSourceKey& key, const AlarmInfo* pTheirs, const AlarmInfo* pMine,
                  const AlarmInfo* pWanted)
    {
        if (pMine != nullptr)
            Write(key, pTheirs, *pMine, *pWanted);
        else if (pTheirs != nullptr)
            Disable(key, *pTheirs);
    }

    void TakeOwn(const AlarmSourceKey& key, const AlarmInfo* pTheirs, const AlarmInfo* pMine,
                 const AlarmInfo* pWanted, bool bChanged)
    {
        if (bChanged && pMine != nullptr) {
            Write(key, pTheirs, *pMine, *pWanted);
            return;
        }
        if (pMine == nullptr && pTheirs != nullptr) {
            if (bChanged || !pTheirs->bOpen)
                Disable(key, *pTheirs);
            else
                m_plan.remaining.insert(key, *pTheirs);
        }
        const bool asTheirs = bChanged ? pTheirs != nullptr : IsSame(pWanted, pTheirs);
        if (!asTheirs)
            m_plan.stale.insert(key, ToState(pWanted));
    }

    void Write(const AlarmSourceKey& key, const AlarmInfo* pTheirs, const AlarmInfo& mine,
               const AlarmInfo& stored)
    {
        const unsigned parts = pTheirs == nullptr ? SchemeParts::All : SchemeParts::ToSave(*pTheirs, stored);
        if (parts != 0)
            m_plan.changes.append({key, parts, mine, stored});
    }

    void Disable(const AlarmSourceKey& key, const AlarmInfo& theirs)
    {
        // The rule reaches every row of the key, also where the first one is disabled already.
        m_plan.bDisable = true;
        if (!theirs.bOpen)
            return;
        AlarmInfo& disabled = *m_plan.disabled.insert(key, theirs);
        disabled.bOpen = false;
    }

    const SchemeBase& m_base;
    SaveRule m_eRule;
    SavePlan m_plan;
};

AlarmInfoMap WithStoredKeys(const AlarmInfoMap& map)
{
    AlarmInfoMap stored = map;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        const AlarmSourceKey key = AsStored(entry.key());
        if (key == entry.key())
            continue;
        stored.remove(entry.key());
        stored.insert(key, entry.value());
    }
    return stored;
}

} // namespace

unsigned SchemeParts::Differing(const AlarmInfo& a, const AlarmInfo& b)
{
    unsigned parts = 0;
    parts |= a.bOpen != b.bOpen ? Open : 0U;
    parts |= a.bOpenSound != b.bOpenSound || a.bEmapTwinkle != b.bEmapTwinkle || a.bSendEmail != b.bSendEmail
                 ? Notify
                 : 0U;
    parts |= a.videoSplit == b.videoSplit ? 0U : Video;
    parts |= a.listDoor == b.listDoor ? 0U : Door;
    parts |= a.listAlarmOut == b.listAlarmOut ? 0U : AlarmOut;
    parts |= a.defenceTime == b.defenceTime ? 0U : DefenceTime;
    return parts;
}

unsigned SchemeParts::ToSave(const AlarmInfo& stored, const AlarmInfo& wanted)
{
    const unsigned parts = Differing(stored, wanted);
    const AlarmVideoSplit& split = stored.videoSplit;
    const bool mayBeKeyAlone = !stored.bOpen && !stored.bOpenSound && !stored.bEmapTwinkle &&
                               !stored.bSendEmail && split.SplitRow == 0 && split.SplitCloum == 0 &&
                               split.SplitCount == 0 && stored.defenceTime == AlarmWeek();
    return parts != 0 && mayBeKeyAlone ? unsigned(All) : parts;
}

SavePlan PlanSave(const SchemeBase& base, const AlarmInfoMap& theirs, const AlarmInfoMap& mine,
                  SaveRule eRule)
{
    const AlarmInfoMap wanted = WithStoredKeys(mine);
    Planner planner(base, wanted, eRule);
    Cursor heldAt(base.held);
    Cursor theirsAt(theirs);
    Cursor mineAt(wanted);
    while (true) {
        const AlarmSourceKey* least = nullptr;
        heldAt.Lower(least);
        theirsAt.Lower(least);
        mineAt.Lower(least);
        if (least == nullptr)
            return planner.Plan();
        const AlarmSourceKey key = *least;
        const AlarmInfo* held = heldAt.Take(key);
        const AlarmInfo* stored = theirsAt.Take(key);
        planner.Add(key, held, stored, mineAt.Take(key));
    }
}

SavePlan PlanReplacement(const AlarmInfoMap& theirs, const AlarmInfoMap& schemes,
                         const QList<AlarmSourceKey>& remove)
{
    SavePlan plan;
    const AlarmInfoMap wanted = WithStoredKeys(schemes);
    for (auto scheme = wanted.cbegin(); scheme != wanted.cend(); ++scheme) {
        const AlarmInfo stored = AsStored(*scheme);
        const auto at = theirs.constFind(scheme.key());
        const unsigned parts =
            at == theirs.cend() ? unsigned(SchemeParts::All) : SchemeParts::ToSave(*at, stored);
        if (parts != 0)
            plan.changes.append({scheme.key(), parts, *scheme, stored});
    }
    for (const AlarmSourceKey& key : remove) {
        if (theirs.contains(key) && !wanted.contains(key))
            plan.removed.append(key);
    }
    return plan;
}
