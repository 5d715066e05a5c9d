#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeReadOnlyFile.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeQuery.h"

#include <QDateTime>
#include <QFileInfo>
#include <QThread>
#include <QUrl>

#include <sqlite3.h>

#include <algorithm>

namespace {

using Reason = AlarmSchemeReadOutcome::Reason;

constexpr std::chrono::milliseconds RetryInterval{20};
constexpr std::chrono::milliseconds PulseInterval{100};
/// So often that the pulse comes in time, so rarely that it costs nothing.
constexpr int InstructionsBetweenLooks = 10000;
constexpr int PagesBetweenLooks = 1000;

/// The file's header: what it begins with, and the two bytes that are 2 where a write-ahead log is in use.
constexpr char Magic[] = "SQLite format 3";
constexpr int WriteVersionAt = 18;
constexpr int ReadVersionAt = 19;
constexpr char WriteAheadLog = 2;
/// No page is smaller.
constexpr qint64 LeastSize = 512;

Reason ReasonOf(int iCode)
{
    switch (iCode) {
    case SQLITE_READONLY_ROLLBACK:
    case SQLITE_READONLY_RECOVERY:
    case SQLITE_READONLY_CANTINIT:
    case SQLITE_READONLY_CANTLOCK:
        return Reason::UnfinishedJob;
    default:
        break;
    }
    switch (iCode & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Reason::Locked;
    case SQLITE_CORRUPT:
        return Reason::Damaged;
    case SQLITE_NOTADB:
        return Reason::NotADatabase;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return Reason::NoAccess;
    case SQLITE_INTERRUPT:
        return Reason::Stopped;
    default:
        return Reason::Other;
    }
}

/// A query that is stepped to its first row.
AlarmSchemeQuery Ask(sqlite3* pDatabase, const char* szSql, int& iResult)
{
    sqlite3_stmt* statement = nullptr;
    iResult = sqlite3_prepare_v2(pDatabase, szSql, -1, &statement, nullptr);
    AlarmSchemeQuery query(statement);
    if (iResult == SQLITE_OK)
        iResult = query.Step();
    return query;
}

} // namespace

void AlarmSchemeReadOnlyFile::CloseDatabase::operator()(sqlite3* pDatabase) const
{
    sqlite3_close(pDatabase);
}

AlarmSchemeReadOnlyFile::AlarmSchemeReadOnlyFile(const QString& strPath,
                                                 std::chrono::milliseconds busyTimeOut,
                                                 const AlarmSchemeStoreReader::Pulse& pulse)
    : m_strPath(strPath)
    , m_deadline(std::chrono::steady_clock::now() + busyTimeOut)
    , m_pulse(pulse)
    , m_lastPulse(std::chrono::steady_clock::now())
{
    m_outcome.strPath = strPath;
}

AlarmSchemeReadOnlyFile::~AlarmSchemeReadOnlyFile() = default;

int AlarmSchemeReadOnlyFile::OnBusy(void* pSelf, int)
{
    auto* const self = static_cast<AlarmSchemeReadOnlyFile*>(pSelf);
    self->Pulse();
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(self->m_deadline -
                                                                            std::chrono::steady_clock::now());
    if (self->m_bStopped || left.count() <= 0)
        return 0;
    QThread::msleep(static_cast<unsigned long>(std::min(left, RetryInterval).count()));
    return 1;
}

int AlarmSchemeReadOnlyFile::OnProgress(void* pSelf)
{
    auto* const self = static_cast<AlarmSchemeReadOnlyFile*>(pSelf);
    self->Pulse();
    return self->m_bStopped ? 1 : 0;
}

void AlarmSchemeReadOnlyFile::Watch(sqlite3* pDatabase)
{
    sqlite3_busy_handler(pDatabase, &AlarmSchemeReadOnlyFile::OnBusy, this);
    sqlite3_progress_handler(pDatabase, InstructionsBetweenLooks, &AlarmSchemeReadOnlyFile::OnProgress, this);
}

void AlarmSchemeReadOnlyFile::Pulse()
{
    const auto now = std::chrono::steady_clock::now();
    if (m_bStopped || !m_pulse || now - m_lastPulse < PulseInterval)
        return;
    m_lastPulse = now;
    m_bStopped = !m_pulse();
}

