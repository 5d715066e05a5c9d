#pragma once

#include "scheme_services/evaluation/Finding.h"
#include "tools/Command.h"

#include <QCoreApplication>
#include <QVector>

class QTextStream;
class SiteIndex;

/// "check": finds what cannot be meant.
class CheckCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(CheckCommand)

public:
    QString Name() const override;
    QString Description() const override;
    int Run(const QStringList& arguments, CommandEnvironment& environment) override;

private:
    struct Counts
    {
        int iSchemes = 0;
        int iErrors = 0;
        int iWarnings = 0;
        int iInformation = 0;
        int iSilenced = 0;
    };

    static int Count(const QVector<Finding>& findings, FindingSeverity severity);
    static void Write(const QVector<Finding>& findings, const Counts& counts, const SiteIndex& site,
                      QTextStream& out);
};
