#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeFileCheck.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeLoadRoad.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeQuery.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatementText.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeTextPool.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeTimeRows.h"

std::optional<QString> AlarmSchemeDatabaseParser::LinkText(const char* szTemplate, int64_t iLinkId)
{
    AlarmSchemeQuery query = PrepareFilled(szTemplate, {iLinkId});
    return NextRow(query) ? std::optional<QString>(query.Text(0)) : std::nullopt;
}

std::optional<int64_t> AlarmSchemeDatabaseParser::FirstId(const char* szTemplate,
                                                          std::initializer_list<StatementArgument> arguments)
{
    AlarmSchemeQuery query = PrepareFilled(szTemplate, arguments);
    return NextRow(query) ? std::optional<int64_t>(query.Int64(0)) : std::nullopt;
}

std::optional<int64_t> AlarmSchemeDatabaseParser::FindSchemeId(const AlarmSourceKey& key)
{
    return FirstId(SchemeStatements::SelectSchemeId, {key.strEventSource, key.AlarmType});
}

std::optional<int64_t> AlarmSchemeDatabaseParser::FindVideoId(const QString& strLinkDevID)
{
    return FirstId(SchemeStatements::SelectVideoId, {strLinkDevID});
}

std::optional<int64_t> AlarmSchemeDatabaseParser::FindAlarmOutId(const QString& strLinkAlarmID)
{
    return FirstId(SchemeStatements::SelectAlarmOutId, {strLinkAlarmID});
}

std::optional<QList<AlarmSchemeDatabaseParser::StoredScheme>> AlarmSchemeDatabaseParser::ReadStoredSchemes()
{
    AlarmSchemeQuery query = Prepare(QString::fromLatin1(SchemeStatements::SelectAllSchemes));
    if (!query)
        return std::nullopt;
    QList<StoredScheme> schemes;
    while (NextRow(query)) {
        if (!query.IsNull(1))
            schemes.append(StoredScheme{query.Int64(0), AlarmSourceKey{query.Text(1), query.Int(2)}});
    }
    return schemes;
}

int32_t AlarmSchemeDatabaseParser::ReadOpen(const AlarmSourceKey& key, AlarmInfo& out)
{
    return ReadOpen(key, out, nullptr);
}

int32_t AlarmSchemeDatabaseParser::ReadOpen(const AlarmSourceKey& key, AlarmInfo& out, bool* pFound)
{
    out.bOpen = false;
    AlarmSchemeQuery query = PrepareFilled(SchemeStatements::SelectOpen, {key.strEventSource, key.AlarmType});
    if (!query)
        return -1;
    const bool found = NextRow(query);
    if (found)
        out.bOpen = query.Flag(0);
    if (pFound != nullptr)
        *pFound = found;
    return 0;
}

int32_t AlarmSchemeDatabaseParser::ReadNotify(const AlarmSourceKey& key, AlarmInfo& out)
{
    // The mail flag is not reset: without a row it keeps what the caller put there.
    out.bOpenSound = false;
    out.bEmapTwinkle = false;
    AlarmSchemeQuery query =
        PrepareFilled(SchemeStatements::SelectNotify, {key.strEventSource, key.AlarmType});
    if (!query)
        return -1;
    if (NextRow(query)) {
        out.bOpenSound = query.Flag(0);
        out.bEmapTwinkle = query.Flag(1);
        out.bSendEmail = query.Flag(2);
    }
    return 0;
}

int32_t AlarmSchemeDatabaseParser::ReadDefenceTime(const AlarmSourceKey& key, AlarmInfo& out)
{
    return ReadDefenceTime(key, out, nullptr);
}

int32_t AlarmSchemeDatabaseParser::ReadDefenceTime(const AlarmSourceKey& key, AlarmInfo& out, bool* pFound)
{
    AlarmWeek week = EmptyAlarmWeek();
    AlarmSchemeQuery query =
        PrepareFilled(SchemeStatements::SelectDefenceTime, {key.strEventSource, key.AlarmType});
    while (NextRow(query)) {
        if (pFound != nullptr)
            *pFound = true;
        const int64_t day = query.Int64(0);
        const int64_t begin = query.Int64(1);
        const int64_t end = query.Int64(2);
        if (!IsSoundTimeRow(day, begin, end))
            continue;
        week[static_cast<int>(day - 1)].append(
            AlarmTimeRegion{static_cast<int32_t>(begin), static_cast<int32_t>(end)});
    }
    // Most weeks are as a fresh one: they go on sharing its memory.
    const AlarmWeek fresh;
    out.defenceTime = week == fresh ? fresh : week;
    return query ? 0 : -1;
}

int32_t AlarmSchemeDatabaseParser::ReadAlarmOut(const AlarmSourceKey& key, AlarmInfo& out)
{
    out.listAlarmOut.clear();
    AlarmSchemeQuery query =
        PrepareFilled(SchemeStatements::SelectAlarmOut, {key.strEventSource, key.AlarmType});
    if (!query)
        return -1;
    while (NextRow(query)) {
        const std::optional<QString> text = LinkText(SchemeStatements::SelectAlarmOutText, query.Int64(0));
        if (text)
            out.listAlarmOut.append(AlarmLinkAlarmOut{*text, query.Flag(1), query.Int(2)});
    }
    return 0;
}