bool AlarmSchemeReadOnlyFile::Refuse(Reason eReason, const QString& strTechnical)
{
    m_outcome.eReason = eReason;
    m_outcome.strTechnical = strTechnical;
    return false;
}

void AlarmSchemeReadOnlyFile::Fail(int iCode, const QString& strMessage)
{
    Refuse(ReasonOf(iCode), strMessage);
}

bool AlarmSchemeReadOnlyFile::FailAtLast(sqlite3* pDatabase)
{
    return Refuse(ReasonOf(sqlite3_extended_errcode(pDatabase)),
                  QString::fromUtf8(sqlite3_errmsg(pDatabase)));
}

AlarmSchemeReadOutcome AlarmSchemeReadOnlyFile::Outcome() const
{
    AlarmSchemeReadOutcome outcome = m_outcome;
    if (m_bStopped)
        outcome.eReason = Reason::Stopped;
    else if (outcome.IsSuccess())
        outcome.eReason = Reason::Other;
    return outcome;
}

bool AlarmSchemeReadOnlyFile::Open()
{
    if (!LookAtFile() || !LookAtLog() || !Connect() || !FindSchemes() || !CheckHealth())
        return false;
    // The check may have taken a while, and a program that wants to write shall not wait for both.
    return sqlite3_exec(Handle(), "COMMIT; BEGIN", nullptr, nullptr, nullptr) == SQLITE_OK ||
           FailAtLast(Handle());
}

bool AlarmSchemeReadOnlyFile::LookAtFile()
{
    const QFileInfo info(m_strPath);
    if (m_strPath.isEmpty() || !info.exists())
        return Refuse(Reason::NotFound);
    // A pipe would be waited for without an end.
    if (!info.isFile())
        return Refuse(Reason::NotAFile);
    // Through SQLite, which keeps the locks of this process: a file that is opened and closed beside it takes
    // away those of a save that another connection has under way.
    sqlite3* raw = nullptr;
    const int opened =
        sqlite3_open_v2(info.absoluteFilePath().toUtf8().constData(), &raw, SQLITE_OPEN_READONLY, nullptr);
    const std::unique_ptr<sqlite3, CloseDatabase> database(raw);
    sqlite3_file* file = nullptr;
    if (opened != SQLITE_OK)
        return Refuse(Reason::NoAccess, QString::fromUtf8(sqlite3_errstr(opened)));
    if (sqlite3_file_control(raw, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || file == nullptr ||
        file->pMethods == nullptr)
        return Refuse(Reason::NoAccess);
    QByteArray header(ReadVersionAt + 1, '\0');
    // A file that is shorter is read as if it ended with zeros.
    const int read = file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0);
    if (read != SQLITE_OK && read != SQLITE_IOERR_SHORT_READ)
        return Refuse(Reason::NoAccess, QString::fromUtf8(sqlite3_errstr(read)));
    // SQLite takes an empty file for a database without tables.
    if (info.size() == 0)
        return Refuse(Reason::NoSchemes);
    if (info.size() < LeastSize)
        return Refuse(Reason::NotADatabase);
    m_bWriteAheadLog = header.startsWith(Magic) && (header.at(WriteVersionAt) == WriteAheadLog ||
                                                    header.at(ReadVersionAt) == WriteAheadLog);
    return true;
}

bool AlarmSchemeReadOnlyFile::LookAtLog()
{
    // With a write-ahead log SQLite makes its two files, the log and the index, where they are missing, even
    // for readers. What can be read without making any is read.
    const QFileInfo log(m_strPath + QLatin1String("-wal"));
    const bool content = log.exists() && log.size() > 0;
    m_bWriteAheadLog = m_bWriteAheadLog || content;
    if (!m_bWriteAheadLog)
        return true;
    if (content && !QFileInfo::exists(m_strPath + QLatin1String("-shm")))
        return Refuse(Reason::UnfinishedJob);
    m_bUnshared = !content;
    m_print = TakePrint();
    return true;
}

