#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "backup": copies a database.
class BackupCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(BackupCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
