#pragma once

/// Every statement text of the store, named by intent. "%1" to "%8" are filled by FillStatement; texts stand
/// between double quotes. The schema's type words (the bracketed lengths, "intger") and the blanks before the
/// closing semicolons are part of the stored format and of the statements as other tools know them.
namespace SchemeStatements {

// Connection and transactions

inline constexpr char ForeignKeysOn[] = "PRAGMA foreign_keys = ON;";
inline constexpr char CacheSize[] = "PRAGMA cache_size=20000;";
inline constexpr char Begin[] = "Begin";
inline constexpr char Commit[] = "COMMIT";
inline constexpr char RollBack[] = "rollback";

// Schema, in the order of execution. Tabs are layout only and are removed before execution.

inline constexpr char CreateUniqueId[] = "create table if not exists AlarmUniqueID(\t"
                                         "AlarmUniqueID integer primary key autoincrement NOT NULL ,\t"
                                         "strEventSource VARCHAR[(1000)],\tAlarmType integer\t)";
inline constexpr char CreateBaseInfo[] =
    "create table if not exists AlarmBaseInfo(\t"
    "id integer primary key autoincrement NOT NULL,\tAlarmUniqueID integer,\tbOpen bit,\tbOpenSound bit,\t"
    "bEmapTwinkle bit,\tSplitRow integer,\tSplitCloum integer,\tSplitCount integer,\t"
    "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade on update "
    "cascade\t)";
inline constexpr char AddMailColumn[] = "alter table AlarmBaseInfo add bSendEmail bit";
inline constexpr char CreateSplitInfo[] =
    "create table if not exists AlarmSplitInfo(\t"
    "id integer primary key autoincrement NOT NULL,\tAlarmUniqueID integer,\twindowID integer,\t"
    "bEnable bit,\tiCombine integer,\tX1 integer,\tX2 integer,\tY1 integer,\tY2 integer,\t"
    "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade on update "
    "cascade\t)";
inline constexpr char CreateVideoId[] = "create table if not exists AlarmLinkVideoID(\t"
                                        "AlarmLinkVideoID integer primary key autoincrement NOT NULL,\t"
                                        "strLinkDevID VARCHAR[(1000)]\t)";
inline constexpr char CreateVideoInfo[] =
    "create table if not exists AlarmLinkVideoInfo(\t"
    "id integer primary key autoincrement NOT NULL,\tAlarmUniqueID integer,\tAlarmLinkVideoID integer,\t"
    "WindowID integer,\tbOpen bit,\tbRecord bit,\tPreposition integer,\tStreamType integer,\tTime integer,\t"
    "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade on update "
    "cascade,\t"
    "foreign key(AlarmLinkVideoID) references AlarmLinkVideoID(AlarmLinkVideoID) on delete cascade on update "
    "cascade\t)";
inline constexpr char CreateAlarmOutId[] = "create table if not exists AlarmLinkAlarmOutID(\t"
                                           "AlarmLinkAlarmOutID integer primary key autoincrement NOT NULL,\t"
                                           "strLinkAlarmID VARCHAR[(1000)]\t)";
inline constexpr char CreateDoorInfo[] =
    "create table if not exists AlarmLinkDoorInfo(\t"
    "id integer primary key autoincrement NOT NULL,\tAlarmUniqueID integer,\tAlarmLinkDoorID integer,\t"
    "bAlwaysOpen bit,\t"
    "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade on update "
    "cascade\t)";
inline constexpr char CreateAlarmOutInfo[] =
    "create table if not exists AlarmLinkAlarmOutInfo(\t"
    "id integer primary key autoincrement NOT NULL,\tAlarmUniqueID integer,\tAlarmLinkAlarmOutID integer,\t"
    "bAutoOpen bit,\tTime integer,\t"
    "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade on update "
    "cascade,\t"
    "foreign key(AlarmLinkAlarmOutID) references AlarmLinkAlarmOutID(AlarmLinkAlarmOutID) on delete cascade "
    "on update cascade\t)";
inline constexpr char CreateFileInfo[] = "create table if not exists BaseInfo(\t"
                                         "id integer primary key autoincrement NOT NULL,\t"
                                         "Version VARCHAR[(256)],\tModifyTime VARCHAR[(256)]\t)";
inline constexpr char EnsureFileInfoRow[] =
    "insert into baseinfo(id) select 1 where not exists(select * from baseinfo where 1 = 1);";
inline constexpr char WriteVersion[] = "update BaseInfo set Version = \"%1\";";
inline constexpr char CreateDefenceTimeInfo[] =
    "create table if not exists AlarmDefenceTimeInfo(\t"
    "id integer primary key autoincrement NOT NULL,\tAlarmUniqueID integer,\tDay integer,\tBegin integer,\t"
    "End intger,\t"
    "foreign key(AlarmUniqueID) references AlarmUniqueID(AlarmUniqueID) on delete cascade on update "
    "cascade\t);";

inline constexpr char Version[] = "V2.01.0";

// Reads of one part of a scheme: %1 event source, %2 event type

inline constexpr char SelectOpen[] =
    "select bOpen from AlarmBaseInfo where  AlarmUniqueID is not null and  AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) ;";
inline constexpr char SelectNotify[] =
    "select bOpenSound,bEmapTwinkle,bSendEmail from AlarmBaseInfo where  AlarmUniqueID is not null and  "
    "AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) ;";
inline constexpr char SelectDefenceTime[] =
    "select Day,Begin,End from AlarmDefenceTimeInfo where  AlarmUniqueID is not null and  AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) ;";
inline constexpr char SelectAlarmOut[] =
    "select AlarmLinkAlarmOutID,bAutoOpen,Time from AlarmLinkAlarmOutInfo where  AlarmUniqueID is not null "
    "and  AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) ;";
inline constexpr char SelectDoor[] =
    "select AlarmLinkDoorID,bAlwaysOpen from AlarmLinkDoorInfo where  AlarmUniqueID is not null and  "
    "AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) ;";
inline constexpr char SelectSplitCounts[] =
    "select SplitRow, SplitCloum, SplitCount from AlarmBaseInfo where  AlarmUniqueID is not null and  "
    "AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2);";
/// %3 rows times columns
inline constexpr char SelectSplitCells[] =
    "select windowID, bEnable, iCombine, X1, X2, Y1, Y2 from AlarmSplitInfo where  AlarmUniqueID is not null "
    "and  AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) "
    "and windowID >=0 and windowID < %3 and windowID < 64;";
/// %3 number of cells in use
inline constexpr char SelectVideo[] =
    "select AlarmLinkVideoID, WindowID, bOpen, bRecord, Preposition, StreamType, Time from "
    "AlarmLinkVideoInfo "
    "where  AlarmUniqueID is not null and  AlarmUniqueID = "
    "(select AlarmUniqueID from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2) "
    "and WindowID >= 0 and WindowID < %3;";

// Keys and ids

inline constexpr char SelectAllSchemes[] = "select * from AlarmUniqueID";
inline constexpr char SelectSchemeId[] =
    "select * from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2;";
inline constexpr char SelectVideoId[] = "select * from AlarmLinkVideoID where strLinkDevID = \"%1\";";
inline constexpr char SelectAlarmOutId[] = "select * from AlarmLinkAlarmOutID where strLinkAlarmID = \"%1\";";
inline constexpr char SelectVideoText[] =
    "select strLinkDevID from AlarmLinkVideoID where AlarmLinkVideoID = %1;";
inline constexpr char SelectAlarmOutText[] =
    "select strLinkAlarmID from AlarmLinkAlarmOutID where AlarmLinkAlarmOutID = %1;";

inline constexpr char EnsureScheme[] =
    "insert into AlarmUniqueID(strEventSource, AlarmType) select \"%1\", %2  "
    "where not exists(select * from AlarmUniqueID where strEventSource = \"%1\" and AlarmType = %2);";
inline constexpr char EnsureVideoId[] =
    "insert into AlarmLinkVideoID(strLinkDevID) select \"%1\"  "
    "where not exists(select * from AlarmLinkVideoID where strLinkDevID = \"%1\");";
inline constexpr char EnsureAlarmOutId[] =
    "insert into AlarmLinkAlarmOutID(strLinkAlarmID) select \"%1\"  "
    "where not exists(select * from AlarmLinkAlarmOutID where strLinkAlarmID = \"%1\");";
inline constexpr char EnsureBaseRow[] =
    "insert into AlarmBaseInfo(AlarmUniqueID) select %1  "
    "where not exists(select * from AlarmBaseInfo where AlarmUniqueID = %1);";

// Writes of one part of a scheme: %1 scheme id

inline constexpr char UpdateOpen[] = "update AlarmBaseInfo set bOpen = %2 where AlarmUniqueID = %1;";
inline constexpr char UpdateNotify[] =
    "update AlarmBaseInfo set bOpenSound = %2, bEmapTwinkle = %3, bSendEmail = %4 where AlarmUniqueID = %1;";
inline constexpr char DeleteAlarmOut[] = "delete from AlarmLinkAlarmOutInfo where AlarmUniqueID = %1;";
inline constexpr char InsertAlarmOut[] =
    "insert into AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID) select %1, %2  "
    "where not exists(select * from AlarmLinkAlarmOutInfo where AlarmUniqueID = %1 and AlarmLinkAlarmOutID = "
    "%2);";
inline constexpr char UpdateAlarmOut[] = "update AlarmLinkAlarmOutInfo set bAutoOpen = %3, Time = %4  "
                                         "where AlarmUniqueID = %1 and AlarmLinkAlarmOutID = %2;";
inline constexpr char DeleteDoor[] = "delete from AlarmLinkDoorInfo where AlarmUniqueID = %1;";
inline constexpr char InsertDoor[] =
    "insert into AlarmLinkDoorInfo(AlarmUniqueID, AlarmLinkDoorID) select %1, %2  "
    "where not exists(select * from AlarmLinkDoorInfo where AlarmUniqueID = %1 and AlarmLinkDoorID = %2);";
inline constexpr char UpdateDoor[] = "update AlarmLinkDoorInfo set bAlwaysOpen = %3  "
                                     "where AlarmUniqueID = %1 and AlarmLinkDoorID = %2;";
inline constexpr char DeleteDefenceTime[] = "delete from AlarmDefenceTimeInfo where AlarmUniqueID = %1;";
inline constexpr char InsertDefenceTime[] =
    "insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(%1,%2,%3,%4);";
inline constexpr char DeleteVideo[] = "delete from AlarmLinkVideoInfo where AlarmUniqueID = %1;";
inline constexpr char InsertVideo[] =
    "insert into AlarmLinkVideoInfo(AlarmUniqueID, WindowID) select %1, %2  "
    "where not exists(select * from AlarmLinkVideoInfo where AlarmUniqueID = %1 and WindowID = %2);";
inline constexpr char UpdateVideo[] =
    "update AlarmLinkVideoInfo set AlarmLinkVideoID = %3, bOpen = %4,  bRecord = %5, Preposition = %6, "
    "StreamType = %7, Time = %8  where AlarmUniqueID = %1 and WindowID = %2;";
inline constexpr char UpdateSplitCounts[] =
    "update AlarmBaseInfo set SplitRow = %2, SplitCloum = %3, SplitCount = %4 where AlarmUniqueID = %1;";
inline constexpr char InsertSplitCell[] =
    "insert into AlarmSplitInfo(AlarmUniqueID, windowID) select %1, %2  "
    "where not exists(select * from AlarmSplitInfo where AlarmUniqueID = %1 and windowID = %2);";
inline constexpr char UpdateSplitCell[] =
    "update AlarmSplitInfo set bEnable = %3, iCombine = %4, X1 = %5, X2 = %6, Y1 = %7, Y2 = %8  "
    "where AlarmUniqueID = %1 and windowID = %2;";

// Writes over many schemes: %1 list of scheme ids

inline constexpr char DeleteSchemes[] = "delete from AlarmUniqueID where AlarmUniqueID in (%1);";
inline constexpr char DisableSchemes[] = "update AlarmBaseInfo set  bOpen = 0  where AlarmUniqueID in (%1);";
/// Between the ids of such a list, the blank before the comma.
inline constexpr char IdSeparator[] = " ,";

/// %1 local date and time
inline constexpr char Stamp[] = "update baseinfo set ModifyTime = \"%1\"";
inline constexpr char StampFormat[] = "yyyy/M/d hh:mm:ss";

// Indexes, named by what they find. Rows of one scheme come out of them in the order of their ids, as out of
// the table itself. There is none on the ids of linked outputs and channels: the rows would come in another
// order, and one output that many schemes share would be gone through for each of them.

inline constexpr char IndexOfKey[] = "AlarmUniqueID_ByKey";
inline constexpr char CreateIndexOfKey[] =
    "create index if not exists AlarmUniqueID_ByKey on AlarmUniqueID(strEventSource, AlarmType)";
inline constexpr char IndexOfVideoText[] = "AlarmLinkVideoID_ByText";
inline constexpr char CreateIndexOfVideoText[] =
    "create index if not exists AlarmLinkVideoID_ByText on AlarmLinkVideoID(strLinkDevID)";
inline constexpr char IndexOfAlarmOutText[] = "AlarmLinkAlarmOutID_ByText";
inline constexpr char CreateIndexOfAlarmOutText[] =
    "create index if not exists AlarmLinkAlarmOutID_ByText on AlarmLinkAlarmOutID(strLinkAlarmID)";
inline constexpr char IndexOfBase[] = "AlarmBaseInfo_ByScheme";
inline constexpr char CreateIndexOfBase[] =
    "create index if not exists AlarmBaseInfo_ByScheme on AlarmBaseInfo(AlarmUniqueID)";
inline constexpr char IndexOfSplit[] = "AlarmSplitInfo_ByScheme";
inline constexpr char CreateIndexOfSplit[] =
    "create index if not exists AlarmSplitInfo_ByScheme on AlarmSplitInfo(AlarmUniqueID)";
inline constexpr char IndexOfVideo[] = "AlarmLinkVideoInfo_ByScheme";
inline constexpr char CreateIndexOfVideo[] =
    "create index if not exists AlarmLinkVideoInfo_ByScheme on AlarmLinkVideoInfo(AlarmUniqueID)";
inline constexpr char IndexOfDoor[] = "AlarmLinkDoorInfo_ByScheme";
inline constexpr char CreateIndexOfDoor[] =
    "create index if not exists AlarmLinkDoorInfo_ByScheme on AlarmLinkDoorInfo(AlarmUniqueID)";
inline constexpr char IndexOfAlarmOut[] = "AlarmLinkAlarmOutInfo_ByScheme";
inline constexpr char CreateIndexOfAlarmOut[] =
    "create index if not exists AlarmLinkAlarmOutInfo_ByScheme on AlarmLinkAlarmOutInfo(AlarmUniqueID)";
inline constexpr char IndexOfDefenceTime[] = "AlarmDefenceTimeInfo_ByScheme";
inline constexpr char CreateIndexOfDefenceTime[] =
    "create index if not exists AlarmDefenceTimeInfo_ByScheme on AlarmDefenceTimeInfo(AlarmUniqueID)";

// Full load in one pass: each table once, in the order of its rows, the owning scheme first

inline constexpr char ScanKeys[] = "select AlarmUniqueID, strEventSource, AlarmType from AlarmUniqueID "
                                   "order by strEventSource, AlarmType, AlarmUniqueID";
inline constexpr char ScanVideoTexts[] =
    "select AlarmLinkVideoID, strLinkDevID from AlarmLinkVideoID order by AlarmLinkVideoID";
inline constexpr char ScanAlarmOutTexts[] =
    "select AlarmLinkAlarmOutID, strLinkAlarmID from AlarmLinkAlarmOutID order by AlarmLinkAlarmOutID";
inline constexpr char ScanBase[] =
    "select AlarmUniqueID, bOpen, bOpenSound, bEmapTwinkle, bSendEmail, SplitRow, SplitCloum, SplitCount "
    "from AlarmBaseInfo order by id";
/// Of files that lack the mail flag.
inline constexpr char ScanBaseWithoutMail[] =
    "select AlarmUniqueID, bOpen, bOpenSound, bEmapTwinkle, null, SplitRow, SplitCloum, SplitCount "
    "from AlarmBaseInfo order by id";
inline constexpr char ScanDefenceTime[] =
    "select AlarmUniqueID, Day, Begin, End from AlarmDefenceTimeInfo order by id";
inline constexpr char ScanAlarmOut[] =
    "select AlarmUniqueID, AlarmLinkAlarmOutID, bAutoOpen, Time from AlarmLinkAlarmOutInfo order by id";
inline constexpr char ScanDoor[] =
    "select AlarmUniqueID, AlarmLinkDoorID, bAlwaysOpen from AlarmLinkDoorInfo order by id";
inline constexpr char ScanSplit[] =
    "select AlarmUniqueID, windowID, bEnable, iCombine, X1, X2, Y1, Y2 from AlarmSplitInfo order by id";
inline constexpr char ScanVideo[] =
    "select AlarmUniqueID, AlarmLinkVideoID, WindowID, bOpen, bRecord, Preposition, StreamType, Time "
    "from AlarmLinkVideoInfo order by id";

// Save in one pass: compiled once, bound for each row

inline constexpr char FindScheme[] =
    "select AlarmUniqueID from AlarmUniqueID where strEventSource = ?1 and AlarmType = ?2 "
    "order by AlarmUniqueID limit 1";
inline constexpr char AddScheme[] = "insert into AlarmUniqueID(strEventSource, AlarmType) values(?1, ?2)";
inline constexpr char FindVideoText[] =
    "select AlarmLinkVideoID from AlarmLinkVideoID where strLinkDevID = ?1 order by AlarmLinkVideoID limit 1";
inline constexpr char AddVideoText[] = "insert into AlarmLinkVideoID(strLinkDevID) values(?1)";
inline constexpr char FindAlarmOutText[] = "select AlarmLinkAlarmOutID from AlarmLinkAlarmOutID "
                                           "where strLinkAlarmID = ?1 order by AlarmLinkAlarmOutID limit 1";
inline constexpr char AddAlarmOutText[] = "insert into AlarmLinkAlarmOutID(strLinkAlarmID) values(?1)";

inline constexpr char FindBase[] =
    "select bOpen, bOpenSound, bEmapTwinkle, bSendEmail, SplitRow, SplitCloum, SplitCount "
    "from AlarmBaseInfo where AlarmUniqueID = ?1";
inline constexpr char AddBase[] =
    "insert into AlarmBaseInfo(AlarmUniqueID, bOpen, bOpenSound, bEmapTwinkle, bSendEmail, SplitRow, "
    "SplitCloum, SplitCount) values(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)";
inline constexpr char ChangeBase[] =
    "update AlarmBaseInfo set bOpen = ?2, bOpenSound = ?3, bEmapTwinkle = ?4, bSendEmail = ?5, "
    "SplitRow = ?6, SplitCloum = ?7, SplitCount = ?8 where AlarmUniqueID = ?1";

inline constexpr char FindCells[] =
    "select id, windowID, bEnable, iCombine, X1, X2, Y1, Y2 from AlarmSplitInfo where AlarmUniqueID = ?1";
inline constexpr char AddCell[] =
    "insert into AlarmSplitInfo(AlarmUniqueID, windowID, bEnable, iCombine, X1, X2, Y1, Y2) "
    "values(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)";
inline constexpr char ChangeCell[] =
    "update AlarmSplitInfo set bEnable = ?2, iCombine = ?3, X1 = ?4, X2 = ?5, Y1 = ?6, Y2 = ?7 where id = ?1";

inline constexpr char ClearVideo[] = "delete from AlarmLinkVideoInfo where AlarmUniqueID = ?1";
inline constexpr char AddVideo[] =
    "insert into AlarmLinkVideoInfo(AlarmUniqueID, WindowID, AlarmLinkVideoID, bOpen, bRecord, Preposition, "
    "StreamType, Time) values(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)";
inline constexpr char ClearDoor[] = "delete from AlarmLinkDoorInfo where AlarmUniqueID = ?1";
inline constexpr char AddDoor[] =
    "insert into AlarmLinkDoorInfo(AlarmUniqueID, AlarmLinkDoorID, bAlwaysOpen) values(?1, ?2, ?3)";
inline constexpr char ClearAlarmOut[] = "delete from AlarmLinkAlarmOutInfo where AlarmUniqueID = ?1";
inline constexpr char AddAlarmOut[] =
    "insert into AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID, bAutoOpen, Time) "
    "values(?1, ?2, ?3, ?4)";
inline constexpr char ClearDefenceTime[] = "delete from AlarmDefenceTimeInfo where AlarmUniqueID = ?1";
inline constexpr char AddRegion[] =
    "insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(?1, ?2, ?3, ?4)";
/// As many regions as a fresh week has.
inline constexpr char AddSevenRegions[] =
    "insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(?1, ?2, ?3, ?4), "
    "(?1, ?5, ?6, ?7), (?1, ?8, ?9, ?10), (?1, ?11, ?12, ?13), (?1, ?14, ?15, ?16), (?1, ?17, ?18, ?19), "
    "(?1, ?20, ?21, ?22)";

// The last id that was given to a scheme, and the greatest that rows of a part name
inline constexpr char LastSchemeId[] = "select seq from main.sqlite_sequence where name = 'AlarmUniqueID'";
inline constexpr char GreatestBaseOwner[] = "select max(AlarmUniqueID) from AlarmBaseInfo";
inline constexpr char GreatestSplitOwner[] = "select max(AlarmUniqueID) from AlarmSplitInfo";
inline constexpr char GreatestVideoOwner[] = "select max(AlarmUniqueID) from AlarmLinkVideoInfo";
inline constexpr char GreatestDoorOwner[] = "select max(AlarmUniqueID) from AlarmLinkDoorInfo";
inline constexpr char GreatestAlarmOutOwner[] = "select max(AlarmUniqueID) from AlarmLinkAlarmOutInfo";
inline constexpr char GreatestDefenceTimeOwner[] = "select max(AlarmUniqueID) from AlarmDefenceTimeInfo";

} // namespace SchemeStatements
