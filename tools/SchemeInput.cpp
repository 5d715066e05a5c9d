#include "tools/SchemeInput.h"

#include "scheme_services/evaluation/EventCategories.h"
#include "tools/Command.h"
#include "tools/CommandInput.h"

#include <QTextStream>

#include <algorithm>

void SchemeInput::AddInput(CommandOptions& options)
{
    options.AddDatabase();
    options.AddSite();
    options.AddFormat();
}

void SchemeInput::AddSourceAndEvent(CommandOptions& options)
{
    options.Add(QStringLiteral("source"), tr("The event source, by its key or as \"device/door\"."),
                QStringLiteral("S"));
    options.Add(QStringLiteral("event"), tr("The event type, by its number or its name."),
                QStringLiteral("TYPE"));
}

std::optional<int> SchemeInput::Read(const CommandOptions& options, CommandEnvironment& environment)
{
    const std::optional<Site> known = CommandInput::ReadSite(options, environment);
    if (!known)
        return ExitCode::Failure;
    site = SiteIndex(*known);
    std::optional<AlarmInfoMap> stored = CommandInput::ReadSchemes(options.DatabaseFile(), environment);
    if (!stored)
        return ExitCode::Failure;
    schemes = std::move(*stored);
    return std::nullopt;
}

std::optional<QString> SchemeInput::Source(const QString& strText, CommandEnvironment& environment) const
{
    const SiteIndex::Resolved resolved = site.ResolveSource(strText);
    if (!resolved.strProblem.isEmpty()) {
        environment.err << resolved.strProblem << '\n';
        return std::nullopt;
    }
    return resolved.strKey;
}

std::optional<int32_t> SchemeInput::Event(const QString& strText, CommandEnvironment& environment) const
{
    if (const std::optional<int32_t> type = EventCategories::TypeOf(strText))
        return type;
    const std::optional<int32_t> number = EventCategories::NumberOf(strText);
    const auto keys = schemes.keyBegin();
    if (number && std::any_of(keys, schemes.keyEnd(),
                              [&number](const AlarmSourceKey& key) { return key.AlarmType == *number; })) {
        return number;
    }
    environment.err << tr("There is no event type \"%1\".").arg(strText) << '\n';
    return std::nullopt;
}
