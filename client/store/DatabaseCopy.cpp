#include "client/store/DatabaseCopy.h"

#include <QFileInfo>

#include <sqlite3.h>

#include <memory>

namespace {

struct CloseDatabase
{
    void operator()(sqlite3* pDatabase) const { sqlite3_close(pDatabase); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;
using Failure = std::optional<AlarmSchemeStatementFailure>;

Failure LastFailure(sqlite3* pDatabase)
{
    return AlarmSchemeStatementFailure{sqlite3_extended_errcode(pDatabase),
                                       QString::fromUtf8(sqlite3_errmsg(pDatabase))};
}

Failure Open(const QString& strPath, int iFlags, std::chrono::milliseconds wait, Database& database)
{
    // An absolute path, for one that begins with "file:" could be taken apart.
    sqlite3* raw = nullptr;
    const int opened = sqlite3_open_v2(QFileInfo(strPath).absoluteFilePath().toUtf8().constData(), &raw,
                                       SQLITE_OPEN_READWRITE | iFlags, nullptr);
    database.reset(raw);
    if (opened != SQLITE_OK)
        return AlarmSchemeStatementFailure{opened, QString::fromUtf8(sqlite3_errstr(opened))};
    sqlite3_busy_timeout(raw, static_cast<int>(wait.count()));
    return std::nullopt;
}

} // namespace

std::optional<AlarmSchemeStatementFailure> DatabaseCopy::Copy(const QString& strFrom, const QString& strTo,
                                                              std::chrono::milliseconds wait)
{
    // Not for reading only: what a program that was cut off has left can be rolled back then.
    Database from;
    if (Failure failure = Open(strFrom, 0, wait, from))
        return failure;
    Database to;
    if (Failure failure = Open(strTo, SQLITE_OPEN_CREATE, wait, to))
        return failure;
    if (sqlite3_exec(to.get(), "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr) != SQLITE_OK)
        return LastFailure(to.get());

    sqlite3_backup* const backup = sqlite3_backup_init(to.get(), "main", from.get(), "main");
    if (backup == nullptr)
        return LastFailure(to.get());
    const int stepped = sqlite3_backup_step(backup, -1);
    const int finished = sqlite3_backup_finish(backup);
    if (finished != SQLITE_OK)
        return LastFailure(to.get());
    if (stepped != SQLITE_DONE)
        return AlarmSchemeStatementFailure{stepped, QString::fromUtf8(sqlite3_errstr(stepped))};

    // The copy's first page says what the source's did.
    if (sqlite3_exec(to.get(), "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return LastFailure(to.get());
    return std::nullopt;
}
