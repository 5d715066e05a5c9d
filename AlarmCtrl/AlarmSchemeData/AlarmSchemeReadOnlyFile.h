#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"

#include <QString>

#include <chrono>
#include <memory>
#include <optional>

struct sqlite3;

/// A database file that was opened so that neither it nor its folder changes, and one moment of it: from the
/// first statement after Open to Close all see the same content.
class AlarmSchemeReadOnlyFile
{
public:
    AlarmSchemeReadOnlyFile(const QString& strPath, std::chrono::milliseconds busyTimeOut,
                            const AlarmSchemeStoreReader::Pulse& pulse);
    ~AlarmSchemeReadOnlyFile();
    AlarmSchemeReadOnlyFile(const AlarmSchemeReadOnlyFile&) = delete;
    AlarmSchemeReadOnlyFile& operator=(const AlarmSchemeReadOnlyFile&) = delete;

    /// Whether it is a sound database with schemes; Outcome tells what is in the way.
    bool Open();
    sqlite3* Handle() const { return m_database.get(); }
    /// Whether nothing has failed so far and nobody wants it to stop.
    bool IsGoingOn() const { return m_outcome.IsSuccess() && !m_bStopped; }
    /// A connection to a copy, which vanishes with it; to be closed by the caller. Null when there is none.
    sqlite3* MakeCopy();
    /// Whether what was read is what the file held.
    bool Close();

    void Fail(int iCode, const QString& strMessage);
    /// Why it does not go on.
    AlarmSchemeReadOutcome Outcome() const;

private:
    struct CloseDatabase
    {
        void operator()(sqlite3* pDatabase) const;
    };
    /// Tells a file that has changed.
    struct Print
    {
        qint64 iSize = 0;
        qint64 iTime = 0;
    };

    static int OnBusy(void* pSelf, int iCount);
    static int OnProgress(void* pSelf);
    void Watch(sqlite3* pDatabase);
    void Pulse();
    bool Refuse(AlarmSchemeReadOutcome::Reason eReason, const QString& strTechnical = QString());
    bool FailAtLast(sqlite3* pDatabase);

    bool LookAtFile();
    bool LookAtLog();
    QByteArray Address() const;
    bool Connect();
    bool FindSchemes();
    bool CheckHealth();
    Print TakePrint() const;

    QString m_strPath;
    std::chrono::steady_clock::time_point m_deadline;
    const AlarmSchemeStoreReader::Pulse& m_pulse;
    std::chrono::steady_clock::time_point m_lastPulse;
    bool m_bStopped = false;

    bool m_bWriteAheadLog = false;
    bool m_bUnshared = false; ///< no other program has it open, so it is read without locks
    Print m_print;
    AlarmSchemeReadOutcome m_outcome;
    std::unique_ptr<sqlite3, CloseDatabase> m_database;
};
