#include "tools/CommandLine.h"

#include "tools/BackupCommand.h"
#include "tools/CheckCommand.h"
#include "tools/DiffCommand.h"
#include "tools/ExplainCommand.h"
#include "tools/ExportCommand.h"
#include "tools/ExportSiteCommand.h"
#include "tools/HistoryCommand.h"
#include "tools/ImportCommand.h"
#include "tools/ImportSiteCommand.h"
#include "tools/ListCommand.h"
#include "tools/MakeSiteCommand.h"
#include "tools/RestoreCommand.h"
#include "tools/RevertCommand.h"
#include "tools/ShowCommand.h"
#include "tools/WhoSwitchesCommand.h"

#include <QTextStream>

#include <algorithm>

CommandLine::CommandLine()
{
    m_commands.push_back(std::make_unique<ListCommand>());
    m_commands.push_back(std::make_unique<ShowCommand>());
    m_commands.push_back(std::make_unique<ExplainCommand>());
    m_commands.push_back(std::make_unique<WhoSwitchesCommand>());
    m_commands.push_back(std::make_unique<CheckCommand>());
    m_commands.push_back(std::make_unique<ExportCommand>());
    m_commands.push_back(std::make_unique<ImportCommand>());
    m_commands.push_back(std::make_unique<DiffCommand>());
    m_commands.push_back(std::make_unique<HistoryCommand>());
    m_commands.push_back(std::make_unique<RevertCommand>());
    m_commands.push_back(std::make_unique<BackupCommand>());
    m_commands.push_back(std::make_unique<RestoreCommand>());
    m_commands.push_back(std::make_unique<MakeSiteCommand>());
    m_commands.push_back(std::make_unique<ImportSiteCommand>());
    m_commands.push_back(std::make_unique<ExportSiteCommand>());
}

CommandLine::~CommandLine() = default;

Command* CommandLine::Find(const QString& strName) const
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&strName](const auto& pCommand) { return pCommand->Name() == strName; });
    return found == m_commands.end() ? nullptr : found->get();
}

QString CommandLine::Help() const
{
    QString strHelp = tr("Usage: acs-scheme <command> [options]") + QLatin1String("\n\n") + tr("Commands:") +
                      QLatin1Char('\n');
    for (const auto& pCommand : m_commands) {
        strHelp +=
            QStringLiteral("  %1  %2\n").arg(pCommand->Name().leftJustified(12), pCommand->Description());
    }
    return strHelp + QLatin1Char('\n') + tr("\"acs-scheme <command> --help\" lists a command's options.") +
           QLatin1Char('\n');
}

int CommandLine::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString strFirst = arguments.value(1);
    if (strFirst == QLatin1String("--help") || strFirst == QLatin1String("-h")) {
        environment.out << Help();
        return ExitCode::Done;
    }
    if (strFirst == QLatin1String("--version") || strFirst == QLatin1String("-v")) {
        environment.out << QStringLiteral("acs-scheme %1\n").arg(QCoreApplication::applicationVersion());
        return ExitCode::Done;
    }
    Command* const pCommand = Find(strFirst);
    if (pCommand == nullptr) {
        environment.err << (strFirst.isEmpty() ? tr("No command given.")
                                               : tr("Unknown command \"%1\".").arg(strFirst))
                        << "\n\n"
                        << Help();
        return ExitCode::WrongUse;
    }
    QStringList rest = arguments.mid(1);
    rest.first() = QStringLiteral("acs-scheme ") + pCommand->Name();
    return pCommand->Run(rest, environment);
}
