#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/SiteIndex.h"
#include "tools/CommandEnvironment.h"
#include "tools/CommandOptions.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <optional>

/// What the commands about schemes start from: the schemes, the site, and the source and event that the
/// options name by key, number or name.
class SchemeInput
{
    Q_DECLARE_TR_FUNCTIONS(SchemeInput)

public:
    AlarmInfoMap schemes;
    SiteIndex site;

    /// Adds --source and --event, and what CommandOptions has for the database, the site and the format.
    static void AddInput(CommandOptions& options);
    static void AddSourceAndEvent(CommandOptions& options);

    /// Reads the site, then the schemes. Nothing when it has gone well; otherwise it has been said why and
    /// this is the exit code.
    std::optional<int> Read(const CommandOptions& options, CommandEnvironment& environment);

    /// The key of the source that a text names; nothing when it has been said why not.
    std::optional<QString> Source(const QString& strText, CommandEnvironment& environment) const;
    /// The event type that a text names: one that the host lists, or one of a stored scheme.
    std::optional<int32_t> Event(const QString& strText, CommandEnvironment& environment) const;
};
