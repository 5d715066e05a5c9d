#pragma once

#include "client/store/SchemeHistoryEntry.h"
#include "client/store/StoreConnection.h"
#include "client/store/StoredSchemes.h"

#include <QString>

#include <chrono>
#include <optional>

/// Puts a copy of a scheme database in the place of what the database holds, and lets the history know. What
/// was there is kept: as a backup, or aside where it was damaged. Clients that have the database open see it
/// as another program's change. One object is used on one thread; it waits for other programs.
class SchemeRestore
{
public:
    /// The database by its absolute path; it is made when it is missing.
    SchemeRestore(const QString& strDatabase, std::chrono::milliseconds wait);

    /// The copy is a sound database of schemes, which its caller has seen to, and stays as it is. After a
    /// failure the database holds what it held, and one that was missing is missing still.
    SaveResult Restore(const QString& strCopy, const SaveOrigin& origin);

    /// Where a damaged database lies now; empty when it was sound.
    QString KeptAs() const { return m_strKeptAs; }

private:
    using Failure = std::optional<AlarmSchemeStatementFailure>;

    SaveResult TryToRestore(const QString& strCopy, const SaveOrigin& origin);
    static SaveResult ResultOf(const AlarmSchemeStatementFailure& failure);
    Failure Look(AlarmInfoMap& held);
    Failure Exchange(const QString& strCopy, bool bDamaged, bool bEmpty);
    void Note(const AlarmInfoMap& before, const AlarmInfoMap& after, const SaveOrigin& origin);
    bool WillGo(const QString& strCopy) const;

    QString m_strDatabase;
    std::chrono::milliseconds m_wait;
    StoreConnection m_connection;
    QString m_strKeptAs;
    QString m_strHistoryFailure;
};
