#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "restore": puts a copy of a database back.
class RestoreCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RestoreCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
