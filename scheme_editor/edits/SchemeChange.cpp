#include "scheme_editor/edits/SchemeChange.h"

#include <QHashFunctions>

#include <algorithm>

namespace {

uint Mix(uint seed, uint value)
{
    return seed ^ (value + 0x9e3779b9U + (seed << 6U) + (seed >> 2U));
}

// Equal records have equal hashes; cells and links beyond their number are left to the comparison.
uint HashOf(const AlarmInfo& info)
{
    uint hash = (info.bOpen ? 1U : 0U) | (info.bOpenSound ? 2U : 0U) | (info.bEmapTwinkle ? 4U : 0U) |
                (info.bSendEmail ? 8U : 0U);
    hash = Mix(hash, static_cast<uint>(info.videoSplit.SplitCount));
    hash = Mix(hash, static_cast<uint>(info.videoSplit.videoLinks.size()));
    hash = Mix(hash, static_cast<uint>(info.listDoor.size()));
    for (const AlarmLinkAlarmOut& link : info.listAlarmOut)
        hash = Mix(Mix(hash, qHash(link.strLinkAlarmID)), static_cast<uint>(link.Time));
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        for (const AlarmTimeRegion& region : info.defenceTime[day])
            hash = Mix(Mix(hash, static_cast<uint>(region.Begin)), static_cast<uint>(region.End));
        hash = Mix(hash, static_cast<uint>(day));
    }
    return hash;
}

} // namespace

int SchemeChange::Count() const
{
    int iCount = 0;
    for (const Source& source : m_sources)
        iCount += m_rows[source.iRow].size();
    return iCount;
}

void SchemeChange::Apply(AlarmInfoMap& schemes, Side side) const
{
    // The map and the change are walked side by side: one search for each source.
    for (const Source& source : m_sources) {
        const QVector<Cell>& row = m_rows[source.iRow];
        auto place = schemes.lowerBound({source.strText, row.first().iType});
        for (const Cell& cell : row) {
            const AlarmSourceKey key{source.strText, cell.iType};
            while (place != schemes.end() && place.key() < key)
                ++place;
            const bool bPresent = place != schemes.end() && place.key() == key;
            const AlarmInfo* const pInfo = Record(side == Side::Before ? cell.iBefore : cell.iAfter);
            if (pInfo == nullptr) {
                if (bPresent)
                    place = schemes.erase(place);
            } else if (bPresent) {
                place.value() = *pInfo;
            } else {
                place = schemes.insert(AlarmInfoMap::const_iterator(place), key, *pInfo);
            }
        }
    }
}

SchemeChange SchemeChange::WithoutDevice(int64_t iDeviceId) const
{
    SchemeChange rest = *this;
    const auto gone =
        std::remove_if(rest.m_sources.begin(), rest.m_sources.end(), [iDeviceId](const Source& source) {
            return EventSource::BelongsToDevice(source.strText, iDeviceId);
        });
    rest.m_sources.erase(gone, rest.m_sources.end());
    return rest.m_sources.isEmpty() ? SchemeChange() : rest;
}

int64_t SchemeChange::Cost() const
{
    constexpr int64_t iLink = 64;
    int64_t iBytes = static_cast<int64_t>(m_sources.size()) * static_cast<int64_t>(sizeof(Source));
    for (const Source& source : m_sources)
        iBytes += static_cast<int64_t>(source.strText.size()) * static_cast<int64_t>(sizeof(QChar));
    for (const QVector<Cell>& row : m_rows)
        iBytes += static_cast<int64_t>(row.size()) * static_cast<int64_t>(sizeof(Cell));
    for (const AlarmInfo& info : m_records) {
        iBytes +=
            static_cast<int64_t>(sizeof(AlarmInfo)) +
            iLink * (info.listAlarmOut.size() + info.listDoor.size() + info.videoSplit.videoLinks.size());
    }
    return iBytes;
}

void SchemeChange::Builder::Add(const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter)
{
    if ((pBefore == nullptr && pAfter == nullptr) ||
        (pBefore != nullptr && pAfter != nullptr && *pBefore == *pAfter)) {
        return;
    }
    if (m_strSource != key.strEventSource) {
        FinishSource();
        m_strSource = key.strEventSource;
    }
    m_row.append({key.AlarmType, Place(pBefore), Place(pAfter)});
}

int32_t SchemeChange::Builder::Place(const AlarmInfo* pInfo)
{
    if (pInfo == nullptr)
        return Absent;
    const uint hash = HashOf(*pInfo);
    for (auto it = m_recordsByHash.constFind(hash); it != m_recordsByHash.cend() && it.key() == hash; ++it) {
        if (m_change.m_records[it.value()] == *pInfo)
            return it.value();
    }
    const int32_t iPlace = m_change.m_records.size();
    m_change.m_records.append(*pInfo);
    m_recordsByHash.insert(hash, iPlace);
    return iPlace;
}

void SchemeChange::Builder::FinishSource()
{
    if (m_row.isEmpty())
        return;
    uint hash = 0;
    for (const Cell& cell : qAsConst(m_row)) {
        hash = Mix(Mix(Mix(hash, static_cast<uint>(cell.iType)), static_cast<uint>(cell.iBefore)),
                   static_cast<uint>(cell.iAfter));
    }
    const auto isSame = [](const Cell& a, const Cell& b) {
        return a.iType == b.iType && a.iBefore == b.iBefore && a.iAfter == b.iAfter;
    };
    int32_t iRow = -1;
    for (auto it = m_rowsByHash.constFind(hash); it != m_rowsByHash.cend() && it.key() == hash; ++it) {
        const QVector<Cell>& known = m_change.m_rows[it.value()];
        if (std::equal(known.cbegin(), known.cend(), m_row.cbegin(), m_row.cend(), isSame))
            iRow = it.value();
    }
    if (iRow < 0) {
        iRow = m_change.m_rows.size();
        m_change.m_rows.append(m_row);
        m_rowsByHash.insert(hash, iRow);
    }
    m_change.m_sources.append({m_strSource, iRow});
    m_row.clear();
}

SchemeChange SchemeChange::Builder::Take()
{
    FinishSource();
    const auto isBefore = [](const Source& a, const Source& b) { return a.strText < b.strText; };
    if (!std::is_sorted(m_change.m_sources.cbegin(), m_change.m_sources.cend(), isBefore))
        std::stable_sort(m_change.m_sources.begin(), m_change.m_sources.end(), isBefore);
    SchemeChange change = m_change;
    *this = Builder();
    return change;
}
