#include "tools/RevertCommand.h"

#include "client/store/SchemeHistoryReader.h"
#include "client/store/StoredSchemes.h"
#include "tools/CommandInput.h"
#include "tools/DifferenceText.h"
#include "tools/HistoryText.h"
#include "tools/JsonList.h"
#include "tools/SchemeText.h"
#include "tools/SchemeWriting.h"

#include <QTextStream>

#include <optional>

QString RevertCommand::Name() const
{
    return QStringLiteral("revert");
}

QString RevertCommand::Description() const
{
    return tr("Takes a step of the history back.");
}

int RevertCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    CommandOptions options(Description(), tr("STEP [options]"));
    options.AddDatabase();
    options.AddSite();
    options.AddFormat();
    options.SetArguments(1, 1);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const std::optional<qint64> step = HistoryText::Number(options.Arguments().constFirst(), environment);
    if (!step)
        return ExitCode::WrongUse;
    const std::optional<Site> known = CommandInput::ReadSite(options, environment);
    if (!known)
        return ExitCode::Failure;
    const SiteIndex site(*known);
    QString when;
    {
        SchemeHistoryReader history(options.DatabaseFile());
        const std::optional<QList<SchemeHistoryEntry>> entries = history.Entries(1, *step + 1);
        if (!entries) {
            environment.err << history.Problem() << '\n';
            return ExitCode::Failure;
        }
        if (entries->isEmpty() || entries->constFirst().iId != *step)
            return CommandOptions::WrongUse(environment, tr("There is no step %1.").arg(*step));
        when = HistoryText::Time(entries->constFirst());
    }
    // What cannot be read soundly is not written to either.
    if (!CommandInput::ReadSchemes(options.DatabaseFile(), environment))
        return ExitCode::Failure;

    const std::optional<SaveResult> result =
        SchemeWriting::Revert(options.DatabaseFile(), *step, when, environment);
    if (!result)
        return ExitCode::Failure;
    if (options.IsJson()) {
        JsonList list(environment.out, QStringLiteral("acs-scheme-revert"), QStringLiteral("changedSince"));
        for (const AlarmSourceKey& key : result->changedSince)
            list.Add(SchemeText::KeyJson(key, site));
        list.End({{QStringLiteral("takenBack"), result->iSchemes}});
    } else {
        environment.out << tr("Schemes taken back: %1").arg(result->iSchemes) << '\n';
        if (!result->changedSince.isEmpty()) {
            environment.out << tr("Changed since, and left as they are: %1").arg(result->changedSince.size())
                            << '\n';
        }
        for (const AlarmSourceKey& key : result->changedSince)
            environment.out << "  " << DifferenceText::Scheme(key, site) << '\n';
    }
    return result->changedSince.isEmpty() ? ExitCode::Done : ExitCode::Finding;
}
