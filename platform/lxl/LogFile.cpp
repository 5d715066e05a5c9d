#include "platform/lxl/LogFile.h"

#include <QFileInfo>

namespace lxl {

namespace {

/// A file that cannot be renamed, since somebody holds it, grows by so much before the next attempt.
constexpr qint64 Patience = 65536;

QString OldPath(const QString& strPath, int iAge)
{
    return strPath + QLatin1Char('.') + QString::number(iAge);
}

} // namespace

bool LogFile::Open(const QString& strPath)
{
    if (m_file.isOpen() && m_file.fileName() == strPath)
        return true;
    m_file.close();
    m_file.setFileName(strPath);
    m_bTorn = false;
    m_iNextAttempt = 0;
    return m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
}

void LogFile::Rotate(const QString& strPath, qint64 iLine, const LogRotation& rotation)
{
    m_file.close();
    // Another program may have begun a new file while this one still wrote to the old.
    const qint64 size = QFileInfo(strPath).size();
    if (size + iLine <= rotation.iLargest)
        return;
    if (rotation.iKept <= 0) {
        QFile::remove(strPath);
        return;
    }
    QFile::remove(OldPath(strPath, rotation.iKept));
    for (int age = rotation.iKept - 1; age >= 1; --age)
        QFile::rename(OldPath(strPath, age), OldPath(strPath, age + 1));
    QFile::rename(strPath, OldPath(strPath, 1));
}

bool LogFile::Write(const QString& strPath, const std::string& strLine, const LogRotation& rotation)
{
    if (!Open(strPath))
        return false;
    const auto size = static_cast<qint64>(strLine.size());
    const qint64 before = m_file.size();
    if (rotation.iLargest > 0 && before > 0 && before + size > rotation.iLargest &&
        before >= m_iNextAttempt) {
        Rotate(strPath, size, rotation);
        if (!Open(strPath))
            return false;
        if (m_file.size() >= before)
            m_iNextAttempt = m_file.size() + Patience;
    }
    if (m_bTorn && m_file.write("\n", 1) != 1)
        return false;
    m_bTorn = false;
    const qint64 written = m_file.write(strLine.data(), size);
    m_bTorn = written > 0 && written < size;
    return written == size;
}

} // namespace lxl
