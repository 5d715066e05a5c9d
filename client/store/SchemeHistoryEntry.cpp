#include "client/store/SchemeHistoryEntry.h"

SchemeHistoryChanges SchemeHistoryBetween(const AlarmInfoMap& before, const AlarmInfoMap& after)
{
    SchemeHistoryChanges changes;
    auto old = before.cbegin();
    auto now = after.cbegin();
    while (old != before.cend() || now != after.cend()) {
        if (now == after.cend() || (old != before.cend() && old.key() < now.key())) {
            changes.append({old.key(), *old, std::nullopt});
            ++old;
        } else if (old == before.cend() || now.key() < old.key()) {
            changes.append({now.key(), std::nullopt, *now});
            ++now;
        } else {
            if (!(*old == *now))
                changes.append({now.key(), *old, *now});
            ++old;
            ++now;
        }
    }
    return changes;
}
