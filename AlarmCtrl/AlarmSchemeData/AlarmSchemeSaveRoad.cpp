#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeSaveRoad.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemePlainText.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

/// The place of an id in a list, where that is added when it is new.
template <typename Link>
void PutLink(std::vector<std::pair<int64_t, const Link*>>& links, QHash<int64_t, size_t>& places, int64_t iId,
             const Link& link)
{
    constexpr size_t few = 8;
    if (links.size() < few) {
        const auto found =
            std::find_if(links.begin(), links.end(), [iId](const auto& one) { return one.first == iId; });
        if (found != links.end()) {
            found->second = &link;
        } else {
            links.emplace_back(iId, &link);
        }
        return;
    }
    if (places.isEmpty()) {
        for (size_t i = 0; i < links.size(); ++i)
            places.insert(links[i].first, i);
    }
    const auto place = places.constFind(iId);
    if (place != places.constEnd()) {
        links[*place].second = &link;
    } else {
        places.insert(iId, links.size());
        links.emplace_back(iId, &link);
    }
}

bool IsStored(const AlarmSchemeRun& row, int iColumn, int32_t iNumber)
{
    return row.IsInteger(iColumn) && row.Int64(iColumn) == iNumber;
}

} // namespace

/// A row of a cell below 64, and whether it differs from what is to be stored is asked by value.
struct AlarmSchemeSaveRoad::StoredCell
{
    int64_t iRow = 0;
    int64_t iWindow = 0;
    bool bWhole = false; ///< every value is an integer of 32 bits
    int64_t iEnable = 0;
    AlarmSplitWindow window;

    bool Holds(const AlarmSplitWindow& other) const
    {
        return bWhole && iEnable == (other.bEnable ? 1 : 0) && window == other;
    }
};

AlarmSchemeSaveRoad::AlarmSchemeSaveRoad(sqlite3* pDatabase)
    : m_pDatabase(pDatabase)
    , m_findScheme(pDatabase, SchemeStatements::FindScheme)
    , m_addScheme(pDatabase, SchemeStatements::AddScheme)
    , m_findVideoText(pDatabase, SchemeStatements::FindVideoText)
    , m_addVideoText(pDatabase, SchemeStatements::AddVideoText)
    , m_findAlarmOutText(pDatabase, SchemeStatements::FindAlarmOutText)
    , m_addAlarmOutText(pDatabase, SchemeStatements::AddAlarmOutText)
    , m_findBase(pDatabase, SchemeStatements::FindBase)
    , m_addBase(pDatabase, SchemeStatements::AddBase)
    , m_changeBase(pDatabase, SchemeStatements::ChangeBase)
    , m_findCells(pDatabase, SchemeStatements::FindCells)
    , m_addCell(pDatabase, SchemeStatements::AddCell)
    , m_changeCell(pDatabase, SchemeStatements::ChangeCell)
    , m_clearVideo(pDatabase, SchemeStatements::ClearVideo)
    , m_addVideo(pDatabase, SchemeStatements::AddVideo)
    , m_clearDoor(pDatabase, SchemeStatements::ClearDoor)
    , m_addDoor(pDatabase, SchemeStatements::AddDoor)
    , m_clearAlarmOut(pDatabase, SchemeStatements::ClearAlarmOut)
    , m_addAlarmOut(pDatabase, SchemeStatements::AddAlarmOut)
    , m_clearDefenceTime(pDatabase, SchemeStatements::ClearDefenceTime)
    , m_addRegion(pDatabase, SchemeStatements::AddRegion)
    , m_addSevenRegions(pDatabase, SchemeStatements::AddSevenRegions)
{
    for (const AlarmSchemeStatement* statement :
         {&m_findScheme,      &m_addScheme,     &m_findVideoText, &m_addVideoText,     &m_findAlarmOutText,
          &m_addAlarmOutText, &m_findBase,      &m_addBase,       &m_changeBase,       &m_findCells,
          &m_addCell,         &m_changeCell,    &m_clearVideo,    &m_addVideo,         &m_clearDoor,
          &m_addDoor,         &m_clearAlarmOut, &m_addAlarmOut,   &m_clearDefenceTime, &m_addRegion,
          &m_addSevenRegions})
        m_bReady = m_bReady && *statement;

    // New ids go on from the counter, so only rows of a greater id can wait for one.
    AlarmSchemeStatement counter(pDatabase, SchemeStatements::LastSchemeId);
    AlarmSchemeRun last(counter);
    const int64_t lastId = last.Next() ? last.Int64(0) : 0;
    static constexpr std::array<const char*, PartCount> greatest{
        SchemeStatements::GreatestBaseOwner,     SchemeStatements::GreatestSplitOwner,
        SchemeStatements::GreatestVideoOwner,    SchemeStatements::GreatestDoorOwner,
        SchemeStatements::GreatestAlarmOutOwner, SchemeStatements::GreatestDefenceTimeOwner};
    for (size_t part = 0; part < greatest.size(); ++part) {
        AlarmSchemeStatement statement(pDatabase, greatest[part]);
        AlarmSchemeRun row(statement);
        const bool none = row.Next() && (row.IsNull(0) || (row.IsInteger(0) && row.Int64(0) <= lastId));
        m_rowsWait[part] = !none;
    }
}

