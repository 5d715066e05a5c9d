#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "revert": takes a step of the history back.
class RevertCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RevertCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
