#pragma once

#include <cstdint>

class AlarmSchemeDatabaseParser;

/// One save, all or nothing: everything written through the store during its life either reaches the file
/// whole with Commit, or not at all. The store itself goes on after a failed statement, and a full disk ends
/// SQLite's transaction by itself, after which each further statement would be committed alone; while this
/// object lives, nothing is committed but by Commit.
class SaveTransaction
{
public:
    /// The store must be open and outside any transaction.
    explicit SaveTransaction(AlarmSchemeDatabaseParser& store);
    ~SaveTransaction();
    SaveTransaction(const SaveTransaction&) = delete;
    SaveTransaction& operator=(const SaveTransaction&) = delete;

    /// Whether no statement has failed so far and the transaction still stands. When not, go on with nothing.
    bool IsAlive() const;

    /// True when everything is in the file; otherwise the file is as it was before.
    bool Commit();

private:
    static int OnCommit(void* pSelf);
    void Abort();

    AlarmSchemeDatabaseParser& m_store;
    int64_t m_iFailedBefore;
    bool m_bArmed = false;
    bool m_bEnded = false;
};
