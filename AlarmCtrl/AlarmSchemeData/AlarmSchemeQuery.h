#pragma once

#include <QString>

#include <cstdint>

struct sqlite3_stmt;

/// A compiled statement that yields rows; finalized at the end of its scope. One that did not compile is
/// false and has no rows.
class AlarmSchemeQuery
{
public:
    explicit AlarmSchemeQuery(sqlite3_stmt* pStatement = nullptr)
        : m_pStatement(pStatement)
    {
    }
    ~AlarmSchemeQuery();
    AlarmSchemeQuery(AlarmSchemeQuery&& other) noexcept;
    AlarmSchemeQuery& operator=(AlarmSchemeQuery&& other) noexcept;
    AlarmSchemeQuery(const AlarmSchemeQuery&) = delete;
    AlarmSchemeQuery& operator=(const AlarmSchemeQuery&) = delete;

    explicit operator bool() const { return m_pStatement != nullptr; }

    /// SQLite's result code of the next step.
    int Step();

    // Columns of the present row.
    bool IsNull(int iColumn) const;
    int32_t Int(int iColumn) const; ///< the low 32 bits of what SQLite reads as a number
    int64_t Int64(int iColumn) const;
    bool Flag(int iColumn) const { return Int(iColumn) != 0; }
    QString Text(int iColumn) const; ///< empty for null

private:
    sqlite3_stmt* m_pStatement;
};
