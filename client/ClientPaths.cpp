#include "client/ClientPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString Below(const QString& strDirectory, const QString& strName)
{
    return QDir::cleanPath(QDir(strDirectory).absoluteFilePath(strName));
}

} // namespace

namespace ClientPaths {

QStringList SharedDirectories(const QString& strProgramDirectory)
{
    return {Below(strProgramDirectory, QStringLiteral(".")),
            Below(strProgramDirectory, QStringLiteral("../share/acs-client"))};
}

QString SkinParentDirectory(const QString& strProgramDirectory)
{
    const QStringList directories = SharedDirectories(strProgramDirectory);
    for (const QString& strDirectory : directories) {
        if (QFileInfo(Below(strDirectory, QStringLiteral("Skin"))).isDir()) {
            return strDirectory;
        }
    }
    return directories.constFirst();
}

QStringList ModuleDirectories(const QString& strProgramDirectory)
{
    return {Below(strProgramDirectory, QStringLiteral("modules")),
            Below(strProgramDirectory, QStringLiteral("../lib/acs-client/modules"))};
}

QStringList TranslationDirectories(const QString& strProgramDirectory)
{
    QStringList directories;
    const QStringList shared = SharedDirectories(strProgramDirectory);
    for (const QString& strDirectory : shared) {
        directories.append(Below(strDirectory, QStringLiteral("translations")));
    }
    return directories;
}

QString DefaultDataDirectory()
{
    QString strBase = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    if (strBase.isEmpty()) {
        strBase = QDir::home().absoluteFilePath(QStringLiteral(".acs-client"));
    }
    return QDir::cleanPath(strBase);
}

QString SettingsFile(const QString& strDataDirectory)
{
    return Below(strDataDirectory, QStringLiteral("client.ini"));
}

QString LogFile(const QString& strDataDirectory)
{
    return Below(strDataDirectory, QStringLiteral("acs-client.log"));
}

QString SiteFile(const QString& strDataDirectory)
{
    return Below(strDataDirectory, QStringLiteral("site.json"));
}

QString ChoiceDirectory(const QString& strLastFile)
{
    const QFileInfo last(strLastFile);
    if (!strLastFile.isEmpty() && last.isAbsolute() && last.dir().exists()) {
        return last.absolutePath();
    }
    const QString strDocuments = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(strDocuments).isDir() ? strDocuments : QDir::homePath();
}

} // namespace ClientPaths
