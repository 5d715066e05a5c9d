#include "tests/AlarmSchemeData/LiteralStore.h"

#include <sqlite3.h>

#include <functional>
#include <vector>

using std::string;
using std::to_string;

namespace {

string Quoted(const QString& text)
{
    return "\"" + text.toStdString() + "\"";
}

string Bit(bool flag)
{
    return flag ? "1" : "0";
}

string IsKey(const AlarmSourceKey& key)
{
    return "strEventSource = " + Quoted(key.strEventSource) + " and AlarmType = " + to_string(key.AlarmType);
}

string OfKey(const AlarmSourceKey& key)
{
    return " where AlarmUniqueID is not null and AlarmUniqueID = (select AlarmUniqueID from AlarmUniqueID "
           "where " +
           IsKey(key) + ") ";
}

void EachRow(sqlite3* db, const string& sql, const std::function<void(sqlite3_stmt*)>& use)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK) {
        while (sqlite3_step(statement) == SQLITE_ROW)
            use(statement);
    }
    sqlite3_finalize(statement);
}

QString TextOf(sqlite3_stmt* statement, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
}

} // namespace

LiteralStore::LiteralStore(sqlite3* pDatabase)
    : m_db(pDatabase)
{
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_DQS_DML, 1, nullptr);
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_DQS_DDL, 1, nullptr);
    const string id = "id integer primary key autoincrement NOT NULL, ";
    const string ofScheme =
        "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade "
        "on update cascade";
    Run("PRAGMA foreign_keys = ON;");
    Run("Begin");
    Run("create table if not exists AlarmUniqueID(AlarmUniqueID integer primary key autoincrement NOT NULL, "
        "strEventSource VARCHAR[(1000)], AlarmType integer)");
    Run("create table if not exists AlarmBaseInfo(" + id +
        "AlarmUniqueID integer, bOpen bit, bOpenSound bit, bEmapTwinkle bit, SplitRow integer, "
        "SplitCloum integer, SplitCount integer, " +
        ofScheme + ")");
    Run("alter table AlarmBaseInfo add bSendEmail bit");
    Run("create table if not exists AlarmSplitInfo(" + id +
        "AlarmUniqueID integer, windowID integer, bEnable bit, iCombine integer, X1 integer, X2 integer, "
        "Y1 integer, Y2 integer, " +
        ofScheme + ")");
    Run("create table if not exists AlarmLinkVideoID(AlarmLinkVideoID integer primary key autoincrement NOT "
        "NULL, strLinkDevID VARCHAR[(1000)])");
    Run("create table if not exists AlarmLinkVideoInfo(" + id +
        "AlarmUniqueID integer, AlarmLinkVideoID integer, WindowID integer, bOpen bit, bRecord bit, "
        "Preposition integer, StreamType integer, Time integer, " +
        ofScheme +
        ", foreign key(AlarmLinkVideoID) references AlarmLinkVideoID(AlarmLinkVideoID) on delete cascade on "
        "update cascade)");
    Run("create table if not exists AlarmLinkAlarmOutID(AlarmLinkAlarmOutID integer primary key "
        "autoincrement "
        "NOT NULL, strLinkAlarmID VARCHAR[(1000)])");
    Run("create table if not exists AlarmLinkDoorInfo(" + id +
        "AlarmUniqueID integer, AlarmLinkDoorID integer, bAlwaysOpen bit, " + ofScheme + ")");
    Run("create table if not exists AlarmLinkAlarmOutInfo(" + id +
        "AlarmUniqueID integer, AlarmLinkAlarmOutID integer, bAutoOpen bit, Time integer, " + ofScheme +
        ", foreign key(AlarmLinkAlarmOutID) references AlarmLinkAlarmOutID(AlarmLinkAlarmOutID) on delete "
        "cascade on update cascade)");
    Run("create table if not exists BaseInfo(" + id + "Version VARCHAR[(256)], ModifyTime VARCHAR[(256)])");
    Run("insert into baseinfo(id) select 1 where not exists(select * from baseinfo where 1 = 1);");
    Run("update BaseInfo set Version = \"V2.01.0\";");
    Run("create table if not exists AlarmDefenceTimeInfo(" + id +
        "AlarmUniqueID integer, Day integer, Begin integer, End intger, " + ofScheme + ");");
    Run("COMMIT");
}

// The statements are written as they read, not as they are built fastest.
// NOLINTBEGIN(performance-inefficient-string-concatenation)

void LiteralStore::Run(const string& sql)
{
    sqlite3_exec(m_db, sql.c_str(), nullptr, nullptr, nullptr);
}

