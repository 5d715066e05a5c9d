#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

class QTextStream;
class SiteIndex;
struct AlarmInfo;
struct AlarmSourceKey;

/// "show": shows everything that is set in a scheme.
class ShowCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ShowCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;

private:
    static QStringList Lines(const AlarmSourceKey& key, const AlarmInfo& info, const SiteIndex& site);
    static void Write(const AlarmSourceKey& key, const AlarmInfo& info, const SiteIndex& site,
                      QTextStream& out);
};
