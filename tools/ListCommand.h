#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "list": lists the schemes of a database.
class ListCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ListCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