long long LiteralStore::FirstNumber(const string& sql, bool& found)
{
    long long number = -1;
    found = false;
    EachRow(m_db, sql, [&](sqlite3_stmt* row) {
        if (!found)
            number = sqlite3_column_int64(row, 0);
        found = true;
    });
    return number;
}

void LiteralStore::Disable(const AlarmInfoMap& map)
{
    string ids;
    EachRow(m_db, "select * from AlarmUniqueID", [&](sqlite3_stmt* row) {
        if (sqlite3_column_type(row, 1) == SQLITE_NULL)
            return;
        if (map.contains(AlarmSourceKey{TextOf(row, 1), sqlite3_column_int(row, 2)}))
            return;
        ids += (ids.empty() ? "" : " ,") + to_string(sqlite3_column_int64(row, 0));
    });
    if (!ids.empty())
        Run("update AlarmBaseInfo set bOpen = 0 where AlarmUniqueID in (" + ids + ");");
}

void LiteralStore::SaveAll(const AlarmInfoMap& map)
{
    Run("Begin");
    Disable(map);
    SaveEach(map);
    Run("COMMIT");
}

void LiteralStore::SaveSome(const AlarmInfoMap& map)
{
    Run("Begin");
    SaveEach(map);
    Run("COMMIT");
}

void LiteralStore::SaveEach(const AlarmInfoMap& map)
{
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        SaveOne(entry.key(), entry.value());
}

string LiteralStore::Ensure(const AlarmSourceKey& key)
{
    Run("insert into AlarmUniqueID(strEventSource, AlarmType) select " + Quoted(key.strEventSource) + ", " +
        to_string(key.AlarmType) + " where not exists(select * from AlarmUniqueID where " + IsKey(key) +
        ");");
    bool found = false;
    const long long id = FirstNumber("select * from AlarmUniqueID where " + IsKey(key) + ";", found);
    return found ? to_string(id) : string();
}

void LiteralStore::EnsureBase(const string& id)
{
    Run("insert into AlarmBaseInfo(AlarmUniqueID) select " + id +
        " where not exists(select * from AlarmBaseInfo where AlarmUniqueID = " + id + ");");
}

void LiteralStore::SaveOne(const AlarmSourceKey& key, const AlarmInfo& info)
{
    // Every part makes sure of the key anew.
    if (const string id = Ensure(key); !id.empty()) {
        EnsureBase(id);
        Run("update AlarmBaseInfo set bOpen = " + Bit(info.bOpen) + " where AlarmUniqueID = " + id + ";");
    }
    if (const string id = Ensure(key); !id.empty()) {
        EnsureBase(id);
        Run("update AlarmBaseInfo set bOpenSound = " + Bit(info.bOpenSound) +
            ", bEmapTwinkle = " + Bit(info.bEmapTwinkle) + ", bSendEmail = " + Bit(info.bSendEmail) +
            " where AlarmUniqueID = " + id + ";");
    }
    if (const string id = Ensure(key); !id.empty())
        SaveVideo(id, info.videoSplit);
    if (const string id = Ensure(key); !id.empty())
        SaveDoors(id, info.listDoor);
    if (const string id = Ensure(key); !id.empty())
        SaveAlarmOut(id, info.listAlarmOut);
    if (const string id = Ensure(key); !id.empty()) {
        Run("delete from AlarmDefenceTimeInfo where AlarmUniqueID = " + id + ";");
        for (int day = 0; day < 7; ++day) {
            for (const AlarmTimeRegion& region : info.defenceTime[day]) {
                Run("insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(" + id + "," +
                    to_string(day + 1) + "," + to_string(region.Begin) + "," + to_string(region.End) + ");");
            }
        }
    }
}

void LiteralStore::SaveDoors(const string& id, const QList<AlarmLinkDoor>& links)
{
    const string ofId = " where AlarmUniqueID = " + id;
    Run("delete from AlarmLinkDoorInfo" + ofId + ";");
    for (const AlarmLinkDoor& link : links) {
        const string door = to_string(link.strDoorID.toLongLong());
        const string row = ofId + " and AlarmLinkDoorID = " + door;
        Run("insert into AlarmLinkDoorInfo(AlarmUniqueID, AlarmLinkDoorID) select " + id + ", " + door +
            " where not exists(select * from AlarmLinkDoorInfo" + row + ");");
        Run("update AlarmLinkDoorInfo set bAlwaysOpen = " + Bit(link.bAlwaysOpen) + row + ";");
    }
}

