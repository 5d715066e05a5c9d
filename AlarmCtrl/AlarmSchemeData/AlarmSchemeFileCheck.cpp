#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeFileCheck.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeQuery.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"

#include <QByteArray>
#include <QList>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <limits>

namespace {

struct TableShape
{
    const char* szName;
    const char* szColumns; ///< "name:type" in lower-case types; the first is the primary key
    const char* szForeign; ///< columns that refer to a column of the same name in the table of that name
};

/// The one column that came later, the last of its table.
constexpr char MailTable[] = "AlarmBaseInfo";
constexpr char MailColumn[] = " bSendEmail:bit";

constexpr std::array<TableShape, 10> Tables{{
    {"AlarmUniqueID", "AlarmUniqueID:integer strEventSource:varchar[(1000)] AlarmType:integer", ""},
    {"AlarmBaseInfo",
     "id:integer AlarmUniqueID:integer bOpen:bit bOpenSound:bit bEmapTwinkle:bit SplitRow:integer "
     "SplitCloum:integer SplitCount:integer bSendEmail:bit",
     "AlarmUniqueID"},
    {"AlarmSplitInfo",
     "id:integer AlarmUniqueID:integer windowID:integer bEnable:bit iCombine:integer X1:integer X2:integer "
     "Y1:integer Y2:integer",
     "AlarmUniqueID"},
    {"AlarmLinkVideoID", "AlarmLinkVideoID:integer strLinkDevID:varchar[(1000)]", ""},
    {"AlarmLinkVideoInfo",
     "id:integer AlarmUniqueID:integer AlarmLinkVideoID:integer WindowID:integer bOpen:bit bRecord:bit "
     "Preposition:integer StreamType:integer Time:integer",
     "AlarmLinkVideoID AlarmUniqueID"},
    {"AlarmLinkAlarmOutID", "AlarmLinkAlarmOutID:integer strLinkAlarmID:varchar[(1000)]", ""},
    {"AlarmLinkDoorInfo", "id:integer AlarmUniqueID:integer AlarmLinkDoorID:integer bAlwaysOpen:bit",
     "AlarmUniqueID"},
    {"AlarmLinkAlarmOutInfo",
     "id:integer AlarmUniqueID:integer AlarmLinkAlarmOutID:integer bAutoOpen:bit Time:integer",
     "AlarmLinkAlarmOutID AlarmUniqueID"},
    {"BaseInfo", "id:integer Version:varchar[(256)] ModifyTime:varchar[(256)]", ""},
    {"AlarmDefenceTimeInfo", "id:integer AlarmUniqueID:integer Day:integer Begin:integer End:intger",
     "AlarmUniqueID"},
}};

struct IndexShape
{
    const char* szName;
    const char* szTable;
    const char* szColumns;
    const char* szCreate;
};

constexpr std::array<IndexShape, 9> Indexes{{
    {SchemeStatements::IndexOfKey, "AlarmUniqueID", "strEventSource AlarmType",
     SchemeStatements::CreateIndexOfKey},
    {SchemeStatements::IndexOfVideoText, "AlarmLinkVideoID", "strLinkDevID",
     SchemeStatements::CreateIndexOfVideoText},
    {SchemeStatements::IndexOfAlarmOutText, "AlarmLinkAlarmOutID", "strLinkAlarmID",
     SchemeStatements::CreateIndexOfAlarmOutText},
    {SchemeStatements::IndexOfBase, "AlarmBaseInfo", "AlarmUniqueID", SchemeStatements::CreateIndexOfBase},
    {SchemeStatements::IndexOfSplit, "AlarmSplitInfo", "AlarmUniqueID", SchemeStatements::CreateIndexOfSplit},
    {SchemeStatements::IndexOfVideo, "AlarmLinkVideoInfo", "AlarmUniqueID",
     SchemeStatements::CreateIndexOfVideo},
    {SchemeStatements::IndexOfDoor, "AlarmLinkDoorInfo", "AlarmUniqueID",
     SchemeStatements::CreateIndexOfDoor},
    {SchemeStatements::IndexOfAlarmOut, "AlarmLinkAlarmOutInfo", "AlarmUniqueID",
     SchemeStatements::CreateIndexOfAlarmOut},
    {SchemeStatements::IndexOfDefenceTime, "AlarmDefenceTimeInfo", "AlarmUniqueID",
     SchemeStatements::CreateIndexOfDefenceTime},
}};

/// The first row of a query.
class FirstRow
{
public:
    FirstRow(sqlite3* pDatabase, const QByteArray& sql)
    {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(pDatabase, sql.constData(), sql.size(), &statement, nullptr);
        m_query = AlarmSchemeQuery(statement); // null when it did not compile
        m_bRow = m_query && m_query.Step() == SQLITE_ROW;
    }
    explicit operator bool() const { return m_bRow; }
    const AlarmSchemeQuery& operator*() const { return m_query; }
    const AlarmSchemeQuery* operator->() const { return &m_query; }

private:
    AlarmSchemeQuery m_query;
    bool m_bRow = false;
};

bool IsNumber(sqlite3* pDatabase, const QByteArray& sql, int64_t iNumber)
{
    const FirstRow row(pDatabase, sql);
    return row && !row->IsNull(0) && row->Int64(0) == iNumber;
}

bool IsText(sqlite3* pDatabase, const QByteArray& sql, const QByteArray& text)
{
    const FirstRow row(pDatabase, sql);
    return row && row->Text(0) == QLatin1String(text);
}

/// "'AlarmUniqueID','AlarmBaseInfo',..."
QByteArray TableList()
{
    QByteArray list;
    for (const TableShape& table : Tables)
        list += QByteArray(list.isEmpty() ? "'" : ",'") + table.szName + '\'';
    return list;
}

bool HasShape(sqlite3* pDatabase, const TableShape& table, bool bMail = true)
{
    QByteArray columns(table.szColumns);
    if (!bMail && qstrcmp(table.szName, MailTable) == 0)
        columns.chop(static_cast<int>(qstrlen(MailColumn)));
    columns.replace(' ', ":00 ");
    columns += ":00";
    columns.replace(columns.indexOf(":00"), 3, ":11");
    QByteArray foreign;
    const QList<QByteArray> foreignColumns = QByteArray(table.szForeign).split(' ');
    for (const QByteArray& column : foreignColumns) {
        if (!column.isEmpty())
            foreign += column + ':' + column + ':' + column + ":CASCADE:CASCADE ";
    }
    const QByteArray name(table.szName);
    // Columns with their type, "not null" and place in the primary key; ordinary ones without a default.
    return IsText(pDatabase,
                  "select group_concat(name || ':' || lower(type) || ':' || \"notnull\" || pk || "
                  "case when hidden = 0 and dflt_value is null then '' else 'x' end, ' ') "
                  "from (select * from pragma_table_xinfo('" +
                      name + "', 'main') order by cid)",
                  columns) &&
           IsText(
               pDatabase,
               "select coalesce(group_concat(\"table\" || ':' || \"from\" || ':' || coalesce(\"to\", '') || "
               "':' || on_update || ':' || on_delete || ' ', ''), '') from (select * from "
               "pragma_foreign_key_list('" +
                   name + "', 'main') order by \"from\")",
               foreign);
}

bool HasShape(sqlite3* pDatabase, const IndexShape& index)
{
    QByteArray columns(index.szColumns);
    columns.replace(' ', ":0:BINARY:1 ");
    columns += ":0:BINARY:1 -:0:BINARY:0"; // the row's id ends every index
    const QByteArray name(index.szName);
    const QByteArray table(index.szTable);
    return IsText(pDatabase,
                  "select group_concat(coalesce(name, '-') || ':' || \"desc\" || ':' || coll || ':' || key, "
                  "' ') from (select * from pragma_index_xinfo('" +
                      name + "', 'main') order by seqno)",
                  columns) &&
           IsNumber(pDatabase,
                    "select \"unique\" + partial from pragma_index_list('" + table +
                        "', 'main') where name = '" + name + "'",
                    0);
}

bool HasOnlyOurObjects(sqlite3* pDatabase)
{
    QByteArray indexes;
    for (const IndexShape& index : Indexes)
        indexes += QByteArray(indexes.isEmpty() ? "'" : ",'") + index.szName + '\'';
    const QByteArray tables = TableList();
    // Words that change what a statement does to a table and that the table's columns do not show.
    QByteArray words;
    for (const char* word :
         {"collate", "check", "default", "conflict", "generated", "strict", "without", "defer", "match"})
        words += QByteArray(" or sql like '%") + word + "%'";
    return IsNumber(pDatabase,
                    "select count(*) from main.sqlite_master where type in ('trigger', 'view') or name like "
                    "'sqlite\\_stat%' escape '\\' or (type = 'index' and tbl_name in (" +
                        tables + ") and name not in (" + indexes + ")) or (type = 'table' and name in (" +
                        tables + ") and (sql not like '%autoincrement%'" + words + "))",
                    0) &&
           IsNumber(pDatabase,
                    "select count(*) from main.sqlite_master where type = 'table' and name in (" + tables +
                        ")",
                    static_cast<int64_t>(Tables.size())) &&
           // Rows of others that go, or refuse to go, together with ours.
           IsNumber(pDatabase,
                    "select count(*) from main.sqlite_master m, pragma_foreign_key_list(m.name) f "
                    "where m.type = 'table' and m.name not in (" +
                        tables + ") and f.\"table\" collate nocase in (" + tables + ")",
                    0);
}

bool HasOurTables(sqlite3* pDatabase, bool bMail)
{
    return std::all_of(Tables.cbegin(), Tables.cend(), [pDatabase, bMail](const TableShape& table) {
        return HasShape(pDatabase, table, bMail);
    });
}

bool IsIndexThere(sqlite3* pDatabase, const IndexShape& index)
{
    return IsNumber(
        pDatabase, QByteArray("select count(*) from main.sqlite_master where name = '") + index.szName + '\'',
        1);
}

bool IsSchemaKnown(sqlite3* pDatabase)
{
    return IsText(pDatabase, "PRAGMA main.encoding", "UTF-8") && HasOnlyOurObjects(pDatabase) &&
           HasOurTables(pDatabase, true) &&
           std::all_of(Indexes.cbegin(), Indexes.cend(),
                       [pDatabase](const IndexShape& index) { return HasShape(pDatabase, index); });
}

/// A table with rows has one counter, not below the greatest id: otherwise even an insertion that adds
/// nothing would write one. No id goes beyond 32 bits.
bool HasSoundCounter(sqlite3* pDatabase, const TableShape& table)
{
    const QByteArray name(table.szName);
    const QByteArray id = QByteArray(table.szColumns).split(':').constFirst();
    const FirstRow row(pDatabase, "select (select max(" + id + ") from " + name +
                                      "), count(*), sum(typeof(seq) = 'integer'), max(seq) from "
                                      "main.sqlite_sequence where name = '" +
                                      name + '\'');
    if (!row)
        return false;
    const int64_t counters = row->Int64(1);
    const int64_t highest = row->Int64(3);
    if (counters == 0)
        return row->IsNull(0);
    return counters == 1 && row->Int64(2) == 1 && highest >= 0 &&
           highest <= std::numeric_limits<int32_t>::max() && (row->IsNull(0) || row->Int64(0) <= highest);
}

} // namespace

