#pragma once

#include "alarmschemestore_export.h"

#include <QByteArray>

#include <array>
#include <cstdint>

struct sqlite3;
struct sqlite3_stmt;
struct sqlite3_value;

/// A statement that is compiled once and run many times; finalized at the end of its scope. The connection
/// must outlive it.
class ALARMSCHEMESTORE_EXPORT AlarmSchemeStatement
{
public:
    /// One that does not compile is false, and every run of it fails.
    AlarmSchemeStatement(sqlite3* pDatabase, const char* szText);
    ~AlarmSchemeStatement();
    AlarmSchemeStatement(const AlarmSchemeStatement&) = delete;
    AlarmSchemeStatement& operator=(const AlarmSchemeStatement&) = delete;

    explicit operator bool() const { return m_pStatement != nullptr; }

    /// Binds the values in their order and runs to the end: whether that went well. No rows are expected.
    template <typename... Values>
    bool Execute(const Values&... values);

private:
    friend class AlarmSchemeRun;
    sqlite3_stmt* m_pStatement = nullptr;
};

/// One run of a statement with up to eight columns. At the end of its scope the statement is ready for the
/// next one. Values of a row are valid until the next row.
class ALARMSCHEMESTORE_EXPORT AlarmSchemeRun
{
public:
    explicit AlarmSchemeRun(AlarmSchemeStatement& statement)
        : m_pStatement(statement.m_pStatement)
    {
    }
    ~AlarmSchemeRun();
    AlarmSchemeRun(const AlarmSchemeRun&) = delete;
    AlarmSchemeRun& operator=(const AlarmSchemeRun&) = delete;

    /// The next parameter. A text must live as long as the run.
    AlarmSchemeRun& Bind(int64_t iNumber);
    AlarmSchemeRun& Bind(int32_t iNumber) { return Bind(static_cast<int64_t>(iNumber)); }
    AlarmSchemeRun& Bind(bool bFlag) { return Bind(static_cast<int64_t>(bFlag ? 1 : 0)); }
    AlarmSchemeRun& Bind(const QByteArray& text);
    AlarmSchemeRun& BindBlob(const QByteArray& bytes);

    /// Whether there is a (further) row.
    bool Next();
    /// After Next said no: whether that was the end and no failure.
    bool IsDone() const;

    bool IsInteger(int iColumn) const;
    bool IsNull(int iColumn) const;
    int64_t Int64(int iColumn) const;
    /// The low 32 bits of what SQLite reads as a number, 0 for null.
    int32_t Int(int iColumn) const;
    bool Flag(int iColumn) const { return Int(iColumn) != 0; }
    bool IsText(int iColumn) const;
    /// The bytes of the value as text.
    const char* Bytes(int iColumn) const;
    int Size(int iColumn) const;
    QByteArray Blob(int iColumn) const; ///< a copy

private:
    static constexpr int MostColumns = 8;

    /// Fetched once a row: asking the statement takes and gives back a lock each time.
    sqlite3_value* Value(int iColumn) const;

    sqlite3_stmt* m_pStatement;
    mutable std::array<sqlite3_value*, MostColumns> m_values{};
    int m_iBound = 0;
    int m_iResult = 0;
};

template <typename... Values>
bool AlarmSchemeStatement::Execute(const Values&... values)
{
    AlarmSchemeRun run(*this);
    (run.Bind(values), ...);
    return !run.Next() && run.IsDone();
}
