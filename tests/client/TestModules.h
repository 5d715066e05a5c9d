#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QVariant>

/// The modules built for these tests, and what they wrote down about their life.
namespace TestModules {

inline QString FileName(const QString& strModule)
{
#if defined(Q_OS_WIN)
    return strModule + QStringLiteral(".dll");
#else
    return strModule + QStringLiteral(".so");
#endif
}

/// Puts a copy of a module into a "modules" folder of a program directory.
inline bool Install(const QString& strModule, const QString& strProgramDirectory)
{
    const QString strFrom = QCoreApplication::applicationDirPath() + QStringLiteral("/modules/");
    const QString strTo = strProgramDirectory + QStringLiteral("/modules/");
    return QDir().mkpath(strTo) && QFile::copy(strFrom + FileName(strModule), strTo + FileName(strModule));
}

inline QStringList TakeCalls()
{
    QStringList calls = qApp->property("moduleCalls").toStringList();
    qApp->setProperty("moduleCalls", QStringList());
    return calls;
}

} // namespace TestModules
