#include "platform/SystemLibrary/SystemPaths.h"

#include <QDir>
#include <QGlobalStatic>

namespace {

Q_GLOBAL_STATIC(QString, dataDirectory)

} // namespace

void SystemPaths::SetDataDirectory(const QString& strDirectory)
{
    *dataDirectory() = strDirectory.isEmpty() ? QString() : QDir(strDirectory).absolutePath();
}

QString SystemPaths::DataDirectory()
{
    return *dataDirectory();
}

QString QGetDatabaseDirPath()
{
    const QString strData = SystemPaths::DataDirectory();
    return strData.isEmpty() ? QString() : QGetAbsolutePath(QStringLiteral("Database"), strData);
}

QString QGetAbsolutePath(const QString& strFileName, const QString& strDirectory)
{
    return QDir::cleanPath(QDir(QDir(strDirectory).absolutePath()).absoluteFilePath(strFileName));
}
