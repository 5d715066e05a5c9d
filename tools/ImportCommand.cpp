#include "tools/ImportCommand.h"

#include "scheme_services/exchange/SchemeFiles.h"
#include "tools/CommandInput.h"
#include "tools/DifferenceText.h"
#include "tools/JsonList.h"
#include "tools/ProgressLine.h"
#include "tools/SchemeWriting.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include <optional>

namespace {

const QLatin1String FormatName("acs-scheme-import");

} // namespace

AlarmInfoMap ImportCommand::After(const AlarmInfoMap& before, const AlarmInfoMap& listed, Mode eMode)
{
    if (eMode == Mode::Replace)
        return listed;
    AlarmInfoMap after = before;
    for (auto scheme = listed.cbegin(); scheme != listed.cend(); ++scheme)
        after.insert(scheme.key(), scheme.value());
    return after;
}

QString ImportCommand::WordOf(Mode eMode)
{
    return eMode == Mode::Merge ? QStringLiteral("merge") : QStringLiteral("replace");
}

QStringList ImportCommand::MakeFolder(const QString& strFile)
{
    QStringList missing;
    QString folder = QFileInfo(strFile).absolutePath();
    while (!QFileInfo::exists(folder) && !missing.contains(folder)) {
        missing.append(folder);
        folder = QFileInfo(folder).absolutePath();
    }
    if (!missing.isEmpty())
        QDir().mkpath(missing.constFirst()); // a failure shows in the writing
    return missing;
}

QString ImportCommand::Name() const
{
    return QStringLiteral("import");
}

QString ImportCommand::Description() const
{
    return tr("Brings the schemes of a JSON text into the database.");
}

int ImportCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString dryRun = QStringLiteral("dry-run");
    const QString merge = QStringLiteral("merge");
    const QString replace = QStringLiteral("replace");
    CommandOptions options(Description(), tr("FILE --merge|--replace [--dry-run] [options]"));
    options.AddFlag(merge,
                    tr("The listed schemes replace those of the same source and event, all others stay."));
    options.AddFlag(replace, tr("Afterwards there are exactly the listed schemes; all others are deleted."));
    options.AddFlag(dryRun, tr("Changes nothing and tells what would change; without --merge or --replace, "
                               "what either would."));
    options.AddDatabase();
    options.AddSite();
    options.AddFormat();
    options.SetArguments(1, 1);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const bool dry = options.IsSet(dryRun);
    if (options.IsSet(merge) && options.IsSet(replace))
        return CommandOptions::WrongUse(environment, tr("--merge and --replace exclude each other."));
    if (!dry && !options.IsSet(merge) && !options.IsSet(replace)) {
        return CommandOptions::WrongUse(
            environment, tr("Say whether the other schemes stay, --merge, or are deleted, --replace."));
    }
    const std::optional<Site> known = CommandInput::ReadSite(options, environment);
    if (!known)
        return ExitCode::Failure;
    const SiteIndex site(*known);

    AlarmInfoMap listed;
    const QString file = options.Arguments().constFirst();
    if (!ReadText(file, options.IsJson(), listed, environment))
        return ExitCode::Failure;
    AlarmInfoMap before;
    if (!ReadDatabase(options.DatabaseFile(), before, environment))
        return ExitCode::Failure;

    QList<Mode> modes;
    if (!options.IsSet(replace))
        modes.append(Mode::Merge);
    if (!options.IsSet(merge))
        modes.append(Mode::Replace);
    bool equal = true;
    for (const Mode mode : qAsConst(modes))
        equal = equal && SchemeComparison::Compare(before, After(before, listed, mode)).IsEqual();
    if (!dry && !equal) {
        const QStringList made =
            options.DataDirectory().isEmpty() ? QStringList() : MakeFolder(options.DatabaseFile());
        if (!SchemeWriting::Import(options.DatabaseFile(), listed, modes.constFirst() == Mode::Replace,
                                   QFileInfo(file).fileName(), environment)) {
            for (const QString& folder : made)
                QDir().rmdir(folder);
            return ExitCode::Failure;
        }
    }
    if (options.IsJson())
        TellJson(before, listed, modes, dry, site, environment.out);
    else
        Tell(before, listed, modes, dry, site, environment.out);
    return dry && !equal ? ExitCode::Finding : ExitCode::Done;
}

void ImportCommand::Tell(const AlarmInfoMap& before, const AlarmInfoMap& listed, const QList<Mode>& modes,
                         bool bDryRun, const SiteIndex& site, QTextStream& out)
{
    for (const Mode mode : modes) {
        if (modes.size() > 1)
            out << (mode == Mode::Merge ? tr("With --merge:") : tr("With --replace:")) << '\n';
        const SchemeComparison::Counts counts = SchemeComparison::Compare(
            before, After(before, listed, mode), [&](const SchemeDifference& difference) {
                if (bDryRun)
                    out << DifferenceText::Lines(difference, site);
            });
        out << DifferenceText::Counts(counts) << '\n';
    }
}

void ImportCommand::TellJson(const AlarmInfoMap& before, const AlarmInfoMap& listed, const QList<Mode>& modes,
                             bool bDryRun, const SiteIndex& site, QTextStream& out)
{
    QJsonObject fields{{QStringLiteral("dryRun"), bDryRun}};
    JsonList list(out, FormatName, QStringLiteral("schemes"));
    for (const Mode mode : modes) {
        const SchemeComparison::Counts counts = SchemeComparison::Compare(
            before, After(before, listed, mode), [&](const SchemeDifference& difference) {
                QJsonObject json = DifferenceText::Json(difference, site);
                json.insert(QStringLiteral("mode"), WordOf(mode));
                list.Add(json);
            });
        fields.insert(WordOf(mode), DifferenceText::CountsJson(counts));
    }
    list.End(fields);
}

bool ImportCommand::ReadText(const QString& strFile, bool bJson, AlarmInfoMap& map,
                             CommandEnvironment& environment)
{
    SchemeFileProblems problems;
    {
        ProgressLine progress(environment, tr("Reading the text"));
        problems = SchemeFiles::ReadText(
            strFile, map, [&progress](qint64 iDone, qint64 iAll) { progress.Show(iDone, iAll); });
    }
    if (problems.isEmpty())
        return true;
    if (bJson) {
        JsonList list(environment.out, FormatName, QStringLiteral("problems"));
        for (const SchemeFileProblem& problem : qAsConst(problems)) {
            list.Add(
                {{QStringLiteral("line"), problem.iLine}, {QStringLiteral("reason"), problem.strReason}});
        }
    }
    for (const SchemeFileProblem& problem : qAsConst(problems))
        environment.err << problem.Text() << '\n';
    environment.err << tr("Nothing was changed.") << '\n';
    return false;
}

bool ImportCommand::ReadDatabase(const QString& strDatabase, AlarmInfoMap& map,
                                 CommandEnvironment& environment)
{
    // What is not there yet will be made; but another program's database will get no tables of ours.
    const QFileInfo info(strDatabase);
    if (!info.exists() || (info.isFile() && info.size() == 0))
        return true;
    std::optional<AlarmInfoMap> stored = CommandInput::ReadSchemes(strDatabase, environment);
    if (!stored)
        return false;
    map = std::move(*stored);
    return true;
}
