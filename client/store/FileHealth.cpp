#include "client/store/FileHealth.h"

#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

#include <memory>

namespace {

struct CloseDatabase
{
    void operator()(sqlite3* pDatabase) const { sqlite3_close(pDatabase); }
};

struct FinalizeStatement
{
    void operator()(sqlite3_stmt* pStatement) const { sqlite3_finalize(pStatement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

AlarmSchemeStatementFailure LastFailure(sqlite3* pDatabase)
{
    return {sqlite3_extended_errcode(pDatabase), QString::fromUtf8(sqlite3_errmsg(pDatabase))};
}

AlarmSchemeStatementFailure Damage(const QString& strMessage)
{
    return {SQLITE_CORRUPT, strMessage};
}

/// The statement on its first row; null when there is none.
Statement FirstRow(sqlite3* pDatabase, const char* szSql)
{
    sqlite3_stmt* raw = nullptr;
    sqlite3_prepare_v2(pDatabase, szSql, -1, &raw, nullptr);
    Statement statement(raw);
    if (statement && sqlite3_step(statement.get()) != SQLITE_ROW)
        statement.reset();
    return statement;
}

std::optional<qint64> Number(sqlite3* pDatabase, const char* szSql)
{
    const Statement row = FirstRow(pDatabase, szSql);
    if (!row)
        return std::nullopt;
    return sqlite3_column_int64(row.get(), 0);
}

} // namespace

std::optional<AlarmSchemeStatementFailure> FileHealth::Check(sqlite3* pDatabase, Depth eDepth)
{
    const Statement row =
        FirstRow(pDatabase, eDepth == Depth::Full ? "PRAGMA integrity_check(1)" : "PRAGMA quick_check(1)");
    if (!row)
        return LastFailure(pDatabase);
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row.get(), 0));
    if (sqlite3_stricmp(text, "ok") == 0)
        return std::nullopt;
    return Damage(QString::fromUtf8(text));
}

std::optional<AlarmSchemeStatementFailure> FileHealth::CheckSize(sqlite3* pDatabase)
{
    // SQLite reads a last page that was cut off as if it ended with zeros.
    const qint64 size = QFileInfo(QString::fromUtf8(sqlite3_db_filename(pDatabase, "main"))).size();
    const std::optional<qint64> page = Number(pDatabase, "PRAGMA main.page_size");
    if (page && *page > 0 && size % *page != 0)
        return Damage(QStringLiteral("the file is cut off"));
    return std::nullopt;
}

qint64 FileHealth::OrphanRows(sqlite3* pDatabase)
{
    return Number(pDatabase, "select count(*) from pragma_foreign_key_check").value_or(0);
}

FileHealth::Findings FileHealth::Inspect(const QString& strPath)
{
    // "immutable" is what keeps SQLite from making files beside one that asks for a write-ahead log.
    const QByteArray address =
        QUrl::fromLocalFile(QFileInfo(strPath).absoluteFilePath()).toEncoded(QUrl::FullyEncoded) +
        "?immutable=1";
    sqlite3* raw = nullptr;
    const int opened =
        sqlite3_open_v2(address.constData(), &raw, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    const std::unique_ptr<sqlite3, CloseDatabase> database(raw);
    Findings findings;
    if (opened != SQLITE_OK) {
        findings.failure = AlarmSchemeStatementFailure{opened, QString::fromUtf8(sqlite3_errstr(opened))};
        return findings;
    }
    findings.failure = Check(raw, Depth::Full);
    if (!findings.failure)
        findings.failure = CheckSize(raw);
    // SQLite takes a file without content for a database without tables.
    if (!findings.failure && Number(raw, "select count(*) from sqlite_master") == 0)
        findings.failure = AlarmSchemeStatementFailure{SQLITE_NOTADB, QStringLiteral("it holds no tables")};
    if (findings.failure)
        return findings;
    const std::optional<qint64> schemes =
        Number(raw, "select count(*) from (select distinct strEventSource, AlarmType from AlarmUniqueID)");
    findings.bHoldsSchemes = schemes.has_value();
    findings.iSchemes = static_cast<int>(schemes.value_or(0));
    return findings;
}
