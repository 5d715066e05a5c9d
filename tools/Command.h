#pragma once

#include <QString>
#include <QStringList>

struct CommandEnvironment;

/// What a command answers to the shell.
namespace ExitCode {
constexpr int Done = 0;     ///< done, and nothing to report: armed, sound, equal, valid
constexpr int Finding = 1;  ///< done, with something to report: not armed, errors found, differences
constexpr int WrongUse = 2; ///< nothing was done
constexpr int Failure = 3;  ///< nothing was changed
} // namespace ExitCode

/// One command of acs-scheme. Runs in process with streams of its own, so that it can be used without a
/// shell.
class Command
{
public:
    Command() = default;
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    virtual QString Name() const = 0;
    virtual QString Description() const = 0; ///< one translated sentence
    /// `arguments` begin with what the program is called with, for the usage text. The result is an ExitCode.
    virtual int Run(const QStringList& arguments, CommandEnvironment& environment) = 0;
};
