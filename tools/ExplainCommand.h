#pragma once

#include "tools/Command.h"

#include <QCoreApplication>

class QTextStream;
class SiteIndex;
struct AlarmSourceKey;
struct SchemeExplanation;

/// "explain": tells what would happen if an event came at a time.
class ExplainCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ExplainCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;

private:
    static void Write(const SchemeExplanation& explanation, const AlarmSourceKey& asked,
                      const SiteIndex& site, QTextStream& out);
};