AlarmSchemeSaveRoad::~AlarmSchemeSaveRoad() = default;

bool AlarmSchemeSaveRoad::IsReady() const
{
    return m_bReady;
}

bool AlarmSchemeSaveRoad::MayHaveRows(const Target& target, Part ePart) const
{
    return !target.bNew || m_rowsWait[ePart];
}

bool AlarmSchemeSaveRoad::HasPlainTexts(const AlarmSourceKey& key, const AlarmInfo& info)
{
    const QMap<int32_t, AlarmLinkVideo>& videos = info.videoSplit.videoLinks;
    return IsPlainText(key.strEventSource) &&
           std::all_of(videos.cbegin(), videos.cend(),
                       [](const AlarmLinkVideo& link) { return IsPlainText(link.strLinkDevID); }) &&
           std::all_of(info.listAlarmOut.cbegin(), info.listAlarmOut.cend(),
                       [](const AlarmLinkAlarmOut& link) { return IsPlainText(link.strLinkAlarmID); });
}

AlarmSchemeSaveRoad::Result AlarmSchemeSaveRoad::Save(const AlarmSourceKey& key, const AlarmInfo& info)
{
    if (!HasPlainTexts(key, info))
        return Result::Unusual;

    std::optional<int64_t> stored;
    if (!FindScheme(key, stored))
        return Result::Failed;
    Target target{stored.value_or(0), !stored};
    m_cells.clear();
    if (info.videoSplit.UsedCells() > 0 && MayHaveRows(target, Split)) {
        // An id that is yet to come has rows already: rare enough to let the statements sort it out.
        bool usual = false;
        if (target.bNew)
            return Result::Unusual;
        if (!FindCells(target.iId, usual))
            return Result::Failed;
        if (!usual)
            return Result::Unusual;
    }

    const bool saved = (!target.bNew || AddScheme(key, target.iId)) && SaveBase(target, info) &&
                       SaveVideo(target, info.videoSplit) && SaveCells(target, info.videoSplit) &&
                       SaveDoors(target, info.listDoor) && SaveAlarmOut(target, info.listAlarmOut) &&
                       SaveDefenceTime(target, info.defenceTime);
    return saved ? Result::Saved : Result::Failed;
}

bool AlarmSchemeSaveRoad::FindScheme(const AlarmSourceKey& key, std::optional<int64_t>& id)
{
    if (m_strLastSource != key.strEventSource || m_lastSource.isNull()) {
        m_strLastSource = key.strEventSource;
        m_lastSource = m_strLastSource.toLatin1();
    }
    AlarmSchemeRun run(m_findScheme);
    run.Bind(m_lastSource).Bind(key.AlarmType);
    if (!run.Next())
        return run.IsDone();
    id = run.Int64(0);
    return true;
}