void LiteralStore::SaveAlarmOut(const string& id, const QList<AlarmLinkAlarmOut>& links)
{
    const string ofId = " where AlarmUniqueID = " + id;
    bool found = false;
    Run("delete from AlarmLinkAlarmOutInfo" + ofId + ";");
    for (const AlarmLinkAlarmOut& link : links) {
        const string text = Quoted(link.strLinkAlarmID);
        Run("insert into AlarmLinkAlarmOutID(strLinkAlarmID) select " + text +
            " where not exists(select * from AlarmLinkAlarmOutID where strLinkAlarmID = " + text + ");");
        const string output = to_string(
            FirstNumber("select * from AlarmLinkAlarmOutID where strLinkAlarmID = " + text + ";", found));
        if (!found)
            continue;
        const string row = ofId + " and AlarmLinkAlarmOutID = " + output;
        Run("insert into AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID) select " + id + ", " +
            output + " where not exists(select * from AlarmLinkAlarmOutInfo" + row + ");");
        Run("update AlarmLinkAlarmOutInfo set bAutoOpen = " + Bit(link.bAutoOpen) +
            ", Time = " + to_string(link.Time) + row + ";");
    }
}

void LiteralStore::SaveVideo(const string& id, const AlarmVideoSplit& split)
{
    const string ofId = " where AlarmUniqueID = " + id;
    bool found = false;
    Run("delete from AlarmLinkVideoInfo" + ofId + ";");
    for (auto entry = split.videoLinks.cbegin(); entry != split.videoLinks.cend(); ++entry) {
        const AlarmLinkVideo& link = entry.value();
        const string text = Quoted(link.strLinkDevID);
        Run("insert into AlarmLinkVideoID(strLinkDevID) select " + text +
            " where not exists(select * from AlarmLinkVideoID where strLinkDevID = " + text + ");");
        const string video = to_string(
            FirstNumber("select * from AlarmLinkVideoID where strLinkDevID = " + text + ";", found));
        if (!found)
            continue;
        const string window = to_string(entry.key());
        const string row = ofId + " and WindowID = " + window;
        Run("insert into AlarmLinkVideoInfo(AlarmUniqueID, WindowID) select " + id + ", " + window +
            " where not exists(select * from AlarmLinkVideoInfo" + row + ");");
        Run("update AlarmLinkVideoInfo set AlarmLinkVideoID = " + video + ", bOpen = " + Bit(link.bOpen) +
            ", bRecord = " + Bit(link.bRecord) + ", Preposition = " + to_string(link.Preposition) +
            ", StreamType = " + to_string(link.StreamType) + ", Time = " + to_string(link.Time) + row + ";");
    }

    EnsureBase(id);
    Run("update AlarmBaseInfo set SplitRow = " + to_string(split.SplitRow) + ", SplitCloum = " +
        to_string(split.SplitCloum) + ", SplitCount = " + to_string(split.SplitCount) + ofId + ";");
    const long long cells = static_cast<long long>(split.SplitRow) * split.SplitCloum;
    for (int window = 0; window < cells && window < 64; ++window) {
        const AlarmSplitWindow& cell = split.cells[window];
        const string row = ofId + " and windowID = " + to_string(window);
        Run("insert into AlarmSplitInfo(AlarmUniqueID, windowID) select " + id + ", " + to_string(window) +
            " where not exists(select * from AlarmSplitInfo" + row + ");");
        Run("update AlarmSplitInfo set bEnable = " + Bit(cell.bEnable) + ", iCombine = " +
            to_string(cell.iCombine) + ", X1 = " + to_string(cell.X1) + ", X2 = " + to_string(cell.X2) +
            ", Y1 = " + to_string(cell.Y1) + ", Y2 = " + to_string(cell.Y2) + row + ";");
    }
}

AlarmInfoMap LiteralStore::ReadAll()
{
    std::vector<AlarmSourceKey> keys;
    EachRow(m_db, "select * from AlarmUniqueID", [&](sqlite3_stmt* row) {
        if (sqlite3_column_type(row, 1) != SQLITE_NULL)
            keys.push_back(AlarmSourceKey{TextOf(row, 1), sqlite3_column_int(row, 2)});
    });
    AlarmInfoMap map;
    for (const AlarmSourceKey& key : keys) {
        if (!map.contains(key))
            map.insert(key, ReadOne(key));
    }
    return map;
}

