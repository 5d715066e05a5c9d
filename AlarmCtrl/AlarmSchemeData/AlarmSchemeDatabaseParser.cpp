#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeFileCheck.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeQuery.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatementText.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"
#include "platform/SystemLibrary/SystemPaths.h"
#include "platform/lxl/DPrintLog.h"

#include <QByteArray>

#include <sqlite3.h>

#include <memory>
#include <utility>

namespace {

/// Where the log line of a failed statement says that it comes from. Tools that read the log search for it,
/// so it does not follow the lines of this file.
constexpr char LogFile[] = "AlarmCtrl\\AlarmSchemeData\\AlarmSchemeDatabaseParser";
constexpr int LogLine = 1056;
constexpr char LogFunction[] = "AlarmSchemeDatabaseParser::ExecOnce";

void LogFailure(const char* szMessage)
{
    lxl::DPrintLog::instance().Log(LogFile, LogLine, LogFunction, "", lxl::LogError,
                                   "AlarmSchemeDatabaseParser ExecOnce failed, error = %s", szMessage);
}

QString RefusedMessage()
{
    return QStringLiteral("a text holds a double quote or a null character");
}

QString WithoutTabs(const char* szStatement)
{
    return QString::fromLatin1(szStatement).remove(QLatin1Char('\t'));
}

} // namespace

AlarmSchemeDatabaseParser::AlarmSchemeDatabaseParser()
    : AlarmSchemeDatabaseParser(ConnectionSetup())
{
}

AlarmSchemeDatabaseParser::AlarmSchemeDatabaseParser(const ConnectionSetup& setup, const QString& strFile)
    : m_fileCheck(std::make_unique<AlarmSchemeFileCheck>())
{
    Open(setup, strFile);
}

AlarmSchemeDatabaseParser::AlarmSchemeDatabaseParser(sqlite3* pCopy)
    : m_pDatabase(pCopy)
    , m_bQuiet(true)
    , m_fileCheck(std::make_unique<AlarmSchemeFileCheck>())
{
    AcceptQuotedTexts();
    ExecFixed(SchemeStatements::ForeignKeysOn);
    BringUpToDate();
}

AlarmSchemeDatabaseParser::~AlarmSchemeDatabaseParser()
{
    Close();
}

bool AlarmSchemeDatabaseParser::IsOpen() const
{
    return m_pDatabase != nullptr;
}

QString AlarmSchemeDatabaseParser::GetPath() const
{
    return m_strPath;
}

sqlite3* AlarmSchemeDatabaseParser::GetHandle() const
{
    return m_pDatabase;
}

void AlarmSchemeDatabaseParser::Open(const ConnectionSetup& setup, const QString& strFile)
{
    if (m_pDatabase != nullptr)
        return;
    QString path = strFile;
    const QString directory = QGetDatabaseDirPath();
    // Without a directory the file would come to lie wherever the program happens to run.
    if (path.isEmpty() && !directory.isEmpty())
        path = QGetAbsolutePath(QStringLiteral("AlarmScheme.db"), directory);
    const int opened =
        path.isEmpty() ? SQLITE_CANTOPEN : sqlite3_open(path.toUtf8().constData(), &m_pDatabase);
    if (opened != SQLITE_OK) {
        m_firstFailure = AlarmSchemeStatementFailure{opened, QString::fromUtf8(sqlite3_errstr(opened))};
        Close();
    } else if (setup && !setup(m_pDatabase)) {
        Close();
    } else {
        AcceptQuotedTexts();
        ExecFixed(SchemeStatements::ForeignKeysOn);
        if (ExecFixed(SchemeStatements::CacheSize) != SQLITE_OK) {
            Close();
        } else {
            m_strPath = path;
        }
    }
    BringUpToDate();
}

void AlarmSchemeDatabaseParser::BringUpToDate()
{
    BeginTransaction();
    CreateSchema();
    EndTransaction();
    if (m_pDatabase != nullptr)
        AlarmSchemeFileCheck::AddMissingIndexes(m_pDatabase);
}

void AlarmSchemeDatabaseParser::Close()
{
    // Whatever is still watching the connection belongs to a user who may be gone.
    if (m_pDatabase != nullptr)
        sqlite3_commit_hook(m_pDatabase, nullptr, nullptr);
    sqlite3_close(std::exchange(m_pDatabase, nullptr));
}

void AlarmSchemeDatabaseParser::AcceptQuotedTexts()
{
    // The statements write texts between double quotes, which some builds of SQLite take for names only.
#ifdef SQLITE_DBCONFIG_DQS_DML
    sqlite3_db_config(m_pDatabase, SQLITE_DBCONFIG_DQS_DML, 1, nullptr);
    sqlite3_db_config(m_pDatabase, SQLITE_DBCONFIG_DQS_DDL, 1, nullptr);
#endif
}

void AlarmSchemeDatabaseParser::CreateSchema()
{
    using namespace SchemeStatements;
    if (m_pDatabase == nullptr)
        return;
    ExecOnce(WithoutTabs(CreateUniqueId));
    ExecOnce(WithoutTabs(CreateBaseInfo));
    AddMailColumn();
    for (const char* statement : {CreateSplitInfo, CreateVideoId, CreateVideoInfo, CreateAlarmOutId,
                                  CreateDoorInfo, CreateAlarmOutInfo, CreateFileInfo})
        ExecOnce(WithoutTabs(statement));
    ExecFixed(EnsureFileInfoRow);
    ExecFilled(WriteVersion, {QString::fromLatin1(Version)});
    ExecOnce(WithoutTabs(CreateDefenceTimeInfo));
}

