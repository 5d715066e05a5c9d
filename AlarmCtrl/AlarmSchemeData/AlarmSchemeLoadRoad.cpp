#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeLoadRoad.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemePlainText.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatement.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeTextPool.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeTimeRows.h"

#include <algorithm>
#include <limits>

namespace {

bool IsShort(int64_t iNumber)
{
    return iNumber >= std::numeric_limits<int32_t>::min() && iNumber <= std::numeric_limits<int32_t>::max();
}

bool IsShortInteger(const AlarmSchemeRun& row, int iColumn)
{
    return row.IsInteger(iColumn) && IsShort(row.Int64(iColumn));
}

/// Whether the values from a column on are integers or nothing, as a save leaves them.
bool AreUsual(const AlarmSchemeRun& row, int iFirst, int iLast)
{
    for (int column = iFirst; column <= iLast; ++column) {
        if (!row.IsInteger(column) && !row.IsNull(column))
            return false;
    }
    return true;
}

QString TextOf(const AlarmSchemeRun& row, int iColumn)
{
    const char* const bytes = row.Bytes(iColumn); // before the size: asking may convert the value
    return QString::fromUtf8(bytes, row.Size(iColumn));
}

} // namespace

struct AlarmSchemeLoadRoad::Scheme
{
    int64_t iId = 0;
    AlarmInfoMap::iterator entry;
    bool bBase = false;    ///< a base row was read
    bool bTime = false;    ///< a time row was read, sound or not
    bool bUnusual = false; ///< to be read literally
};

struct AlarmSchemeLoadRoad::Region
{
    int iDay = 0;
    AlarmTimeRegion region;

    bool operator==(const Region& other) const { return iDay == other.iDay && region == other.region; }
};

struct AlarmSchemeLoadRoad::Cell
{
    int iWindow = 0;
    AlarmSplitWindow window;

    bool operator==(const Cell& other) const { return iWindow == other.iWindow && window == other.window; }
};

AlarmSchemeLoadRoad::AlarmSchemeLoadRoad(sqlite3* pDatabase, AlarmInfoMap& map, bool bMailColumn)
    : m_pDatabase(pDatabase)
    , m_map(map)
    , m_bMailColumn(bMailColumn)
{
}

AlarmSchemeLoadRoad::~AlarmSchemeLoadRoad() = default;

template <typename UseRow>
bool AlarmSchemeLoadRoad::EachRow(const char* szStatement, UseRow&& useRow)
{
    AlarmSchemeStatement statement(m_pDatabase, szStatement);
    AlarmSchemeRun run(statement);
    while (run.Next())
        useRow(run);
    return run.IsDone();
}

/// Rows of the schemes that are read here. Beyond the owner, the columns up to iLastId name or place
/// something and have to be integers; the others may be missing.
template <typename UseRow>
bool AlarmSchemeLoadRoad::EachOwnedRow(const char* szStatement, int iLastId, UseRow&& useRow)
{
    m_iFound = 0;
    m_pOpenScheme = nullptr;
    return EachRow(szStatement, [&](const AlarmSchemeRun& row) {
        Scheme* const scheme = Owner(row);
        if (scheme == nullptr || scheme->bUnusual)
            return;
        for (int column = 1; column <= iLastId && !scheme->bUnusual; ++column)
            scheme->bUnusual = !IsShortInteger(row, column);
        if (!scheme->bUnusual)
            useRow(*scheme, row);
    });
}

bool AlarmSchemeLoadRoad::Load(const ReadLiterally& readLiterally)
{
    using namespace SchemeStatements;
    if (!ReadKeys() || !ReadTexts(ScanVideoTexts, m_videoTexts) ||
        !ReadTexts(ScanAlarmOutTexts, m_alarmOutTexts))
        return false;

    // The base rows first: they say how many cells and windows count.
    bool read = EachOwnedRow(m_bMailColumn ? ScanBase : ScanBaseWithoutMail, 0,
                             [this](Scheme& scheme, const auto& row) { ReadBase(scheme, row); });
    read = read && EachOwnedRow(ScanDefenceTime, 0,
                                [this](Scheme& scheme, const auto& row) { ReadRegion(scheme, row); });
    FinishRegions();
    for (Scheme& scheme : m_schemes) {
        if (scheme.bBase && !scheme.bTime)
            scheme.entry->defenceTime = EmptyAlarmWeek();
    }
    read = read && EachOwnedRow(ScanAlarmOut, 1,
                                [this](Scheme& scheme, const auto& row) { ReadAlarmOut(scheme, row); });
    read =
        read && EachOwnedRow(ScanDoor, 0, [this](Scheme& scheme, const auto& row) { ReadDoor(scheme, row); });
    read = read &&
           EachOwnedRow(ScanSplit, 0, [this](Scheme& scheme, const auto& row) { ReadCell(scheme, row); });
    FinishCells();
    read = read &&
           EachOwnedRow(ScanVideo, 1, [this](Scheme& scheme, const auto& row) { ReadVideo(scheme, row); });
    if (!read)
        return false;

    ReadUnusual(readLiterally);
    return true;
}

