#include "client/store/SystemUser.h"

#include <QDir>
#include <QFileInfo>

QString SystemUser::Name()
{
    for (const char* variable : {"USER", "USERNAME", "LOGNAME"}) {
        QString name = qEnvironmentVariable(variable).trimmed();
        if (!name.isEmpty())
            return name;
    }
    // A service may run without any of them.
    return QFileInfo(QDir::homePath()).owner();
}
