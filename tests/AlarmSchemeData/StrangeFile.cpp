#include "tests/AlarmSchemeData/StrangeFile.h"

#include "tests/AlarmSchemeData/RawDatabase.h"

#include <array>

namespace {

class Stranger
{
public:
    Stranger(RawDatabase& database, QRandomGenerator& random)
        : m_database(database)
        , m_random(random)
    {
    }

    QStringList MakeStrange()
    {
        m_database.Run(QStringLiteral("begin"));
        for (int i = m_random.bounded(9); i > 0; --i)
            ChangeRows();
        if (m_random.bounded(3) == 0)
            ChangeSchema();
        m_database.Run(QStringLiteral("commit"));
        return m_done;
    }

private:
    template <size_t Count>
    QString Any(const std::array<const char*, Count>& texts)
    {
        return QString::fromUtf8(texts[m_random.bounded(static_cast<quint32>(Count))]);
    }
    QString Table() { return RawDatabase::Tables().at(m_random.bounded(10)); }
    QString Value()
    {
        static const std::array<const char*, 26> values{"0",
                                                        "1",
                                                        "2",
                                                        "3",
                                                        "4",
                                                        "-1",
                                                        "64",
                                                        "63",
                                                        "NULL",
                                                        "'text'",
                                                        "'2'",
                                                        "1.5",
                                                        "86399",
                                                        "x'3132'",
                                                        "x''",
                                                        "7",
                                                        "2000000000",
                                                        "4294967298",
                                                        "-4294967295",
                                                        "9223372036854775807",
                                                        "1e300",
                                                        "'1$1$0$2'",
                                                        "'Day'",
                                                        "'\xE9\x97\xA8'",
                                                        "cast(x'80C3FF' as text)",
                                                        "x'312431243024'"};
        return Any(values);
    }
    QString Id() { return QString::number(1 + m_random.bounded(4)); }

    void Run(const QString& strSql)
    {
        m_done.append(strSql);
        m_database.Run(strSql);
    }

    QStringList Columns(const QString& strTable)
    {
        return m_database.Rows(
            QStringLiteral("select '[' || name || ']' from pragma_table_xinfo('%1')").arg(strTable));
    }

    void ChangeRows()
    {
        const QString table = Table();
        const QStringList columns = Columns(table);
        switch (m_random.bounded(8)) {
        case 0: // a cell
        case 1:
            Run(QStringLiteral("update %1 set %2 = %3 where rowid = %4")
                    .arg(table, columns.at(m_random.bounded(columns.size())), Value(), Id()));
            break;
        case 2: // a whole column
            Run(QStringLiteral("update %1 set %2 = %3")
                    .arg(table, columns.at(1 + m_random.bounded(columns.size() - 1)), Value()));
            break;
        case 3: // rows of a scheme that exists, or will
        case 4: {
            QStringList cells{QStringLiteral("NULL")};
            for (int column = 1; column < columns.size(); ++column)
                cells.append(column == 1 && m_random.bounded(3) != 0 ? Id() : Value());
            for (int row = 1 + m_random.bounded(3); row > 0; --row)
                Run(QStringLiteral("insert into %1 values(%2)").arg(table, cells.join(QLatin1Char(','))));
            break;
        }
        case 5: // everything twice
            Run(QStringLiteral("insert into %1(%2) select %2 from %1")
                    .arg(table, QStringList(columns.mid(1)).join(QLatin1Char(','))));
            break;
        case 6:
            Run(QStringLiteral("delete from %1 where rowid = %2").arg(table, Id()));
            break;
        default:
            ChangeCounter(table);
        }
    }

    void ChangeCounter(const QString& strTable)
    {
        static const std::array<const char*, 6> changes{
            "delete from sqlite_sequence where name = '%1'",
            "insert into sqlite_sequence values('%1', 50)",
            "update sqlite_sequence set seq = 1 where name = '%1'",
            "update sqlite_sequence set seq = 'x' where name = '%1'",
            "update sqlite_sequence set seq = 3000000000 where name = '%1'",
            "update sqlite_sequence set seq = 9223372036854775806 where name = '%1'"};
        Run(Any(changes).arg(strTable));
    }

    void ChangeSchema()
    {
        static const std::array<const char*, 19> changes{
            "create trigger T after insert on AlarmLinkDoorInfo begin update AlarmBaseInfo set bOpen = 0; "
            "end",
            "create trigger T before insert on AlarmLinkAlarmOutInfo when new.AlarmLinkAlarmOutID = 2 begin "
            "select raise(abort, 'no'); end",
            "create trigger T after update of bOpen on AlarmBaseInfo begin insert into AlarmLinkVideoID"
            "(strLinkDevID) values('triggered'); end",
            "create trigger T after delete on AlarmDefenceTimeInfo begin delete from AlarmSplitInfo where id "
            "= "
            "1; end",
            "create view V as select 1",
            "alter table AlarmLinkDoorInfo add Extra integer default 5",
            "alter table AlarmUniqueID add Extra text",
            "create index I on AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID)",
            "create unique index I on AlarmLinkDoorInfo(AlarmLinkDoorID)",
            "create unique index I on AlarmUniqueID(AlarmType)",
            "drop index AlarmDefenceTimeInfo_ByScheme",
            "drop index AlarmUniqueID_ByKey",
            "drop index AlarmLinkDoorInfo_ByScheme; create index AlarmLinkDoorInfo_ByScheme on "
            "AlarmLinkDoorInfo(AlarmLinkDoorID desc)",
            "analyze",
            "create table Other(id integer primary key, door integer references AlarmLinkDoorInfo(id) on "
            "delete cascade); insert into Other select id, id from AlarmLinkDoorInfo",
            "drop table AlarmLinkDoorInfo; create table AlarmLinkDoorInfo(id integer primary key "
            "autoincrement "
            "NOT NULL, AlarmUniqueID text, AlarmLinkDoorID text, bAlwaysOpen bit)",
            "drop table AlarmLinkVideoID; create table AlarmLinkVideoID(AlarmLinkVideoID integer primary key "
            "autoincrement NOT NULL, strLinkDevID VARCHAR[(1000)] collate nocase)",
            "drop table AlarmDefenceTimeInfo; create table AlarmDefenceTimeInfo(id integer primary key "
            "autoincrement NOT NULL, AlarmUniqueID integer, Day integer check(Day < 6), Begin integer, End "
            "intger)",
            "drop table AlarmLinkAlarmOutInfo; create table AlarmLinkAlarmOutInfo(id integer primary key, "
            "AlarmUniqueID integer, AlarmLinkAlarmOutID integer, bAutoOpen bit, Time integer)"};
        Run(Any(changes));
    }

    RawDatabase& m_database;
    QRandomGenerator& m_random;
    QStringList m_done;
};

} // namespace

QStringList MakeStrange(RawDatabase& database, QRandomGenerator& random)
{
    return Stranger(database, random).MakeStrange();
}
