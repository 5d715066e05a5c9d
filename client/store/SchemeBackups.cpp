#include "client/store/SchemeBackups.h"

#include "client/store/DatabaseCopy.h"
#include "client/store/FileHealth.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Failure = std::optional<AlarmSchemeStatementFailure>;

constexpr qint64 HighestNumber = 999999999999;
/// Other programs may take the number in the meantime.
constexpr int AttemptsToName = 10;
/// A copy that was cut off; nobody works on one for so long.
constexpr qint64 SecondsOfCopying = 24LL * 60 * 60;
const QLatin1String CopySuffix(".copying");

AlarmSchemeStatementFailure FileFailure(const QString& strMessage)
{
    return {SQLITE_CANTOPEN, strMessage};
}

void RemoveCopy(const QString& strCopy)
{
    QFile::remove(strCopy);
    QFile::remove(strCopy + QLatin1String("-journal"));
}

/// A page without what copying changes in the first one: counters of changes and the version of the library
/// that wrote last.
void BlankCounters(QByteArray& page)
{
    struct Field
    {
        int iAt;
        int iBytes;
    };
    static constexpr std::array<Field, 4> fields{{{18, 2}, {24, 4}, {40, 4}, {92, 8}}};
    for (const Field& field : fields) {
        if (field.iAt + field.iBytes <= page.size())
            page.replace(field.iAt, field.iBytes, QByteArray(field.iBytes, '\0'));
    }
}

bool HoldTheSame(const QString& strA, const QString& strB)
{
    constexpr qint64 block = 64LL * 1024;
    QFile a(strA);
    QFile b(strB);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size())
        return false;
    for (bool first = true; !a.atEnd(); first = false) {
        QByteArray ofA = a.read(block);
        QByteArray ofB = b.read(block);
        if (first) {
            BlankCounters(ofA);
            BlankCounters(ofB);
        }
        if (ofA.isEmpty() || ofA != ofB)
            return false;
    }
    return true;
}

} // namespace

SchemeBackups::SchemeBackups(const QString& strDatabase, Clock clock)
    : m_strDatabase(QFileInfo(strDatabase).absoluteFilePath())
    , m_strBaseName(QFileInfo(strDatabase).completeBaseName())
    , m_strFolder(QFileInfo(m_strDatabase).absoluteDir().absoluteFilePath(QStringLiteral("backups")))
    , m_clock(clock ? std::move(clock) : Clock(&QDateTime::currentDateTime))
{
}

std::optional<SchemeBackup> SchemeBackups::Parse(const QString& strName) const
{
    const QString prefix = m_strBaseName + QLatin1Char('-');
    if (!strName.startsWith(prefix))
        return std::nullopt;
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]{4,12})-([0-9]{8})-([0-9]{6})\\.db\\z"));
    const QRegularExpressionMatch match = pattern.match(strName.mid(prefix.size()));
    if (!match.hasMatch())
        return std::nullopt;
    const QDate date = QDate::fromString(match.captured(2), QStringLiteral("yyyyMMdd"));
    const QTime time = QTime::fromString(match.captured(3), QStringLiteral("HHmmss"));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return SchemeBackup{QDir(m_strFolder).absoluteFilePath(strName), QDateTime(date, time),
                        match.captured(1).toLongLong()};
}

QList<SchemeBackup> SchemeBackups::List() const
{
    QList<SchemeBackup> backups;
    const QStringList names =
        QDir(m_strFolder).entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::Name);
    for (const QString& name : names) {
        if (const std::optional<SchemeBackup> backup = Parse(name))
            backups.append(*backup);
    }
    std::stable_sort(backups.begin(), backups.end(),
                     [](const SchemeBackup& a, const SchemeBackup& b) { return a.iNumber > b.iNumber; });
    return backups;
}

bool SchemeBackups::IsDue() const
{
    const QDate today = m_clock().date();
    const QList<SchemeBackup> backups = List();
    return std::none_of(backups.cbegin(), backups.cend(),
                        [&today](const SchemeBackup& backup) { return backup.time.date() == today; });
}

