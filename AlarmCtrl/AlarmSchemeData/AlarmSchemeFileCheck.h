#pragma once

#include "alarmschemestore_export.h"

#include <optional>

struct sqlite3;

/// Whether a file and its connection are what the one-pass roads are made for: the ten tables as this program
/// makes them with the indexes it adds, nothing that acts on its own or changes how SQLite goes about a
/// statement (triggers, views, foreign indexes and statistics), foreign keys on. To be asked within the
/// transaction that relies on it.
class AlarmSchemeFileCheck
{
public:
    /// Enough to read in one pass. Cheap unless the schema has changed since the last time.
    bool IsKnown(sqlite3* pDatabase);
    /// Enough to read in one pass what the store has not opened: the indexes may be missing, and so may the
    /// column of the mail flag, as in files from before there was one.
    enum class Columns
    {
        Unknown,
        All,
        AllButMail,
    };
    static Columns ReadableColumns(sqlite3* pDatabase);
    /// Enough to write in one pass: the counters of the ids stand where inserting leaves them too.
    bool IsKnownForWriting(sqlite3* pDatabase);

    /// Creates the indexes that are missing, in a transaction of its own and without a word: a file that
    /// cannot be written goes on without. One of our name with another definition stays, and the file is not
    /// known then.
    static void AddMissingIndexes(sqlite3* pDatabase);

    /// Whether the store, when it is opened, will add to what is there: a file of an earlier version lacks
    /// tables, the column of the mail flag or indexes, or says that it is of another version. False without
    /// any table: such a file is a new one.
    static ALARMSCHEMESTORE_EXPORT bool NeedsUpgrade(sqlite3* pDatabase);

private:
    std::optional<long long> m_iSchemaVersion; ///< of the schema that was judged last
    bool m_bSchemaKnown = false;
};
