#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "history": tells who changed what and when.
class HistoryCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(HistoryCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