bool AlarmSchemeSaveRoad::AddScheme(const AlarmSourceKey& key, int64_t& id)
{
    if (!m_addScheme.Execute(m_lastSource, key.AlarmType))
        return false;
    id = sqlite3_last_insert_rowid(m_pDatabase);
    return true;
}

bool AlarmSchemeSaveRoad::ResolveText(AlarmSchemeStatement& find, AlarmSchemeStatement& add, Ids& known,
                                      const QString& strText, int64_t& id)
{
    const auto cached = known.constFind(strText);
    if (cached != known.constEnd()) {
        id = *cached;
        return true;
    }
    const QByteArray text = strText.toLatin1();
    bool found = false;
    {
        AlarmSchemeRun run(find);
        found = run.Bind(text).Next();
        if (!found && !run.IsDone())
            return false;
        if (found)
            id = run.Int64(0);
    }
    if (!found) {
        if (!add.Execute(text))
            return false;
        id = sqlite3_last_insert_rowid(m_pDatabase);
    }
    known.insert(strText, id);
    return true;
}

bool AlarmSchemeSaveRoad::SaveBase(const Target& target, const AlarmInfo& info)
{
    const AlarmVideoSplit& split = info.videoSplit;
    bool found = false;
    bool differs = false;
    if (MayHaveRows(target, Base)) {
        // Several rows of one scheme are all changed, as one statement over the scheme changes them.
        AlarmSchemeRun run(m_findBase);
        run.Bind(target.iId);
        while (run.Next()) {
            found = true;
            differs = differs || !IsStored(run, 0, info.bOpen) || !IsStored(run, 1, info.bOpenSound) ||
                      !IsStored(run, 2, info.bEmapTwinkle) || !IsStored(run, 3, info.bSendEmail) ||
                      !IsStored(run, 4, split.SplitRow) || !IsStored(run, 5, split.SplitCloum) ||
                      !IsStored(run, 6, split.SplitCount);
        }
        if (!run.IsDone())
            return false;
    }
    if (found && !differs)
        return true;
    return (found ? m_changeBase : m_addBase)
        .Execute(target.iId, info.bOpen, info.bOpenSound, info.bEmapTwinkle, info.bSendEmail, split.SplitRow,
                 split.SplitCloum, split.SplitCount);
}

bool AlarmSchemeSaveRoad::SaveVideo(const Target& target, const AlarmVideoSplit& split)
{
    if (MayHaveRows(target, Video) && !m_clearVideo.Execute(target.iId))
        return false;
    for (auto entry = split.videoLinks.cbegin(); entry != split.videoLinks.cend(); ++entry) {
        const AlarmLinkVideo& link = entry.value();
        int64_t video = 0;
        if (!ResolveText(m_findVideoText, m_addVideoText, m_videoIds, link.strLinkDevID, video) ||
            !m_addVideo.Execute(target.iId, entry.key(), video, link.bOpen, link.bRecord, link.Preposition,
                                link.StreamType, link.Time))
            return false;
    }
    return true;
}

bool AlarmSchemeSaveRoad::FindCells(int64_t iId, bool& usual)
{
    usual = true;
    AlarmSchemeRun run(m_findCells);
    run.Bind(iId);
    while (run.Next()) {
        StoredCell cell;
        usual = usual && run.IsInteger(1);
        cell.iRow = run.Int64(0);
        cell.iWindow = run.Int64(1);
        cell.iEnable = run.Int64(2);
        cell.window.bEnable = run.Flag(2);
        cell.window.iCombine = run.Int(3);
        cell.window.X1 = run.Int(4);
        cell.window.X2 = run.Int(5);
        cell.window.Y1 = run.Int(6);
        cell.window.Y2 = run.Int(7);
        cell.bWhole = run.IsInteger(2) && IsStored(run, 3, cell.window.iCombine) &&
                      IsStored(run, 4, cell.window.X1) && IsStored(run, 5, cell.window.X2) &&
                      IsStored(run, 6, cell.window.Y1) && IsStored(run, 7, cell.window.Y2);
        if (cell.iWindow >= 0 && cell.iWindow < AlarmSplitCells::CellCount)
            m_cells.push_back(cell);
    }
    return run.IsDone();
}

