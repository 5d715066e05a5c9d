#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <QString>

#include <optional>

/// Whether a database file is what it was when it was written.
namespace FileHealth {

enum class Depth
{
    Quick, ///< structure and types, about a microsecond a scheme
    Full,  ///< the indexes against their tables too, three times as long
};

/// Nothing when the content is sound. SQLITE_CORRUPT or SQLITE_NOTADB when it is damaged; any other code when
/// it could not be read. Rolls back what a program that was cut off has left, as every reading does.
std::optional<AlarmSchemeStatementFailure> Check(sqlite3* pDatabase, Depth eDepth);

/// The same for the size of the main file, which SQLite does not look at. Within a transaction, so that
/// nobody is extending the file.
std::optional<AlarmSchemeStatementFailure> CheckSize(sqlite3* pDatabase);

/// Rows whose foreign keys lead nowhere. They are no damage: programs that do not switch foreign keys on
/// leave them behind, and loading leaves them out.
qint64 OrphanRows(sqlite3* pDatabase);

/// What a look at a file from outside, at a backup for instance, has found.
struct Findings
{
    std::optional<AlarmSchemeStatementFailure> failure; ///< nothing when it is a sound database
    bool bHoldsSchemes = false;                         ///< it has the table of schemes
    int iSchemes = 0;

    bool IsSoundSchemeFile() const { return !failure && bHoldsSchemes; }
};

/// Looks without locks and without leaving a trace at a file that nobody has open.
Findings Inspect(const QString& strPath);

} // namespace FileHealth
