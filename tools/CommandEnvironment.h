#pragma once

#include <QString>

#include <functional>

class QTextStream;

/// What a command has around it while it runs.
struct CommandEnvironment
{
    QTextStream& out; ///< results
    QTextStream& err; ///< complaints and progress

    /// Where the client keeps its data unless it is told otherwise; absolute.
    QString strDefaultDataDirectory{};
    /// Whether `err` is a terminal that somebody looks at, so that progress may be shown.
    bool bTerminal = false;
    /// Milliseconds of a clock that never jumps, for progress; without one there is none.
    std::function<qint64()> milliseconds{};
};

/// The data directory of the client on this computer, also where the running program has another name.
QString ClientDataDirectory();
