#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <chrono>
#include <memory>
#include <optional>

/// The store together with what its connection needs before the first statement: the time that may be spent
/// waiting for other processes, and a look at the file's health. A damaged file is opened for reading only,
/// so that opening it does not change it.
class StoreConnection
{
public:
    /// Of the file in the database directory, or of the one that is named by its absolute path.
    explicit StoreConnection(const QString& strFile = QString())
        : m_strFile(strFile)
    {
    }
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

    /// Why the last opening did not go well; nothing when it did. The store may be open all the same.
    const std::optional<AlarmSchemeStatementFailure>& OpeningFailure() const { return m_failure; }
    /// Whether the file still is where it was opened.
    bool IsMoved() const;

private:
    static int OnBusy(void* pSelf, int iCount);
    bool SetUp(sqlite3* pDatabase);
    bool IsBusy(sqlite3* pDatabase, int iCode);
    void CheckHealth(sqlite3* pDatabase);
    void CheckSize(sqlite3* pDatabase);
    static void ForbidWriting(sqlite3* pDatabase);

    QString m_strFile;
    std::chrono::steady_clock::time_point m_deadline{};
    std::optional<AlarmSchemeStatementFailure> m_failure;
    // Last: its connection calls back into the members above until it is closed.
    std::unique_ptr<AlarmSchemeDatabaseParser> m_store;
};
