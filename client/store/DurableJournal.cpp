#include "client/store/DurableJournal.h"

#include <sqlite3.h>

namespace {

constexpr char Mode[] = "truncate";
constexpr char SynchronousFull[] = "2";

/// The first column of the first row; the code of the last step.
QByteArray Ask(sqlite3* pDatabase, const QByteArray& sql, int& iResult)
{
    sqlite3_stmt* statement = nullptr;
    iResult = sqlite3_prepare_v2(pDatabase, sql.constData(), sql.size(), &statement, nullptr);
    QByteArray value;
    if (iResult == SQLITE_OK)
        iResult = sqlite3_step(statement);
    if (iResult == SQLITE_ROW)
        value = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    return value;
}

} // namespace

std::optional<AlarmSchemeStatementFailure>
DurableJournal::Require(sqlite3* pDatabase, const QByteArray& schema, const std::function<bool()>& retry)
{
    const QByteArray pragma = "PRAGMA " + schema + '.';
    int result = SQLITE_OK;
    QByteArray mode = Ask(pDatabase, pragma + "journal_mode = TRUNCATE", result);
    while ((result & 0xFF) == SQLITE_BUSY && retry && retry())
        mode = Ask(pDatabase, pragma + "journal_mode = TRUNCATE", result);
    if (result != SQLITE_ROW || mode != Mode) {
        const QString why = result == SQLITE_ROW
                                ? QStringLiteral("the journal mode stays \"%1\"").arg(QString::fromUtf8(mode))
                                : QString::fromUtf8(sqlite3_errmsg(pDatabase));
        return AlarmSchemeStatementFailure{Refused, why};
    }
    sqlite3_exec(pDatabase, (pragma + "synchronous = FULL").constData(), nullptr, nullptr, nullptr);
    const QByteArray synchronous = Ask(pDatabase, pragma + "synchronous", result);
    if (synchronous != SynchronousFull)
        return AlarmSchemeStatementFailure{
            Refused, QStringLiteral("synchronous stays %1").arg(QString::fromUtf8(synchronous))};
    return std::nullopt;
}

bool DurableJournal::IsInUse(sqlite3* pDatabase, const QByteArray& schema)
{
    const QByteArray pragma = "PRAGMA " + schema + '.';
    int result = SQLITE_OK;
    // Only reading from the file brings to light what others have made of it.
    Ask(pDatabase, pragma + "schema_version", result);
    if (result != SQLITE_ROW)
        return true;
    return Ask(pDatabase, pragma + "journal_mode", result) == Mode &&
           Ask(pDatabase, pragma + "synchronous", result) == SynchronousFull;
}