bool AlarmSchemeFileCheck::IsKnown(sqlite3* pDatabase)
{
    const FirstRow version(pDatabase, "PRAGMA main.schema_version");
    if (!version)
        return false;
    if (m_iSchemaVersion != version->Int64(0)) {
        m_iSchemaVersion = version->Int64(0);
        m_bSchemaKnown = IsSchemaKnown(pDatabase);
    }
    return m_bSchemaKnown && IsNumber(pDatabase, "PRAGMA foreign_keys", 1) &&
           IsNumber(pDatabase, "PRAGMA reverse_unordered_selects", 0) &&
           IsNumber(pDatabase, "select count(*) from sqlite_temp_master", 0);
}

AlarmSchemeFileCheck::Columns AlarmSchemeFileCheck::ReadableColumns(sqlite3* pDatabase)
{
    const auto isMissingOrOurs = [pDatabase](const IndexShape& index) {
        return !IsIndexThere(pDatabase, index) || HasShape(pDatabase, index);
    };
    if (!IsText(pDatabase, "PRAGMA main.encoding", "UTF-8") || !HasOnlyOurObjects(pDatabase) ||
        !std::all_of(Indexes.cbegin(), Indexes.cend(), isMissingOrOurs))
        return Columns::Unknown;
    if (HasOurTables(pDatabase, true))
        return Columns::All;
    return HasOurTables(pDatabase, false) ? Columns::AllButMail : Columns::Unknown;
}

