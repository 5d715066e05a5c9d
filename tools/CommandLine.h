#pragma once

#include "tools/Command.h"
#include "tools/CommandEnvironment.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

/// Finds the command that the arguments name and runs it.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();
    ~CommandLine();

    /// `arguments` as of the process, the program's own name first. The result is an ExitCode.
    int Run(const QStringList& arguments, CommandEnvironment& environment);

private:
    Command* Find(const QString& strName) const;
    QString Help() const;

    std::vector<std::unique_ptr<Command>> m_commands;
};