int32_t AlarmSchemeDatabaseParser::ReadDoor(const AlarmSourceKey& key, AlarmInfo& out)
{
    out.listDoor.clear();
    AlarmSchemeQuery query = PrepareFilled(SchemeStatements::SelectDoor, {key.strEventSource, key.AlarmType});
    if (!query)
        return -1;
    while (NextRow(query))
        out.listDoor.append(AlarmLinkDoor{query.Text(0), query.Flag(1)});
    return 0;
}

int32_t AlarmSchemeDatabaseParser::ReadSplit(const AlarmSourceKey& key, AlarmInfo& out)
{
    AlarmVideoSplit& split = out.videoSplit;
    AlarmSchemeQuery counts =
        PrepareFilled(SchemeStatements::SelectSplitCounts, {key.strEventSource, key.AlarmType});
    if (!counts)
        return -1;
    if (NextRow(counts)) {
        split.SplitRow = counts.Int(0);
        split.SplitCloum = counts.Int(1);
        split.SplitCount = counts.Int(2);
    }

    const int64_t cells = static_cast<int64_t>(split.SplitRow) * split.SplitCloum;
    AlarmSchemeQuery query =
        PrepareFilled(SchemeStatements::SelectSplitCells, {key.strEventSource, key.AlarmType, cells});
    if (!query)
        return -1;
    while (NextRow(query)) {
        const int64_t window = query.Int64(0);
        if (window < 0 || window >= AlarmSplitCells::CellCount)
            continue;
        AlarmSplitWindow cell;
        cell.bEnable = query.Flag(1);
        cell.iCombine = query.Int(2);
        cell.X1 = query.Int(3);
        cell.X2 = query.Int(4);
        cell.Y1 = query.Int(5);
        cell.Y2 = query.Int(6);
        // Looked at before it is written: writing ends the sharing of all 64.
        if (!(qAsConst(split.cells)[static_cast<int>(window)] == cell))
            split.cells[static_cast<int>(window)] = cell;
    }
    return 0;
}

int32_t AlarmSchemeDatabaseParser::ReadVideo(const AlarmSourceKey& key, AlarmInfo& out)
{
    QMap<int32_t, AlarmLinkVideo>& links = out.videoSplit.videoLinks;
    links.clear();
    ReadSplit(key, out);
    AlarmSchemeQuery query = PrepareFilled(SchemeStatements::SelectVideo,
                                           {key.strEventSource, key.AlarmType, out.videoSplit.SplitCount});
    if (!query)
        return -1;
    while (NextRow(query)) {
        const int32_t window = query.Int(1);
        AlarmLinkVideo& link = links[window];
        link.bOpen = query.Flag(2);
        link.bRecord = query.Flag(3);
        link.Preposition = query.Int(4);
        link.StreamType = query.Int(5);
        link.Time = query.Int(6);
        if (const std::optional<QString> text = LinkText(SchemeStatements::SelectVideoText, query.Int64(0))) {
            link.strLinkDevID = *text;
        } else {
            links.remove(window);
        }
    }
    return 0;
}

void AlarmSchemeDatabaseParser::ReadScheme(const AlarmSourceKey& key, AlarmInfo& info)
{
    bool base = true;
    bool time = false;
    ReadOpen(key, info, &base);
    ReadDefenceTime(key, info, &time);
    // A base row without any time row is a week that is never armed; a key alone is a fresh scheme.
    if (!base && !time)
        info.defenceTime = AlarmWeek();
    ReadNotify(key, info);
    ReadAlarmOut(key, info);
    ReadDoor(key, info);
    ReadVideo(key, info);
}

int32_t AlarmSchemeDatabaseParser::ReadSchemes(AlarmInfoMap& map)
{
    const std::optional<QList<StoredScheme>> schemes = ReadStoredSchemes();
    if (!schemes)
        return -1;
    AlarmSchemeTextPool pool;
    for (const StoredScheme& scheme : *schemes) {
        if (map.contains(scheme.key))
            continue;
        AlarmSourceKey key = scheme.key;
        pool.Intern(key.strEventSource);
        AlarmInfo& info = *map.insert(key, AlarmInfo());
        ReadScheme(key, info);
        pool.Intern(info);
    }
    return 0;
}

int32_t AlarmSchemeDatabaseParser::ReadAll(AlarmInfoMap* pMap)
{
    if (m_pDatabase == nullptr || pMap == nullptr)
        return -1;
    BeginTransaction();
    pMap->clear();
    bool read = false;
    if (m_fileCheck->IsKnown(m_pDatabase)) {
        const auto literally = [this](const AlarmSourceKey& key, AlarmInfo& info) { ReadScheme(key, info); };
        read = AlarmSchemeLoadRoad(m_pDatabase, *pMap).Load(literally);
    }
    int32_t status = 0;
    if (!read) {
        // Statement by statement, so that what can be read of a damaged file is read.
        pMap->clear();
        status = ReadSchemes(*pMap);
    }
    EndTransaction();
    return status;
}
