#include "tools/CommandEnvironment.h"

#include <QDir>
#include <QStandardPaths>

QString ClientDataDirectory()
{
    // The client asks for its own application's directory, which is this one followed by its name.
    const QString strBase = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir::cleanPath(strBase.isEmpty() ? QDir::home().absoluteFilePath(QStringLiteral(".acs-client"))
                                             : QDir(strBase).absoluteFilePath(QStringLiteral("acs-client")));
}
