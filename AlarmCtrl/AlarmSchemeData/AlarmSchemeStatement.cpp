#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatement.h"

#include <sqlite3.h>

AlarmSchemeStatement::AlarmSchemeStatement(sqlite3* pDatabase, const char* szText)
{
    if (sqlite3_prepare_v2(pDatabase, szText, -1, &m_pStatement, nullptr) != SQLITE_OK) {
        sqlite3_finalize(m_pStatement);
        m_pStatement = nullptr;
    }
}

AlarmSchemeStatement::~AlarmSchemeStatement()
{
    sqlite3_finalize(m_pStatement);
}

AlarmSchemeRun::~AlarmSchemeRun()
{
    // The values stay bound: every run binds all of them anew.
    sqlite3_reset(m_pStatement);
}

AlarmSchemeRun& AlarmSchemeRun::Bind(int64_t iNumber)
{
    sqlite3_bind_int64(m_pStatement, ++m_iBound, iNumber);
    return *this;
}

AlarmSchemeRun& AlarmSchemeRun::Bind(const QByteArray& text)
{
    sqlite3_bind_text(m_pStatement, ++m_iBound, text.constData(), text.size(), SQLITE_STATIC);
    return *this;
}

AlarmSchemeRun& AlarmSchemeRun::BindBlob(const QByteArray& bytes)
{
    sqlite3_bind_blob(m_pStatement, ++m_iBound, bytes.constData(), bytes.size(), SQLITE_STATIC);
    return *this;
}

sqlite3_value* AlarmSchemeRun::Value(int iColumn) const
{
    sqlite3_value*& value = m_values[static_cast<size_t>(iColumn)];
    if (value == nullptr)
        value = sqlite3_column_value(m_pStatement, iColumn);
    return value;
}

bool AlarmSchemeRun::Next()
{
    m_values.fill(nullptr);
    m_iResult = m_pStatement != nullptr ? sqlite3_step(m_pStatement) : SQLITE_MISUSE;
    return m_iResult == SQLITE_ROW;
}

bool AlarmSchemeRun::IsDone() const
{
    return m_iResult == SQLITE_DONE;
}

bool AlarmSchemeRun::IsInteger(int iColumn) const
{
    return sqlite3_value_type(Value(iColumn)) == SQLITE_INTEGER;
}

bool AlarmSchemeRun::IsNull(int iColumn) const
{
    return sqlite3_value_type(Value(iColumn)) == SQLITE_NULL;
}

int64_t AlarmSchemeRun::Int64(int iColumn) const
{
    return sqlite3_value_int64(Value(iColumn));
}

int32_t AlarmSchemeRun::Int(int iColumn) const
{
    return sqlite3_value_int(Value(iColumn));
}

bool AlarmSchemeRun::IsText(int iColumn) const
{
    return sqlite3_value_type(Value(iColumn)) == SQLITE_TEXT;
}

const char* AlarmSchemeRun::Bytes(int iColumn) const
{
    return reinterpret_cast<const char*>(sqlite3_value_text(Value(iColumn)));
}

int AlarmSchemeRun::Size(int iColumn) const
{
    return sqlite3_value_bytes(Value(iColumn));
}

QByteArray AlarmSchemeRun::Blob(int iColumn) const
{
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(Value(iColumn)));
    return QByteArray(bytes, bytes == nullptr ? 0 : sqlite3_value_bytes(Value(iColumn)));
}
