#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "diff": tells what differs between two files of schemes.
class DiffCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(DiffCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
