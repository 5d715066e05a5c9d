#pragma once

#include "tools/CommandOptions.h"

#include <QCoreApplication>

#include <optional>

/// The site file that a command works on: --site FILE, or "site.json" of --data-dir DIR, or that of the
/// client.
class SiteArgument
{
    Q_DECLARE_TR_FUNCTIONS(SiteArgument)

public:
    SiteArgument() = delete;

    static void AddTo(CommandOptions& options);
    /// Absolute; the file need not exist. Nothing, and said why, when both options are given.
    static std::optional<QString> FileOf(const CommandOptions& options, CommandEnvironment& environment);
};
