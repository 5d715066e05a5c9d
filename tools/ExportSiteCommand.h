#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "export-site": writes the client's site as a table or in the form of the site file.
class ExportSiteCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ExportSiteCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
