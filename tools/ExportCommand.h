#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "export": writes the schemes of a database as a text of schemes.
class ExportCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ExportCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
