#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/SiteLibrary/Site.h"
#include "tools/CommandEnvironment.h"
#include "tools/CommandOptions.h"

#include <QCoreApplication>

#include <optional>

/// What commands read before they start. Nothing is ever created, upgraded or repaired by reading; what
/// cannot be read is told to the error output, and the command ends with ExitCode::Failure.
class CommandInput
{
    Q_DECLARE_TR_FUNCTIONS(CommandInput)

public:
    CommandInput() = delete;

    /// Every scheme of the database file; nothing when it cannot be read whole.
    static std::optional<AlarmInfoMap> ReadSchemes(const QString& strDatabase,
                                                   CommandEnvironment& environment);
    /// The site that the options name. An empty site when they name none, or when the data directory, not
    /// asked for by --site, holds none. Nothing when the file cannot be used.
    static std::optional<Site> ReadSite(const CommandOptions& options, CommandEnvironment& environment);
};
