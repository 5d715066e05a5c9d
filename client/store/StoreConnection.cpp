#include "client/store/StoreConnection.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeFileCheck.h"
#include "client/store/DamagedFile.h"
#include "client/store/DurableJournal.h"
#include "client/store/FileHealth.h"
#include "client/store/SchemeBackups.h"
#include "client/store/SchemeStoreOutcome.h"
#include "client/store/UncleanEndMarker.h"
#include "platform/SystemLibrary/SystemPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::milliseconds RetryInterval{20};

AlarmSchemeStatementFailure LastFailure(sqlite3* pDatabase)
{
    return {sqlite3_extended_errcode(pDatabase), QString::fromUtf8(sqlite3_errmsg(pDatabase))};
}

} // namespace

StoreConnection::StoreConnection(const QString& strFile)
    : m_strFile(strFile)
{
}

StoreConnection::~StoreConnection()
{
    Close();
}

void StoreConnection::AllowWaiting(std::chrono::milliseconds time)
{
    m_deadline = std::chrono::steady_clock::now() + time;
}

bool StoreConnection::WaitABit() const
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(m_deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0)
        return false;
    QThread::msleep(static_cast<unsigned long>(std::min(left, RetryInterval).count()));
    return true;
}

int StoreConnection::OnBusy(void* pSelf, int)
{
    return static_cast<StoreConnection*>(pSelf)->WaitABit() ? 1 : 0;
}

QString StoreConnection::FilePath() const
{
    if (!m_strFile.isEmpty())
        return m_strFile;
    const QString directory = QGetDatabaseDirPath();
    return directory.isEmpty() ? QString() : QGetAbsolutePath(QStringLiteral("AlarmScheme.db"), directory);
}

void StoreConnection::Open()
{
    Close();
    const QString path = FilePath();
    if (m_strFile.isEmpty() && !path.isEmpty())
        QDir().mkpath(QGetDatabaseDirPath()); // a failure shows in the opening
    if (!path.isEmpty()) {
        DamagedFile::FinishReplacing(path);
        m_marker = std::make_unique<UncleanEndMarker>(path);
        if (IsEmptied())
            m_failure = AlarmSchemeStatementFailure{SQLITE_CORRUPT, QStringLiteral("the file is empty")};
    }
    m_store = std::make_unique<AlarmSchemeDatabaseParser>(
        [this](sqlite3* pDatabase) { return SetUp(pDatabase); }, m_strFile);
    const std::optional<AlarmSchemeStatementFailure> failure = m_store->TakeFirstFailure();
    if (!m_failure)
        m_failure = failure;
    // An opening that could not be committed, because somebody is reading, must not stay under way: it would
    // lock others out, and nothing could be read within a transaction of its own.
    if (IsOpen() && sqlite3_get_autocommit(m_store->GetHandle()) == 0)
        m_store->RollBack();
}

void StoreConnection::Close()
{
    m_store.reset();
    m_marker.reset();
    m_failure.reset();
}

bool StoreConnection::IsOpen() const
{
    return m_store && m_store->IsOpen();
}

bool StoreConnection::IsDamaged() const
{
    return m_failure && ReasonOfFailure(*m_failure) == SchemeStoreOutcome::Reason::Damaged;
}

bool StoreConnection::IsWriteProtected() const
{
    const QFileInfo file(FilePath());
    const QFileInfo journal(FilePath() + QLatin1String("-journal"));
    const auto isProtected = [](const QFileInfo& info) { return info.exists() && !info.isWritable(); };
    return isProtected(file) || isProtected(journal) || isProtected(QFileInfo(file.absolutePath()));
}

bool StoreConnection::IsMoved() const
{
    int moved = 0;
    if (IsOpen())
        sqlite3_file_control(m_store->GetHandle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

bool StoreConnection::HasDurableJournal() const
{
    return IsOpen() && DurableJournal::IsInUse(m_store->GetHandle(), "main");
}

bool StoreConnection::IsShared() const
{
    return m_marker && m_marker->IsAnybodyElseThere();
}

StoreConnection::Notices StoreConnection::TakeNotices()
{
    return std::exchange(m_notices, Notices());
}

bool StoreConnection::IsEmptied() const
{
    // The client never leaves a file without content where there was one with schemes.
    const QFileInfo file(FilePath());
    return file.isFile() && file.size() == 0 && !SchemeBackups(FilePath()).List().isEmpty();
}

bool StoreConnection::IsBusy(sqlite3* pDatabase, int iCode)
{
    if (iCode != SQLITE_BUSY)
        return false;
    m_failure = LastFailure(pDatabase);
    return true;
}

bool StoreConnection::SetUp(sqlite3* pDatabase)
{
    if (m_failure)
        return false;
    sqlite3_busy_handler(pDatabase, &StoreConnection::OnBusy, this);
    CheckHealth(pDatabase);
    if (m_failure)
        return (m_failure->iCode & 0xFF) == SQLITE_CORRUPT;

    m_failure = DurableJournal::Require(pDatabase, "main", [this] { return WaitABit(); });
    if (m_failure) {
        ForbidWriting(pDatabase);
        return true;
    }

    // The opening writes, but its transaction starts with a read, and a write after a read is refused at
    // once while another process holds the file. So the wait for that process is done here.
    const int begun = sqlite3_exec(pDatabase, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    if (IsBusy(pDatabase, begun))
        return false;
    if (begun == SQLITE_OK) {
        m_failure = FileHealth::CheckSize(pDatabase); // nobody extends the file now
        if (!m_failure)
            BackUpBeforeUpgrade(pDatabase);
        sqlite3_exec(pDatabase, "ROLLBACK", nullptr, nullptr, nullptr);
    }
    if (m_failure)
        ForbidWriting(pDatabase);
    else if (m_marker)
        m_marker->FoundSound();
    return true;
}

void StoreConnection::ForbidWriting(sqlite3* pDatabase)
{
    sqlite3_exec(pDatabase, "PRAGMA query_only = ON", nullptr, nullptr, nullptr);
    sqlite3_db_config(pDatabase, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

void StoreConnection::CheckHealth(sqlite3* pDatabase)
{
    const bool unclean = m_marker && m_marker->IsUnclean();
    m_failure = FileHealth::Check(pDatabase, unclean ? FileHealth::Depth::Full : FileHealth::Depth::Quick);
    if (m_failure)
        ForbidWriting(pDatabase);
    else if (unclean)
        m_notices.iOrphanRows = FileHealth::OrphanRows(pDatabase);
}

void StoreConnection::BackUpBeforeUpgrade(sqlite3* pDatabase)
{
    // An upgrade that does not come about, on a full disk for instance, is tried at every opening.
    if (AlarmSchemeFileCheck::NeedsUpgrade(pDatabase))
        m_notices.noBackup = SchemeBackups(FilePath()).MakeUnlessSame(std::chrono::milliseconds(0));
}