void AlarmSchemeLoadRoad::ReadUnusual(const ReadLiterally& readLiterally)
{
    const bool any =
        !m_unusual.isEmpty() || std::any_of(m_schemes.cbegin(), m_schemes.cend(),
                                            [](const Scheme& scheme) { return scheme.bUnusual; });
    if (!any)
        return;
    // What the statements read shall share its texts with the rest.
    AlarmSchemeTextPool pool;
    for (Texts* texts : {&m_videoTexts, &m_alarmOutTexts, &m_doorTexts}) {
        for (QString& text : *texts)
            pool.Intern(text);
    }
    for (Scheme& scheme : m_schemes) {
        if (!scheme.bUnusual)
            continue;
        *scheme.entry = AlarmInfo();
        readLiterally(scheme.entry.key(), *scheme.entry);
        pool.Intern(*scheme.entry);
    }
    for (AlarmSourceKey& key : m_unusual) {
        if (m_map.contains(key))
            continue;
        pool.Intern(key.strEventSource);
        AlarmInfo& info = *m_map.insert(key, AlarmInfo());
        readLiterally(key, info);
        pool.Intern(info);
    }
}

bool AlarmSchemeLoadRoad::ReadKeys()
{
    // In the order of the keys, and of the ids within one: the first row of a key is the one that counts.
    QByteArray lastBytes;
    QString lastText;
    bool lastPlain = false;
    const bool read = EachRow(SchemeStatements::ScanKeys, [&](const AlarmSchemeRun& row) {
        if (row.IsNull(1))
            return;
        const bool isText = row.IsText(1);
        const char* const bytes = row.Bytes(1);
        const int size = row.Size(1);
        if (lastText.isNull() || lastBytes != QByteArray::fromRawData(bytes, size)) {
            lastBytes = QByteArray(bytes, size);
            lastPlain = IsPlainText(bytes, static_cast<size_t>(size));
            lastText = lastPlain ? QString::fromLatin1(bytes, size) : QString::fromUtf8(bytes, size);
        }
        const AlarmSourceKey key{lastText, row.Int(2)};
        if (!lastPlain || !isText || !IsShortInteger(row, 2)) {
            m_unusual.append(key);
            return;
        }
        if (!m_map.isEmpty() && m_map.lastKey() == key)
            return;
        Scheme scheme;
        scheme.iId = row.Int64(0);
        scheme.entry = m_map.insert(m_map.cend(), key, AlarmInfo());
        scheme.bUnusual = !IsShort(scheme.iId);
        m_schemes.push_back(scheme);
    });
    std::sort(m_schemes.begin(), m_schemes.end(),
              [](const Scheme& a, const Scheme& b) { return a.iId < b.iId; });
    return read;
}

bool AlarmSchemeLoadRoad::ReadTexts(const char* szStatement, Texts& texts)
{
    return EachRow(szStatement,
                   [&texts](const AlarmSchemeRun& row) { texts.insert(row.Int64(0), TextOf(row, 1)); });
}

AlarmSchemeLoadRoad::Scheme* AlarmSchemeLoadRoad::Find(int64_t iId)
{
    if (m_iFound < m_schemes.size() && m_schemes[m_iFound].iId == iId)
        return &m_schemes[m_iFound];
    if (m_iFound + 1 < m_schemes.size() && m_schemes[m_iFound + 1].iId == iId)
        return &m_schemes[++m_iFound];
    const auto found = std::lower_bound(m_schemes.begin(), m_schemes.end(), iId,
                                        [](const Scheme& scheme, int64_t id) { return scheme.iId < id; });
    if (found == m_schemes.end() || found->iId != iId)
        return nullptr;
    m_iFound = static_cast<size_t>(found - m_schemes.begin());
    return &*found;
}

AlarmSchemeLoadRoad::Scheme* AlarmSchemeLoadRoad::Owner(const AlarmSchemeRun& row)
{
    if (row.IsInteger(0))
        return Find(row.Int64(0));
    // A text or fraction where the scheme's id belongs: whose it is, SQLite may say.
    Scheme* const scheme = row.IsNull(0) ? nullptr : Find(row.Int64(0));
    if (scheme != nullptr)
        scheme->bUnusual = true;
    return nullptr;
}

void AlarmSchemeLoadRoad::ReadBase(Scheme& scheme, const AlarmSchemeRun& row)
{
    if (scheme.bBase)
        return; // the first row counts
    scheme.bBase = true;
    scheme.bUnusual = !AreUsual(row, 1, 7);
    AlarmInfo& info = *scheme.entry;
    info.bOpen = row.Flag(1);
    info.bOpenSound = row.Flag(2);
    info.bEmapTwinkle = row.Flag(3);
    info.bSendEmail = row.Flag(4);
    info.videoSplit.SplitRow = row.Int(5);
    info.videoSplit.SplitCloum = row.Int(6);
    info.videoSplit.SplitCount = row.Int(7);
}

