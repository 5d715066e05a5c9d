#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

/// What a command answers to the shell.
namespace ExitCode {
constexpr int Done = 0;
constexpr int WrongUse = 2;
constexpr int Failure = 3; ///< nothing was changed
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
    /// `arguments` begin with what the program is called with, for the usage text. Results go to `out`,
    /// complaints to `err`; the result is an ExitCode.
    virtual int Run(const QStringList& arguments, QTextStream& out, QTextStream& err) = 0;
};
