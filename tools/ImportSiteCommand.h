#pragma once

#include "scheme_services/site/SiteImport.h"
#include "tools/Command.h"
#include "tools/CommandOptions.h"

#include <QCoreApplication>

/// "import-site": brings a site from a table or a site file into the client's site file.
class ImportSiteCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ImportSiteCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;

private:
    static void TellProblems(const QString& strFile, const SiteImportPlan& plan, bool bJson,
                             CommandEnvironment& environment);
    static void Tell(const SiteImportPlan& plan, bool bDryRun, const QString& strBackup,
                     CommandEnvironment& environment);
    static void TellJson(const SiteImportPlan& plan, bool bDryRun, const QString& strBackup,
                         CommandEnvironment& environment);
};
