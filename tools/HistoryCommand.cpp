#include "tools/HistoryCommand.h"

#include "client/store/SchemeHistoryReader.h"
#include "tools/CommandInput.h"
#include "tools/DifferenceText.h"
#include "tools/HistoryText.h"
#include "tools/JsonList.h"

#include <QTextStream>

#include <limits>
#include <optional>

namespace {

const QLatin1String FormatName("acs-scheme-history");

int Fail(const SchemeHistoryReader& history, CommandEnvironment& environment)
{
    environment.err << history.Problem() << '\n';
    return ExitCode::Failure;
}

void TellSteps(const QList<SchemeHistoryEntry>& entries, bool bJson, QTextStream& out)
{
    if (bJson) {
        JsonList list(out, FormatName, QStringLiteral("steps"));
        for (const SchemeHistoryEntry& entry : entries)
            list.Add(HistoryText::Json(entry));
        return;
    }
    for (const SchemeHistoryEntry& entry : entries)
        out << HistoryText::Line(entry) << '\n';
}

void TellStep(const SchemeHistoryEntry& entry, const SchemeHistoryChanges& changes, const SiteIndex& site,
              bool bJson, QTextStream& out)
{
    if (bJson) {
        JsonList list(out, FormatName, QStringLiteral("schemes"));
        for (const SchemeHistoryChange& change : changes)
            list.Add(DifferenceText::Json(HistoryText::Difference(change), site));
        list.End(HistoryText::Json(entry));
        return;
    }
    out << HistoryText::Line(entry) << '\n';
    for (const SchemeHistoryChange& change : changes)
        out << DifferenceText::Lines(HistoryText::Difference(change), site);
}

} // namespace

QString HistoryCommand::Name() const
{
    return QStringLiteral("history");
}

QString HistoryCommand::Description() const
{
    return tr("Tells who changed what and when.");
}

int HistoryCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString limit = QStringLiteral("limit");
    CommandOptions options(Description(), tr("[STEP] [--limit N] [options]"));
    options.Add(limit, tr("Only so many of the newest steps."), QStringLiteral("N"));
    options.AddDatabase();
    options.AddSite();
    options.AddFormat();
    options.SetArguments(0, 1);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    int most = std::numeric_limits<int>::max();
    if (options.IsSet(limit)) {
        bool number = false;
        most = options.Value(limit).toInt(&number);
        if (!number || most < 1)
            return CommandOptions::WrongUse(environment, tr("--limit takes a whole number from 1."));
    }
    SchemeHistoryReader history(options.DatabaseFile());
    if (!history.Problem().isEmpty())
        return Fail(history, environment);
    if (options.Arguments().isEmpty()) {
        const std::optional<QList<SchemeHistoryEntry>> entries = history.Entries(most);
        if (!entries)
            return Fail(history, environment);
        TellSteps(*entries, options.IsJson(), environment.out);
        return ExitCode::Done;
    }

    const std::optional<qint64> step = HistoryText::Number(options.Arguments().constFirst(), environment);
    if (!step)
        return ExitCode::WrongUse;
    const std::optional<Site> known = CommandInput::ReadSite(options, environment);
    if (!known)
        return ExitCode::Failure;
    const std::optional<QList<SchemeHistoryEntry>> entries = history.Entries(1, *step + 1);
    if (!entries)
        return Fail(history, environment);
    if (entries->isEmpty() || entries->constFirst().iId != *step)
        return CommandOptions::WrongUse(environment, tr("There is no step %1.").arg(*step));
    const std::optional<SchemeHistoryChanges> changes = history.Changes(*step);
    if (!changes)
        return Fail(history, environment);
    TellStep(entries->constFirst(), *changes, SiteIndex(*known), options.IsJson(), environment.out);
    return ExitCode::Done;
}
