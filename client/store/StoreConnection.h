#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <QString>

#include <QString>

#include <chrono>
#include <memory>
#include <optional>

class UncleanEndMarker;

/// The store together with what its connection needs before the first statement: the time that may be spent
/// waiting for other processes, a look at the file's health (a thorough one after an unclean end), a journal
/// that makes commits durable, and a backup of a file that the store is about to upgrade. A damaged file is
/// opened for reading only, so that opening it does not change it; so is one whose journal is not as it has
/// to be.
class StoreConnection
{
public:
    /// Of the file in the database directory, or of the one that is named by its absolute path.
    explicit StoreConnection(const QString& strFile = QString());
    ~StoreConnection();
    StoreConnection(const StoreConnection&) = delete;
    StoreConnection& operator=(const StoreConnection&) = delete;

    /// Sets the time that may be spent waiting from now on, over all statements together.
    void AllowWaiting(std::chrono::milliseconds time);

    /// Opens the store, which creates a file that is missing, and the database directory for it; what was
    /// open before is closed.
    void Open();
    void Close();

    bool IsOpen() const;
    AlarmSchemeDatabaseParser* Store() const { return m_store.get(); } ///< null before Open()
    QString FilePath() const; ///< of the database, whether it is open or not

    /// Why the last opening did not go well; nothing when it did. The store may be open all the same.
    const std::optional<AlarmSchemeStatementFailure>& OpeningFailure() const { return m_failure; }
    bool IsDamaged() const; ///< as found by the last opening
    /// Whether the file still is where it was opened.
    bool IsMoved() const;
    /// Whether rights keep this user from writing the file, its journal or their folder by now.
    bool IsWriteProtected() const;
    /// Whether no other program has changed the journal since the opening.
    bool HasDurableJournal() const;
    /// Whether another client works with the file.
    bool IsShared() const;

    /// What the operator should know although it did not keep the openings from going well.
    struct Notices
    {
        std::optional<AlarmSchemeStatementFailure> noBackup; ///< why a file was upgraded without one
        qint64 iOrphanRows = 0;                              ///< found after an unclean end
    };
    Notices TakeNotices(); ///< since the last call

private:
    static int OnBusy(void* pSelf, int iCount);
    bool WaitABit() const;
    bool SetUp(sqlite3* pDatabase);
    bool IsBusy(sqlite3* pDatabase, int iCode);
    void CheckHealth(sqlite3* pDatabase);
    void BackUpBeforeUpgrade(sqlite3* pDatabase);
    bool IsEmptied() const;
    static void ForbidWriting(sqlite3* pDatabase);

    QString m_strFile; ///< empty: the one in the database directory
    std::chrono::steady_clock::time_point m_deadline{};
    std::optional<AlarmSchemeStatementFailure> m_failure;
    Notices m_notices;
    std::unique_ptr<UncleanEndMarker> m_marker;
    // Last: its connection calls back into the members above until it is closed.
    std::unique_ptr<AlarmSchemeDatabaseParser> m_store;
};