void AlarmSchemeLoadRoad::ReadRegion(Scheme& scheme, const AlarmSchemeRun& row)
{
    if (m_pOpenScheme != &scheme) {
        FinishRegions();
        m_pOpenScheme = &scheme;
        // Rows of one scheme that lie apart: what was read of it comes first.
        if (scheme.bTime) {
            for (int day = 0; day < AlarmWeek::DayCount; ++day) {
                for (const AlarmTimeRegion& region : qAsConst(scheme.entry->defenceTime)[day])
                    m_regions.push_back(Region{day, region});
            }
        }
        scheme.bTime = true;
    }
    scheme.bUnusual = !AreUsual(row, 1, 3);
    const int64_t day = row.Int64(1);
    const int64_t begin = row.Int64(2);
    const int64_t end = row.Int64(3);
    if (IsSoundTimeRow(day, begin, end)) {
        m_regions.push_back(
            Region{static_cast<int>(day - 1), {static_cast<int32_t>(begin), static_cast<int32_t>(end)}});
    }
}

void AlarmSchemeLoadRoad::FinishRegions()
{
    if (m_pOpenScheme == nullptr)
        return;
    if (m_regions != m_lastRegions) {
        AlarmWeek week = EmptyAlarmWeek();
        for (const Region& region : m_regions)
            week[region.iDay].append(region.region);
        const AlarmWeek fresh;
        m_lastWeek = week == fresh ? fresh : week;
        m_lastRegions = m_regions;
    }
    m_pOpenScheme->entry->defenceTime = m_regions.empty() ? EmptyAlarmWeek() : m_lastWeek;
    m_regions.clear();
    m_pOpenScheme = nullptr;
}

void AlarmSchemeLoadRoad::ReadAlarmOut(Scheme& scheme, const AlarmSchemeRun& row)
{
    scheme.bUnusual = !AreUsual(row, 2, 3);
    const auto text = m_alarmOutTexts.constFind(row.Int64(1));
    if (text != m_alarmOutTexts.constEnd())
        scheme.entry->listAlarmOut.append(AlarmLinkAlarmOut{*text, row.Flag(2), row.Int(3)});
}

void AlarmSchemeLoadRoad::ReadDoor(Scheme& scheme, const AlarmSchemeRun& row)
{
    scheme.bUnusual = !row.IsInteger(1) || !AreUsual(row, 2, 2);
    const int64_t door = row.Int64(1);
    QString& text = m_doorTexts[door];
    if (text.isNull())
        text = QString::number(door);
    scheme.entry->listDoor.append(AlarmLinkDoor{text, row.Flag(2)});
}

void AlarmSchemeLoadRoad::ReadCell(Scheme& scheme, const AlarmSchemeRun& row)
{
    if (m_pOpenScheme != &scheme) {
        FinishCells();
        m_pOpenScheme = &scheme;
    }
    scheme.bUnusual = !row.IsInteger(1) || !AreUsual(row, 2, 7);
    const int64_t window = row.Int64(1);
    if (window < 0 || window >= qAsConst(scheme.entry->videoSplit).UsedCells())
        return;
    Cell cell;
    cell.iWindow = static_cast<int>(window);
    cell.window.bEnable = row.Flag(2);
    cell.window.iCombine = row.Int(3);
    cell.window.X1 = row.Int(4);
    cell.window.X2 = row.Int(5);
    cell.window.Y1 = row.Int(6);
    cell.window.Y2 = row.Int(7);
    m_cells.push_back(cell);
}

void AlarmSchemeLoadRoad::FinishCells()
{
    if (m_pOpenScheme == nullptr)
        return;
    AlarmSplitCells& cells = m_pOpenScheme->entry->videoSplit.cells;
    const bool fresh = cells.IsSharedWith(AlarmSplitCells());
    if (fresh && m_cells == m_lastCells) {
        if (!m_cells.empty())
            cells = m_lastSplit;
    } else {
        for (const Cell& cell : m_cells) {
            // Looked at before it is written: writing ends the sharing of all 64.
            if (!(qAsConst(cells)[cell.iWindow] == cell.window))
                cells[cell.iWindow] = cell.window;
        }
        if (fresh) {
            m_lastCells = m_cells;
            m_lastSplit = cells;
        }
    }
    m_cells.clear();
    m_pOpenScheme = nullptr;
}

void AlarmSchemeLoadRoad::ReadVideo(Scheme& scheme, const AlarmSchemeRun& row)
{
    scheme.bUnusual = !row.IsInteger(2) || !AreUsual(row, 3, 7);
    AlarmVideoSplit& split = scheme.entry->videoSplit;
    const int64_t window = row.Int64(2);
    if (window < 0 || window >= split.SplitCount)
        return;
    // Row by row as they come: one that leads nowhere takes away what an earlier row put there.
    const auto text = m_videoTexts.constFind(row.Int64(1));
    if (text == m_videoTexts.constEnd()) {
        split.videoLinks.remove(static_cast<int32_t>(window));
        return;
    }
    AlarmLinkVideo& link = split.videoLinks[static_cast<int32_t>(window)];
    link.strLinkDevID = *text;
    link.bOpen = row.Flag(3);
    link.bRecord = row.Flag(4);
    link.Preposition = row.Int(5);
    link.StreamType = row.Int(6);
    link.Time = row.Int(7);
}