void AlarmSchemeDatabaseParser::AddMailColumn()
{
    // Older files lack the column. On all others the statement fails, is logged and is no failure.
    const int64_t failedBefore = m_iFailed;
    const std::optional<AlarmSchemeStatementFailure> firstBefore = m_firstFailure;
    if (ExecFixed(SchemeStatements::AddMailColumn) == SQLITE_OK)
        return;
    if (QByteArray(sqlite3_errmsg(m_pDatabase)).startsWith("duplicate column name")) {
        m_iFailed = failedBefore;
        m_firstFailure = firstBefore;
    }
}

int32_t AlarmSchemeDatabaseParser::ExecOnce(const QString& strSql)
{
    if (m_pDatabase == nullptr)
        return -1;
    if (!IsWholeStatement(strSql)) {
        RefuseText();
        return SQLITE_ERROR;
    }
    char* message = nullptr;
    const int result = sqlite3_exec(m_pDatabase, strSql.toUtf8().constData(), nullptr, nullptr, &message);
    const std::unique_ptr<char, decltype(&sqlite3_free)> owner(message, &sqlite3_free);
    if (result != SQLITE_OK)
        CountFailure(sqlite3_extended_errcode(m_pDatabase), QString::fromUtf8(message));
    if (message != nullptr && !m_bQuiet)
        LogFailure(message);
    return result;
}

int32_t AlarmSchemeDatabaseParser::ExecFixed(const char* szStatement)
{
    return ExecOnce(QString::fromLatin1(szStatement));
}

int32_t AlarmSchemeDatabaseParser::ExecFilled(const char* szTemplate,
                                              std::initializer_list<StatementArgument> arguments)
{
    if (m_pDatabase == nullptr)
        return -1;
    if (const std::optional<QString> sql = FillStatement(szTemplate, arguments))
        return ExecOnce(*sql);
    RefuseText();
    return SQLITE_ERROR;
}

void AlarmSchemeDatabaseParser::RefuseText()
{
    CountFailure(AlarmSchemeStatementFailure::TextRefused, RefusedMessage());
    LogFailure(RefusedMessage().toUtf8().constData());
}

void AlarmSchemeDatabaseParser::CountFailure(int32_t iCode, const QString& strMessage)
{
    ++m_iFailed;
    if (!m_firstFailure)
        m_firstFailure = AlarmSchemeStatementFailure{iCode, strMessage};
}

void AlarmSchemeDatabaseParser::CountAndLogFailure()
{
    const QByteArray message(sqlite3_errmsg(m_pDatabase));
    CountFailure(sqlite3_extended_errcode(m_pDatabase), QString::fromUtf8(message));
    LogFailure(message.constData());
}

AlarmSchemeQuery AlarmSchemeDatabaseParser::Prepare(const QString& strSql)
{
    if (m_pDatabase == nullptr)
        return AlarmSchemeQuery();
    if (!IsWholeStatement(strSql)) {
        CountFailure(AlarmSchemeStatementFailure::TextRefused, RefusedMessage());
        return AlarmSchemeQuery();
    }
    sqlite3_stmt* statement = nullptr;
    const QByteArray sql = strSql.toUtf8();
    const int result = sqlite3_prepare_v2(m_pDatabase, sql.constData(), sql.size(), &statement, nullptr);
    if (result != SQLITE_OK) {
        CountFailure(sqlite3_extended_errcode(m_pDatabase), QString::fromUtf8(sqlite3_errmsg(m_pDatabase)));
        sqlite3_finalize(statement);
        return AlarmSchemeQuery();
    }
    return AlarmSchemeQuery(statement);
}

AlarmSchemeQuery AlarmSchemeDatabaseParser::PrepareFilled(const char* szTemplate,
                                                          std::initializer_list<StatementArgument> arguments)
{
    if (m_pDatabase == nullptr)
        return AlarmSchemeQuery();
    if (const std::optional<QString> sql = FillStatement(szTemplate, arguments))
        return Prepare(*sql);
    CountFailure(AlarmSchemeStatementFailure::TextRefused, RefusedMessage());
    return AlarmSchemeQuery();
}

bool AlarmSchemeDatabaseParser::NextRow(AlarmSchemeQuery& query)
{
    const int result = query.Step();
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        CountFailure(sqlite3_extended_errcode(m_pDatabase), QString::fromUtf8(sqlite3_errmsg(m_pDatabase)));
    return result == SQLITE_ROW;
}

void AlarmSchemeDatabaseParser::SetClock(const Clock& clock)
{
    m_clock = clock;
}

void AlarmSchemeDatabaseParser::BeginTransaction()
{
    if (m_iDepth == 0)
        ExecFixed(SchemeStatements::Begin);
    ++m_iDepth;
}

void AlarmSchemeDatabaseParser::EndTransaction()
{
    if (m_iDepth == 1)
        ExecFixed(SchemeStatements::Commit);
    --m_iDepth;
}

int32_t AlarmSchemeDatabaseParser::RollBack()
{
    m_iDepth = 0;
    return ExecFixed(SchemeStatements::RollBack);
}

int32_t AlarmSchemeDatabaseParser::GetTransactionDepth() const
{
    return m_iDepth;
}

int64_t AlarmSchemeDatabaseParser::FailedStatements() const
{
    return m_iFailed;
}

std::optional<AlarmSchemeStatementFailure> AlarmSchemeDatabaseParser::TakeFirstFailure()
{
    return std::exchange(m_firstFailure, std::nullopt);
}