bool AlarmSchemeSaveRoad::SaveCells(const Target& target, const AlarmVideoSplit& split)
{
    // Rows of cells beyond the used ones stay: a smaller layout must not lose what a larger one held.
    const int used = split.UsedCells();
    std::array<bool, AlarmSplitCells::CellCount> stored{};
    for (const StoredCell& cell : m_cells) {
        if (cell.iWindow >= used)
            continue;
        stored[static_cast<size_t>(cell.iWindow)] = true;
        const AlarmSplitWindow& window = split.cells[static_cast<int>(cell.iWindow)];
        if (!cell.Holds(window) && !m_changeCell.Execute(cell.iRow, window.bEnable, window.iCombine,
                                                         window.X1, window.X2, window.Y1, window.Y2))
            return false;
    }
    for (int i = 0; i < used; ++i) {
        const AlarmSplitWindow& window = split.cells[i];
        if (!stored[static_cast<size_t>(i)] &&
            !m_addCell.Execute(target.iId, i, window.bEnable, window.iCombine, window.X1, window.X2,
                               window.Y1, window.Y2))
            return false;
    }
    return true;
}

bool AlarmSchemeSaveRoad::SaveDoors(const Target& target, const QList<AlarmLinkDoor>& links)
{
    if (MayHaveRows(target, Door) && !m_clearDoor.Execute(target.iId))
        return false;
    m_doors.clear();
    QHash<int64_t, size_t> places;
    for (const AlarmLinkDoor& link : links)
        PutLink(m_doors, places, link.strDoorID.toLongLong(), link); // 0 for what is no number
    return std::all_of(m_doors.cbegin(), m_doors.cend(), [&](const auto& door) {
        return m_addDoor.Execute(target.iId, door.first, door.second->bAlwaysOpen);
    });
}

bool AlarmSchemeSaveRoad::SaveAlarmOut(const Target& target, const QList<AlarmLinkAlarmOut>& links)
{
    if (MayHaveRows(target, AlarmOut) && !m_clearAlarmOut.Execute(target.iId))
        return false;
    m_alarmOut.clear();
    QHash<int64_t, size_t> places;
    for (const AlarmLinkAlarmOut& link : links) {
        int64_t output = 0;
        if (!ResolveText(m_findAlarmOutText, m_addAlarmOutText, m_alarmOutIds, link.strLinkAlarmID, output))
            return false;
        PutLink(m_alarmOut, places, output, link);
    }
    return std::all_of(m_alarmOut.cbegin(), m_alarmOut.cend(), [&](const auto& output) {
        return m_addAlarmOut.Execute(target.iId, output.first, output.second->bAutoOpen, output.second->Time);
    });
}

bool AlarmSchemeSaveRoad::SaveDefenceTime(const Target& target, const AlarmWeek& week)
{
    if (MayHaveRows(target, DefenceTime) && !m_clearDefenceTime.Execute(target.iId))
        return false;
    m_regions.clear();
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        for (const AlarmTimeRegion& region : week[day])
            m_regions.emplace_back(day + 1, region);
    }
    constexpr size_t together = 7;
    size_t at = 0;
    for (; m_regions.size() - at >= together; at += together) {
        AlarmSchemeRun run(m_addSevenRegions);
        run.Bind(target.iId);
        for (size_t i = at; i < at + together; ++i)
            run.Bind(m_regions[i].first).Bind(m_regions[i].second.Begin).Bind(m_regions[i].second.End);
        if (run.Next() || !run.IsDone())
            return false;
    }
    for (; at < m_regions.size(); ++at) {
        const auto& [day, region] = m_regions[at];
        if (!m_addRegion.Execute(target.iId, day, region.Begin, region.End))
            return false;
    }
    return true;
}
