#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "platform/SiteLibrary/SiteFile.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/AlarmSchemeData/TestFile.h"
#include "tools/CommandLine.h"

#include <QStringList>
#include <QTextStream>

/// One run of the program, in process.
struct Run
{
    explicit Run(const QStringList& arguments, const QString& strDataDirectory = {})
    {
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        CommandEnvironment environment{outStream, errStream, strDataDirectory};
        code = CommandLine().Run(QStringList(QStringLiteral("acs-scheme")) + arguments, environment);
    }

    QString out;
    QString err;
    int code;
};

/// The arguments of a line without quotes.
inline QStringList Words(const char* szLine)
{
    return QString::fromLatin1(szLine).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A data directory as the client keeps it, with a site and stored schemes.
class ClientData
{
public:
    ClientData(const Site& site, const AlarmInfoMap& schemes)
    {
        SiteFileError error;
        if (!SiteFile::Write(File("site.json"), site, error))
            qFatal("%s", qPrintable(error.Text()));
        Store(schemes);
    }

    void Store(const AlarmInfoMap& schemes)
    {
        const LogCatcher quiet;
        AlarmSchemeDatabaseParser store;
        if (store.SaveAll(&schemes) != 0 || store.FailedStatements() != 0)
            qFatal("cannot store the schemes of a test");
    }
    QString Directory() const { return m_folder.Root(); }
    QString Database() const { return m_folder.File(); }
    QString File(const char* szName) const
    {
        return QDir(m_folder.Root()).absoluteFilePath(QLatin1String(szName));
    }
    QString Write(const char* szName, const QByteArray& bytes) const
    {
        TestFile::Write(File(szName), bytes);
        return File(szName);
    }

private:
    StoreFolder m_folder;
};