AlarmSchemeReadOnlyFile::Print AlarmSchemeReadOnlyFile::TakePrint() const
{
    const QFileInfo info(m_strPath);
    return Print{info.size(), info.lastModified().toMSecsSinceEpoch()};
}

QByteArray AlarmSchemeReadOnlyFile::Address() const
{
    // An absolute path, for one that begins with "file:" would be taken apart.
    const QString path = QFileInfo(m_strPath).absoluteFilePath();
    if (!m_bWriteAheadLog)
        return path.toUtf8();
    return QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded) +
           (m_bUnshared ? "?immutable=1" : "?readonly_shm=1");
}

bool AlarmSchemeReadOnlyFile::Connect()
{
    sqlite3* database = nullptr;
    const int flags = SQLITE_OPEN_READONLY | (m_bWriteAheadLog ? SQLITE_OPEN_URI : 0);
    const int opened = sqlite3_open_v2(Address().constData(), &database, flags, nullptr);
    m_database.reset(database);
    if (opened != SQLITE_OK)
        return Refuse(ReasonOf(opened), QString::fromUtf8(sqlite3_errstr(opened)));
    sqlite3_db_config(database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    Watch(database);
    return true;
}

bool AlarmSchemeReadOnlyFile::FindSchemes()
{
    // The first read takes the lock that keeps others from writing.
    int result = sqlite3_exec(Handle(), "BEGIN", nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        return FailAtLast(Handle());
    const AlarmSchemeQuery tables = Ask(Handle(),
                                        "select count(*) from main.sqlite_master where type = 'table' and "
                                        "name = 'AlarmUniqueID' collate nocase",
                                        result);
    if (result != SQLITE_ROW)
        return FailAtLast(Handle());
    return tables.Int(0) > 0 || Refuse(Reason::NoSchemes);
}

bool AlarmSchemeReadOnlyFile::CheckHealth()
{
    int result = SQLITE_OK;
    const AlarmSchemeQuery pageSize = Ask(Handle(), "PRAGMA main.page_size", result);
    if (result != SQLITE_ROW)
        return FailAtLast(Handle());
    // SQLite reads a last page that was cut off as if it ended with zeros.
    if (!m_bWriteAheadLog && QFileInfo(m_strPath).size() % std::max(pageSize.Int(0), 1) != 0)
        return Refuse(Reason::Damaged, QStringLiteral("the file is cut off"));
    const AlarmSchemeQuery check = Ask(Handle(), "PRAGMA quick_check(1)", result);
    if (result != SQLITE_ROW)
        return FailAtLast(Handle());
    const QString verdict = check.Text(0);
    return verdict == QLatin1String("ok") || Refuse(Reason::Damaged, verdict);
}

sqlite3* AlarmSchemeReadOnlyFile::MakeCopy()
{
    // A file without a name, which SQLite keeps in memory while it is small and removes at the end.
    sqlite3* copy = nullptr;
    const int opened = sqlite3_open_v2("", &copy, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    std::unique_ptr<sqlite3, CloseDatabase> owner(copy);
    if (opened != SQLITE_OK) {
        Refuse(Reason::Other, QString::fromUtf8(sqlite3_errstr(opened)));
        return nullptr;
    }
    Watch(copy);
    sqlite3_backup* const backup = sqlite3_backup_init(copy, "main", Handle(), "main");
    while (backup != nullptr && !m_bStopped && sqlite3_backup_step(backup, PagesBetweenLooks) == SQLITE_OK)
        Pulse();
    const int done = backup != nullptr ? sqlite3_backup_finish(backup) : SQLITE_ERROR;
    if (m_bStopped || done != SQLITE_OK || backup == nullptr) {
        FailAtLast(copy);
        return nullptr;
    }
    return owner.release();
}

bool AlarmSchemeReadOnlyFile::Close()
{
    m_database.reset();
    if (!m_bUnshared)
        return true;
    const Print print = TakePrint();
    if (print.iSize != m_print.iSize || print.iTime != m_print.iTime ||
        QFileInfo(m_strPath + QLatin1String("-wal")).size() > 0)
        return Refuse(Reason::Locked);
    return true;
}
