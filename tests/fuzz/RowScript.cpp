#include "tests/fuzz/RowScript.h"

#include "tests/AlarmSchemeData/RawDatabase.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

namespace {

class Script
{
public:
    Script(RawDatabase& database, const uint8_t* pScript, size_t iSize)
        : m_database(database)
        , m_pNext(pScript)
        , m_pEnd(pScript + iSize)
    {
    }

    void Run()
    {
        m_database.Run(QStringLiteral("begin"));
        while (m_pNext != m_pEnd)
            Step();
        m_database.Run(QStringLiteral("commit"));
    }

private:
    unsigned Byte() { return m_pNext == m_pEnd ? 0U : *m_pNext++; }

    int64_t Number(size_t iBytes)
    {
        int64_t number = 0;
        const size_t size = std::min(iBytes, static_cast<size_t>(m_pEnd - m_pNext));
        std::memcpy(&number, m_pNext, size);
        m_pNext += size;
        return number;
    }

    void BindValue(sqlite3_stmt* pStatement, int iIndex)
    {
        const unsigned type = Byte();
        switch (type % 8) {
        case 0:
            sqlite3_bind_null(pStatement, iIndex);
            break;
        case 1: // as small as most numbers of the file
        case 2:
            sqlite3_bind_int64(pStatement, iIndex, static_cast<int8_t>(Byte()));
            break;
        case 3:
            sqlite3_bind_int64(pStatement, iIndex, static_cast<int32_t>(Number(4)));
            break;
        case 4:
            sqlite3_bind_int64(pStatement, iIndex, Number(8));
            break;
        case 5:
            sqlite3_bind_double(pStatement, iIndex, static_cast<double>(Number(8)) / 1000.0);
            break;
        default: {
            const size_t wanted = Byte() % 40;
            const size_t size = std::min(wanted, static_cast<size_t>(m_pEnd - m_pNext));
            const auto* bytes = reinterpret_cast<const char*>(m_pNext);
            if (type % 8 == 6) {
                sqlite3_bind_text(pStatement, iIndex, bytes, static_cast<int>(size), SQLITE_TRANSIENT);
            } else {
                sqlite3_bind_blob(pStatement, iIndex, bytes, static_cast<int>(size), SQLITE_TRANSIENT);
            }
            m_pNext += size;
        }
        }
    }

    void RunBound(const QString& strSql)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_database.Handle(), strSql.toUtf8().constData(), -1, &statement, nullptr) ==
            SQLITE_OK) {
            for (int index = 1; index <= sqlite3_bind_parameter_count(statement); ++index)
                BindValue(statement, index);
            sqlite3_step(statement);
        }
        sqlite3_finalize(statement);
    }

    void Step()
    {
        const QString table = RawDatabase::Tables().at(static_cast<int>(Byte() % 10));
        const QStringList columns = m_database.Rows(
            QStringLiteral("select '[' || name || ']' from pragma_table_xinfo('%1')").arg(table));
        const unsigned what = Byte();
        const QString column =
            columns.value(static_cast<int>(Byte()) % std::max(1, static_cast<int>(columns.size())));
        const unsigned id = Byte() % 8;
        if (what < 150) {
            const QStringList marks = QVector<QString>(columns.size(), QStringLiteral("?")).toList();
            RunBound(QStringLiteral("insert into %1 values(%2)").arg(table, marks.join(QLatin1Char(','))));
        } else if (what < 230) {
            RunBound(QStringLiteral("update %1 set %2 = ? where rowid = %3").arg(table, column).arg(id));
        } else if (what < 245) {
            m_database.Run(QStringLiteral("delete from %1 where rowid = %2").arg(table).arg(id));
        } else if (what < 250) {
            RunBound(QStringLiteral("insert or replace into sqlite_sequence values('%1', ?)").arg(table));
        } else if (what < 254) {
            m_database.Run(QStringLiteral("drop index %1_ByScheme").arg(table));
        } else {
            m_database.Run(QStringLiteral("drop table %1").arg(table));
        }
    }

    RawDatabase& m_database;
    const uint8_t* m_pNext;
    const uint8_t* m_pEnd;
};

} // namespace

void RunRowScript(RawDatabase& database, const uint8_t* pScript, size_t iSize)
{
    Script(database, pScript, iSize).Run();
}
