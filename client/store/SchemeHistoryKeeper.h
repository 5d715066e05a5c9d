#pragma once

#include "client/store/SchemeHistoryEntry.h"
#include "client/store/SchemeHistoryFile.h"

#include <optional>

struct sqlite3;

/// Keeps the history beside the scheme file, through the connection that writes the schemes. A history that
/// cannot be written never keeps schemes from being saved: it is then left alone, and Failure tells why.
///
/// Whether another program has written the scheme file is seen by the file's change counter, which the
/// history remembers; what that program changed, by the state that the history ends with. Used on the thread
/// of the connection.
class SchemeHistoryKeeper
{
public:
    /// Begins with the history of this scheme file, outside any transaction. The connection must outlive the
    /// keeping of it.
    void Start(sqlite3* pDatabase, const QString& strSchemeFile);
    void Stop(); ///< outside any transaction
    /// Forgets the connection, which is closed already or about to be.
    void Forget();
    bool IsKept() const { return m_file.has_value(); }

    /// Steps older than that are dropped when the history is next caught up; none are before it is said.
    void KeepFor(int iDays) { m_iDays = iDays; }

    /// What is found to have changed when the history is next caught up is this step, not another program's.
    void Announce(const SchemeHistoryEntry& entry) { m_announced = entry; }

    /// Reads how often the scheme file has been written; false when it cannot be told.
    bool ReadCounter();
    /// Notes what other programs have changed since the last step, so that the history ends with what the
    /// file held when the counter was read. Within a transaction; of the two files it touches the history's
    /// only.
    bool NoteUntilNow(const AlarmInfoMap& held);
    /// Both, in a transaction that keeps others from writing and has not written schemes yet.
    bool CatchUp(const AlarmInfoMap& held) { return ReadCounter() && NoteUntilNow(held); }
    /// Notes a step, in the transaction that CatchUp was called in and that writes the schemes. Without
    /// changes the history only learns that the file was written.
    bool Note(SchemeHistoryEntry entry, const SchemeHistoryChanges& changes);

    /// What one step has changed; nothing when that cannot be told.
    std::optional<SchemeHistoryChanges> Changes(qint64 iEntry);

    /// Lets a step that could not be noted be; the next one is tried again.
    void TryAgain();

    /// Why the history is not kept, in SQLite's words; empty when it is.
    QString Failure() const { return m_strFailure; }
    /// Whether a step could not be noted, so that the transaction goes on, if at all, without it.
    bool HasFailed() const { return m_bFailed; }

private:
    bool Fail();
    bool NoteDifference(const AlarmInfoMap& held, SchemeHistoryEntry entry);

    sqlite3* m_pDatabase = nullptr;
    std::optional<SchemeHistoryFile> m_file;
    std::optional<int> m_iDays;
    std::optional<SchemeHistoryEntry> m_announced;
    quint32 m_iCounter = 0; ///< of the scheme file, when it was last read
    bool m_bFailed = false;
    QString m_strFailure;
};
