#include "tools/DiffCommand.h"

#include "scheme_services/exchange/SchemeFiles.h"
#include "tools/CommandInput.h"
#include "tools/DifferenceText.h"
#include "tools/JsonList.h"
#include "tools/ProgressLine.h"

#include <QTextStream>

#include <optional>

namespace {

bool ReadFile(const QString& strFile, const QString& strWhat, AlarmInfoMap& map,
              CommandEnvironment& environment)
{
    SchemeFileProblems problems;
    {
        ProgressLine progress(environment, strWhat);
        problems = SchemeFiles::Read(strFile, map, [&progress](qint64 iDone, qint64 iAll) {
            if (iAll > 0)
                progress.Show(iDone, iAll);
            else
                progress.Show();
        });
    }
    for (const SchemeFileProblem& problem : qAsConst(problems))
        environment.err << problem.Text() << '\n';
    return problems.isEmpty();
}

} // namespace

QString DiffCommand::Name() const
{
    return QStringLiteral("diff");
}

QString DiffCommand::Description() const
{
    return tr("Tells what differs between two databases, backups or exports.");
}

int DiffCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    CommandOptions options(Description(), tr("A B [options]"));
    options.AddSite();
    options.AddFormat();
    options.SetArguments(2, 2);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const std::optional<Site> known = CommandInput::ReadSite(options, environment);
    if (!known)
        return ExitCode::Failure;
    const SiteIndex site(*known);
    AlarmInfoMap before;
    AlarmInfoMap after;
    const QStringList files = options.Arguments();
    if (!ReadFile(files.at(0), tr("Reading the first file"), before, environment) ||
        !ReadFile(files.at(1), tr("Reading the second file"), after, environment))
        return ExitCode::Failure;

    ProgressLine progress(environment, tr("Comparing the schemes"));
    const auto show = [&progress](int iDone, int iAll) { progress.Show(iDone, iAll); };
    SchemeComparison::Counts counts;
    if (options.IsJson()) {
        JsonList list(environment.out, QStringLiteral("acs-scheme-diff"), QStringLiteral("schemes"));
        counts = SchemeComparison::Compare(
            before, after,
            [&](const SchemeDifference& difference) { list.Add(DifferenceText::Json(difference, site)); },
            show);
        list.End(DifferenceText::CountsJson(counts));
    } else {
        counts = SchemeComparison::Compare(
            before, after,
            [&](const SchemeDifference& difference) {
                environment.out << DifferenceText::Lines(difference, site);
            },
            show);
        environment.out << DifferenceText::Counts(counts) << '\n';
    }
    return counts.IsEqual() ? ExitCode::Done : ExitCode::Finding;
}