bool AlarmSchemeFileCheck::IsKnownForWriting(sqlite3* pDatabase)
{
    return IsKnown(pDatabase) &&
           std::all_of(Tables.cbegin(), Tables.cend(),
                       [pDatabase](const TableShape& table) { return HasSoundCounter(pDatabase, table); });
}

void AlarmSchemeFileCheck::AddMissingIndexes(sqlite3* pDatabase)
{
    const auto run = [pDatabase](const char* szStatement) {
        return sqlite3_exec(pDatabase, szStatement, nullptr, nullptr, nullptr) == SQLITE_OK;
    };
    const auto isThere = [pDatabase](const IndexShape& index) { return IsIndexThere(pDatabase, index); };
    // Within somebody's transaction they are left for the next opening.
    if (sqlite3_get_autocommit(pDatabase) == 0 || std::all_of(Indexes.cbegin(), Indexes.cend(), isThere) ||
        !run("BEGIN IMMEDIATE"))
        return;
    for (const IndexShape& index : Indexes) {
        run(index.szCreate);
        if (sqlite3_get_autocommit(pDatabase) != 0)
            return; // a full disk ends the transaction
    }
    if (!run("COMMIT"))
        run("ROLLBACK");
}

bool AlarmSchemeFileCheck::NeedsUpgrade(sqlite3* pDatabase)
{
    if (IsNumber(pDatabase, "select count(*) from main.sqlite_master where type = 'table'", 0))
        return false;
    const QByteArray ours = "select count(*) from main.sqlite_master where type = 'table' and "
                            "name collate nocase in (" +
                            TableList() + ')';
    return !IsNumber(pDatabase, ours, static_cast<int64_t>(Tables.size())) ||
           !IsNumber(pDatabase,
                     "select count(*) from pragma_table_info('AlarmBaseInfo', 'main') "
                     "where name collate nocase = 'bSendEmail'",
                     1) ||
           !IsNumber(pDatabase,
                     QByteArray("select count(*) from main.BaseInfo where Version = '") +
                         SchemeStatements::Version + '\'',
                     1) ||
           !std::all_of(Indexes.cbegin(), Indexes.cend(),
                        [pDatabase](const IndexShape& index) { return IsIndexThere(pDatabase, index); });
}
