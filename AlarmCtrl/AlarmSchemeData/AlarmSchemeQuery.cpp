#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeQuery.h"

#include <sqlite3.h>

#include <utility>

AlarmSchemeQuery::~AlarmSchemeQuery()
{
    sqlite3_finalize(m_pStatement);
}

AlarmSchemeQuery::AlarmSchemeQuery(AlarmSchemeQuery&& other) noexcept
    : m_pStatement(std::exchange(other.m_pStatement, nullptr))
{
}

AlarmSchemeQuery& AlarmSchemeQuery::operator=(AlarmSchemeQuery&& other) noexcept
{
    std::swap(m_pStatement, other.m_pStatement);
    return *this;
}

int AlarmSchemeQuery::Step()
{
    return m_pStatement != nullptr ? sqlite3_step(m_pStatement) : SQLITE_DONE;
}

bool AlarmSchemeQuery::IsNull(int iColumn) const
{
    return sqlite3_column_type(m_pStatement, iColumn) == SQLITE_NULL;
}

int32_t AlarmSchemeQuery::Int(int iColumn) const
{
    return sqlite3_column_int(m_pStatement, iColumn);
}

int64_t AlarmSchemeQuery::Int64(int iColumn) const
{
    return sqlite3_column_int64(m_pStatement, iColumn);
}

QString AlarmSchemeQuery::Text(int iColumn) const
{
    // The length is asked after the text: asking may convert the value. It keeps what follows a NUL, so that
    // such a key is not mistaken for the shorter one.
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_pStatement, iColumn));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_pStatement, iColumn));
}
