#include "client/DraftFile.h"

#include "platform/SystemLibrary/WholeFile.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QUrl>

namespace {

constexpr quint32 Magic = 0x41435344;
constexpr qint32 Version = 1;
constexpr int MaximumNames = 1000;
const QLatin1String Suffix(".draft");

QByteArray Sum(const QByteArray& body)
{
    return QCryptographicHash::hash(body, QCryptographicHash::Sha256);
}

QByteArray BodyOf(const Draft& draft)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_12);
    stream << draft.strModule << draft.written.toMSecsSinceEpoch() << qint32(draft.iSchemes) << draft.content;
    return body;
}

bool ReadBody(const QByteArray& body, Draft& draft)
{
    QDataStream stream(body);
    stream.setVersion(QDataStream::Qt_5_12);
    qint64 iWritten = 0;
    qint32 iSchemes = -1;
    stream >> draft.strModule >> iWritten >> iSchemes >> draft.content;
    draft.written = QDateTime::fromMSecsSinceEpoch(iWritten, Qt::UTC);
    draft.iSchemes = iSchemes;
    return stream.status() == QDataStream::Ok && stream.atEnd() && !draft.strModule.isEmpty() &&
           draft.written.isValid();
}

} // namespace

DraftFile::DraftFile(const QString& strPath, std::unique_ptr<QLockFile> lock)
    : m_strPath(strPath)
    , m_lock(std::move(lock))
{
}

DraftFile::~DraftFile() = default;

std::unique_ptr<DraftFile> DraftFile::Take(const QString& strPath)
{
    auto lock = std::make_unique<QLockFile>(strPath + QStringLiteral(".lock"));
    // However old: only the lock of a program that has ended may be taken over.
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return nullptr;
    }
    return std::unique_ptr<DraftFile>(new DraftFile(strPath, std::move(lock)));
}

std::unique_ptr<DraftFile> DraftFile::Free(const QString& strFolder, const QString& strModule)
{
    QDir().mkpath(strFolder);
    const QString strName = QString::fromLatin1(QUrl::toPercentEncoding(strModule));
    for (int i = 1; i <= MaximumPlaces; ++i) {
        const QString strNumber = i == 1 ? QString() : QLatin1Char('-') + QString::number(i);
        const QString strPath = QDir(strFolder).absoluteFilePath(strName + strNumber + Suffix);
        if (QFile::exists(strPath)) {
            continue;
        }
        std::unique_ptr<DraftFile> file = Take(strPath);
        // Another program may have come and gone since the look.
        if (file && !QFile::exists(strPath)) {
            return file;
        }
    }
    return nullptr;
}

std::vector<std::unique_ptr<DraftFile>> DraftFile::Orphans(const QString& strFolder)
{
    std::vector<std::unique_ptr<DraftFile>> orphans;
    const QDir folder(strFolder);
    const QStringList names = folder.entryList({QLatin1Char('*') + Suffix}, QDir::Files, QDir::Name);
    for (const QString& strName : names) {
        std::unique_ptr<DraftFile> file = Take(folder.absoluteFilePath(strName));
        if (file && QFile::exists(file->Path())) {
            orphans.push_back(std::move(file));
        }
    }
    return orphans;
}

bool DraftFile::Read(Draft& draft, QString& strError) const
{
    QFile file(m_strPath);
    if (!file.open(QIODevice::ReadOnly)) {
        strError = file.errorString();
        return false;
    }
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_5_12);
    quint32 iMagic = 0;
    qint32 iVersion = 0;
    stream >> iMagic >> iVersion;
    if (stream.status() != QDataStream::Ok || iMagic != Magic) {
        strError = tr("it is no draft");
        return false;
    }
    if (iVersion != Version) {
        strError = tr("another version of the program has written it");
        return false;
    }
    QByteArray body;
    QByteArray sum;
    stream >> body >> sum;
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || sum != Sum(body) || !ReadBody(body, draft)) {
        strError = tr("it is damaged");
        return false;
    }
    return true;
}

bool DraftFile::Write(const QString& strPath, const Draft& draft, QString& strError)
{
    const QByteArray body = BodyOf(draft);
    WholeFile file(strPath);
    if (file.open(QIODevice::WriteOnly)) {
        QDataStream stream(&file);
        stream.setVersion(QDataStream::Qt_5_12);
        stream << Magic << Version << body << Sum(body);
        if (stream.status() == QDataStream::Ok && file.commit()) {
            return true;
        }
    }
    strError = file.errorString();
    return false;
}

bool DraftFile::Remove() const
{
    return QFile::remove(m_strPath) || !QFile::exists(m_strPath);
}

QString DraftFile::SetAside() const
{
    for (int i = 1; i <= MaximumNames; ++i) {
        const QString strNumber = i == 1 ? QString() : QLatin1Char('-') + QString::number(i);
        QString strAside = m_strPath + QStringLiteral(".broken") + strNumber;
        if (!QFile::exists(strAside) && QFile::rename(m_strPath, strAside)) {
            return strAside;
        }
    }
    return {};
}
