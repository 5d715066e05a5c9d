#include "client/store/StoreConnection.h"

#include "platform/SystemLibrary/SystemPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <sqlite3.h>

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds RetryInterval{20};

AlarmSchemeStatementFailure LastFailure(sqlite3* pDatabase)
{
    return {sqlite3_extended_errcode(pDatabase), QString::fromUtf8(sqlite3_errmsg(pDatabase))};
}

} // namespace

void StoreConnection::AllowWaiting(std::chrono::milliseconds time)
{
    m_deadline = std::chrono::steady_clock::now() + time;
}

int StoreConnection::OnBusy(void* pSelf, int)
{
    const auto* self = static_cast<StoreConnection*>(pSelf);
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(self->m_deadline -
                                                                            std::chrono::steady_clock::now());
    if (left.count() <= 0)
        return 0;
    QThread::msleep(static_cast<unsigned long>(std::min(left, RetryInterval).count()));
    return 1;
}

void StoreConnection::Open()
{
    Close();
    const QString directory = QGetDatabaseDirPath();
    if (m_strFile.isEmpty() && !directory.isEmpty())
        QDir().mkpath(directory); // a failure shows in the opening
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
    m_failure.reset();
}

bool StoreConnection::IsOpen() const
{
    return m_store && m_store->IsOpen();
}

bool StoreConnection::IsMoved() const
{
    int moved = 0;
    if (IsOpen())
        sqlite3_file_control(m_store->GetHandle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
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
    sqlite3_busy_handler(pDatabase, &StoreConnection::OnBusy, this);
    CheckHealth(pDatabase);
    if (m_failure)
        return (m_failure->iCode & 0xFF) == SQLITE_CORRUPT;

    // The opening writes, but its transaction starts with a read, and a write after a read is refused at
    // once while another process holds the file. So the wait for that process is done here.
    const int begun = sqlite3_exec(pDatabase, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    if (IsBusy(pDatabase, begun))
        return false;
    if (begun == SQLITE_OK) {
        CheckSize(pDatabase); // nobody extends the file now
        sqlite3_exec(pDatabase, "ROLLBACK", nullptr, nullptr, nullptr);
    }
    if (m_failure)
        ForbidWriting(pDatabase);
    return true;
}

void StoreConnection::ForbidWriting(sqlite3* pDatabase)
{
    sqlite3_exec(pDatabase, "PRAGMA query_only = ON", nullptr, nullptr, nullptr);
}

void StoreConnection::CheckSize(sqlite3* pDatabase)
{
    // SQLite reads a last page that was cut off as if it ended with zeros.
    const qint64 size = QFileInfo(QString::fromUtf8(sqlite3_db_filename(pDatabase, "main"))).size();
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(pDatabase, "PRAGMA page_size", -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW && size % sqlite3_column_int(statement, 0) != 0)
        m_failure = AlarmSchemeStatementFailure{SQLITE_CORRUPT, QStringLiteral("the file is cut off")};
    sqlite3_finalize(statement);
}

void StoreConnection::CheckHealth(sqlite3* pDatabase)
{
    sqlite3_stmt* statement = nullptr;
    int result = sqlite3_prepare_v2(pDatabase, "PRAGMA quick_check(1)", -1, &statement, nullptr);
    if (result == SQLITE_OK)
        result = sqlite3_step(statement);
    if (result == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        if (sqlite3_stricmp(text, "ok") != 0)
            m_failure = AlarmSchemeStatementFailure{SQLITE_CORRUPT, QString::fromUtf8(text)};
    } else {
        m_failure = LastFailure(pDatabase);
    }
    sqlite3_finalize(statement);
    if (m_failure)
        ForbidWriting(pDatabase);
}