Failure SchemeBackups::Make(std::chrono::milliseconds wait) const
{
    return Make(wait, false);
}

Failure SchemeBackups::MakeUnlessSame(std::chrono::milliseconds wait) const
{
    return Make(wait, true);
}

Failure SchemeBackups::Make(std::chrono::milliseconds wait, bool bUnlessSame) const
{
    if (Failure failure = MakeFolder())
        return failure;
    RemoveLeftCopies();
    const QString copy =
        QDir(m_strFolder)
            .absoluteFilePath(m_strBaseName + QLatin1Char('-') +
                              QUuid::createUuid().toString(QUuid::WithoutBraces) + CopySuffix);
    Failure failure = DatabaseCopy::Copy(m_strDatabase, copy, wait);
    if (!failure)
        failure = FileHealth::Inspect(copy).failure;
    // The copy is compared, not the database: on some systems a program that closes a file loses the locks
    // that it holds on it otherwise.
    const QList<SchemeBackup> backups = bUnlessSame ? List() : QList<SchemeBackup>();
    if (!failure && !backups.isEmpty() && HoldTheSame(backups.first().strPath, copy)) {
        RemoveCopy(copy);
        return std::nullopt;
    }
    if (!failure)
        failure = Name(copy);
    if (failure)
        RemoveCopy(copy);
    else
        RemoveOld();
    return failure;
}

std::optional<SchemeBackups::Sound> SchemeBackups::NewestSound() const
{
    const QList<SchemeBackup> backups = List();
    for (const SchemeBackup& backup : backups) {
        const FileHealth::Findings findings = FileHealth::Inspect(backup.strPath);
        if (findings.IsSoundSchemeFile())
            return Sound{backup, findings.iSchemes};
    }
    return std::nullopt;
}

Failure SchemeBackups::MakeFolder() const
{
    if (QDir().mkpath(m_strFolder))
        return std::nullopt;
    return FileFailure(QStringLiteral("the folder %1 cannot be made").arg(m_strFolder));
}

Failure SchemeBackups::Name(const QString& strCopy) const
{
    for (int attempt = 0; attempt < AttemptsToName; ++attempt) {
        const QList<SchemeBackup> backups = List();
        const qint64 number = backups.isEmpty() ? 1 : backups.first().iNumber + 1;
        if (number > HighestNumber)
            break;
        const QString name = QStringLiteral("%1-%2-%3.db")
                                 .arg(m_strBaseName)
                                 .arg(number, 4, 10, QLatin1Char('0'))
                                 .arg(m_clock().toString(QStringLiteral("yyyyMMdd-HHmmss")));
        if (QFile::rename(strCopy, QDir(m_strFolder).absoluteFilePath(name)))
            return std::nullopt;
    }
    return FileFailure(QStringLiteral("the backup in %1 cannot be named").arg(m_strFolder));
}

void SchemeBackups::RemoveOld() const
{
    const QList<SchemeBackup> backups = List();
    for (int i = Kept; i < backups.size(); ++i)
        QFile::remove(backups.at(i).strPath);
}

void SchemeBackups::RemoveLeftCopies() const
{
    static const QRegularExpression uuid(QStringLiteral("\\A[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\\z"));
    const QString prefix = m_strBaseName + QLatin1Char('-');
    const QDateTime now = QDateTime::currentDateTime(); // files are dated by the computer
    const QFileInfoList files =
        QDir(m_strFolder).entryInfoList(QDir::Files | QDir::NoSymLinks | QDir::Hidden);
    for (const QFileInfo& file : files) {
        const QString name = file.fileName();
        if (name.startsWith(prefix) && name.endsWith(CopySuffix) &&
            uuid.match(name.mid(prefix.size(), name.size() - prefix.size() - CopySuffix.size())).hasMatch() &&
            file.lastModified().secsTo(now) > SecondsOfCopying)
            RemoveCopy(file.absoluteFilePath());
    }
}
