#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

struct OutputUse;

/// "who-switches": tells which schemes switch an output on.
class WhoSwitchesCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(WhoSwitchesCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;

private:
    static QString State(const OutputUse& use);
};
