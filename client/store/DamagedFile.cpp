#include "client/store/DamagedFile.h"

#include "client/store/DatabaseCopy.h"
#include "client/store/FileHealth.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// The files of a database. It comes last, so that a program that is cut off between them leaves no journal
/// to a new database, which would discard it.
constexpr std::array<const char*, 4> Suffixes{"-journal", "-wal", "-shm", ""};

/// A copy that is being made, and one that is whole and only has to be renamed.
const QLatin1String Restoring(".restoring");
const QLatin1String Restored(".restored");

QString With(const QString& strPath, const char* szSuffix)
{
    return strPath + QLatin1String(szSuffix);
}

AlarmSchemeStatementFailure CannotRename(const QFile& file)
{
    return {SQLITE_CANTOPEN,
            QStringLiteral("%1 cannot be renamed: %2").arg(file.fileName(), file.errorString())};
}

void RemoveCopy(const QString& strCopy)
{
    QFile::remove(strCopy);
    QFile::remove(With(strCopy, "-journal"));
}

} // namespace

DamagedFile::DamagedFile(const QString& strDatabase, Clock clock)
    : m_strDatabase(QFileInfo(strDatabase).absoluteFilePath())
    , m_clock(clock ? std::move(clock) : Clock(&QDateTime::currentDateTime))
{
}

DamagedFile::Failure DamagedFile::SetAside()
{
    RemoveCopy(m_strDatabase + Restored);
    return Rename();
}

DamagedFile::Failure DamagedFile::ReplaceBy(const QString& strBackup)
{
    const QString restoring = m_strDatabase + Restoring;
    const QString restored = m_strDatabase + Restored;
    RemoveCopy(restoring);
    RemoveCopy(restored);
    const FileHealth::Findings findings = FileHealth::Inspect(strBackup);
    Failure failure = findings.failure;
    if (!failure && !findings.bHoldsSchemes)
        failure =
            AlarmSchemeStatementFailure{SQLITE_NOTADB, QStringLiteral("%1 holds no schemes").arg(strBackup)};
    if (!failure)
        failure = DatabaseCopy::Copy(strBackup, restoring, std::chrono::milliseconds(0));
    if (!failure)
        failure = FileHealth::Inspect(restoring).failure;
    QFile copy(restoring);
    if (!failure && !copy.rename(restored))
        failure = CannotRename(copy);
    if (!failure)
        failure = Rename();
    if (failure) {
        RemoveCopy(restoring);
        RemoveCopy(restored);
        return failure;
    }
    FinishReplacing(m_strDatabase);
    if (!QFileInfo::exists(m_strDatabase))
        return AlarmSchemeStatementFailure{SQLITE_CANTOPEN,
                                           QStringLiteral("%1 cannot be renamed").arg(restored)};
    return std::nullopt;
}

void DamagedFile::FinishReplacing(const QString& strDatabase)
{
    const QString restored = strDatabase + Restored;
    if (QFileInfo::exists(restored) && !QFileInfo::exists(strDatabase))
        QFile::rename(restored, strDatabase);
}

DamagedFile::Failure DamagedFile::Rename()
{
    const QString name = FreeName();
    QList<const char*> renamed;
    for (const char* suffix : Suffixes) {
        QFile file(With(m_strDatabase, suffix));
        if (!file.exists())
            continue;
        if (!file.rename(With(name, suffix))) {
            const AlarmSchemeStatementFailure failure = CannotRename(file);
            for (const char* back : qAsConst(renamed))
                QFile::rename(With(name, back), With(m_strDatabase, back));
            return failure;
        }
        renamed.append(suffix);
    }
    m_strKeptAs = name;
    return std::nullopt;
}

QString DamagedFile::FreeName() const
{
    const QFileInfo database(m_strDatabase);
    const QString stem =
        QStringLiteral("%1.damaged-%2")
            .arg(database.completeBaseName(), m_clock().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    const auto isTaken = [](const QString& name) {
        return std::any_of(Suffixes.cbegin(), Suffixes.cend(),
                           [&name](const char* suffix) { return QFileInfo::exists(With(name, suffix)); });
    };
    QString name = database.absoluteDir().absoluteFilePath(stem + QLatin1String(".db"));
    for (int number = 2; isTaken(name); ++number)
        name = database.absoluteDir().absoluteFilePath(QStringLiteral("%1-%2.db").arg(stem).arg(number));
    return name;
}
