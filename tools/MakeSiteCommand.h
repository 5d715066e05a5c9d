#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

/// "make-site": writes the site file of a made-up site of any size.
class MakeSiteCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(MakeSiteCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;
};
