#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/SiteIndex.h"
#include "tools/Command.h"

#include <QCoreApplication>
#include <QList>

class QTextStream;

/// "import": brings the schemes of a text into a database.
class ImportCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ImportCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;

private:
    enum class Mode
    {
        Merge,
        Replace,
    };

    static QString WordOf(Mode eMode);
    /// Makes the folder of a file; those that were missing on its path, the innermost first.
    static QStringList MakeFolder(const QString& strFile);
    /// What the database holds after the import.
    static AlarmInfoMap After(const AlarmInfoMap& before, const AlarmInfoMap& listed, Mode eMode);
    static void Tell(const AlarmInfoMap& before, const AlarmInfoMap& listed, const QList<Mode>& modes,
                     bool bDryRun, const SiteIndex& site, QTextStream& out);
    static void TellJson(const AlarmInfoMap& before, const AlarmInfoMap& listed, const QList<Mode>& modes,
                         bool bDryRun, const SiteIndex& site, QTextStream& out);
    static bool ReadText(const QString& strFile, bool bJson, AlarmInfoMap& map,
                         CommandEnvironment& environment);
    static bool ReadDatabase(const QString& strDatabase, AlarmInfoMap& map, CommandEnvironment& environment);
};
