#include "client/store/SaveTransaction.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <sqlite3.h>

SaveTransaction::SaveTransaction(AlarmSchemeDatabaseParser& store)
    : m_store(store)
    , m_iFailedBefore(store.FailedStatements())
{
    Q_ASSERT(m_store.IsOpen());
    Q_ASSERT(m_store.GetTransactionDepth() == 0);
    sqlite3_commit_hook(m_store.GetHandle(), &SaveTransaction::OnCommit, this);
    m_store.TakeFirstFailure();
    m_store.BeginTransaction();
    // A transaction that begins with a write waits for other processes; one that begins with a read would
    // be refused at its first write.
    m_store.ExecOnce(QStringLiteral("update baseinfo set ModifyTime=ModifyTime"));
}

SaveTransaction::~SaveTransaction()
{
    if (!m_bEnded)
        Abort();
    sqlite3_commit_hook(m_store.GetHandle(), nullptr, nullptr);
}

int SaveTransaction::OnCommit(void* pSelf)
{
    return static_cast<SaveTransaction*>(pSelf)->m_bArmed ? 0 : 1;
}

bool SaveTransaction::IsAlive() const
{
    return m_store.FailedStatements() == m_iFailedBefore && sqlite3_get_autocommit(m_store.GetHandle()) == 0;
}

bool SaveTransaction::Commit()
{
    if (m_bEnded || !IsAlive()) {
        if (!m_bEnded)
            Abort();
        return false;
    }
    m_bArmed = true;
    m_store.EndTransaction();
    m_bArmed = false;
    const bool committed = m_store.FailedStatements() == m_iFailedBefore &&
                           m_store.GetTransactionDepth() == 0 &&
                           sqlite3_get_autocommit(m_store.GetHandle()) != 0;
    if (committed) {
        m_bEnded = true;
    } else {
        Abort();
    }
    return committed;
}

void SaveTransaction::Abort()
{
    // Also when SQLite has rolled back by itself: the store's depth has to come back to 0.
    m_store.RollBack();
    m_bEnded = true;
}