AlarmInfo LiteralStore::ReadOne(const AlarmSourceKey& key)
{
    AlarmInfo info;
    bool base = false;
    EachRow(m_db,
            "select bOpen, bOpenSound, bEmapTwinkle, bSendEmail, SplitRow, SplitCloum, SplitCount "
            "from AlarmBaseInfo" +
                OfKey(key),
            [&](sqlite3_stmt* row) {
                if (base)
                    return; // the first row counts
                base = true;
                info.bOpen = sqlite3_column_int(row, 0) != 0;
                info.bOpenSound = sqlite3_column_int(row, 1) != 0;
                info.bEmapTwinkle = sqlite3_column_int(row, 2) != 0;
                info.bSendEmail = sqlite3_column_int(row, 3) != 0;
                info.videoSplit.SplitRow = sqlite3_column_int(row, 4);
                info.videoSplit.SplitCloum = sqlite3_column_int(row, 5);
                info.videoSplit.SplitCount = sqlite3_column_int(row, 6);
            });

    AlarmWeek week;
    for (int day = 0; day < 7; ++day)
        week[day].clear();
    bool time = false;
    EachRow(m_db, "select Day,Begin,End from AlarmDefenceTimeInfo" + OfKey(key), [&](sqlite3_stmt* row) {
        time = true;
        const sqlite3_int64 day = sqlite3_column_int64(row, 0);
        const sqlite3_int64 begin = sqlite3_column_int64(row, 1);
        const sqlite3_int64 end = sqlite3_column_int64(row, 2);
        if (day >= 1 && day <= 7 && begin >= 0 && end >= 0 && begin <= end && end <= 2147483647) {
            week[static_cast<int>(day) - 1].append(
                AlarmTimeRegion{static_cast<int32_t>(begin), static_cast<int32_t>(end)});
        }
    });
    if (base || time)
        info.defenceTime = week;

    EachRow(m_db, "select AlarmLinkAlarmOutID,bAutoOpen,Time from AlarmLinkAlarmOutInfo" + OfKey(key),
            [&](sqlite3_stmt* row) {
                EachRow(m_db,
                        "select strLinkAlarmID from AlarmLinkAlarmOutID where AlarmLinkAlarmOutID = " +
                            to_string(sqlite3_column_int64(row, 0)),
                        [&](sqlite3_stmt* output) {
                            info.listAlarmOut.append(AlarmLinkAlarmOut{TextOf(output, 0),
                                                                       sqlite3_column_int(row, 1) != 0,
                                                                       sqlite3_column_int(row, 2)});
                        });
            });
    EachRow(m_db, "select AlarmLinkDoorID,bAlwaysOpen from AlarmLinkDoorInfo" + OfKey(key),
            [&](sqlite3_stmt* row) {
                info.listDoor.append(AlarmLinkDoor{TextOf(row, 0), sqlite3_column_int(row, 1) != 0});
            });

    const long long cells = static_cast<long long>(info.videoSplit.SplitRow) * info.videoSplit.SplitCloum;
    EachRow(m_db,
            "select windowID, bEnable, iCombine, X1, X2, Y1, Y2 from AlarmSplitInfo" + OfKey(key) +
                "and windowID >=0 and windowID < " + to_string(cells) + " and windowID < 64",
            [&](sqlite3_stmt* row) {
                AlarmSplitWindow& cell = info.videoSplit.cells[sqlite3_column_int(row, 0)];
                cell.bEnable = sqlite3_column_int(row, 1) != 0;
                cell.iCombine = sqlite3_column_int(row, 2);
                cell.X1 = sqlite3_column_int(row, 3);
                cell.X2 = sqlite3_column_int(row, 4);
                cell.Y1 = sqlite3_column_int(row, 5);
                cell.Y2 = sqlite3_column_int(row, 6);
            });
    EachRow(m_db,
            "select AlarmLinkVideoID, WindowID, bOpen, bRecord, Preposition, StreamType, Time from "
            "AlarmLinkVideoInfo" +
                OfKey(key) + "and WindowID >= 0 and WindowID < " + to_string(info.videoSplit.SplitCount),
            [&](sqlite3_stmt* row) {
                const int window = sqlite3_column_int(row, 1);
                AlarmLinkVideo& link = info.videoSplit.videoLinks[window];
                link.bOpen = sqlite3_column_int(row, 2) != 0;
                link.bRecord = sqlite3_column_int(row, 3) != 0;
                link.Preposition = sqlite3_column_int(row, 4);
                link.StreamType = sqlite3_column_int(row, 5);
                link.Time = sqlite3_column_int(row, 6);
                bool found = false;
                EachRow(m_db,
                        "select strLinkDevID from AlarmLinkVideoID where AlarmLinkVideoID = " +
                            to_string(sqlite3_column_int64(row, 0)),
                        [&](sqlite3_stmt* video) {
                            found = true;
                            link.strLinkDevID = TextOf(video, 0);
                        });
                if (!found)
                    info.videoSplit.videoLinks.remove(window);
            });
    return info;
}

// NOLINTEND(performance-inefficient-string-concatenation)
