#include "tools/ImportSiteCommand.h"

#include "platform/SiteLibrary/SiteFile.h"
#include "tools/JsonList.h"
#include "tools/SiteArgument.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

const QLatin1String FormatName("acs-site-import");

QString KindWord(SiteChange::Kind eKind)
{
    switch (eKind) {
    case SiteChange::Kind::Added:
        return QStringLiteral("added");
    case SiteChange::Kind::Renamed:
        return QStringLiteral("renamed");
    case SiteChange::Kind::Changed:
        return QStringLiteral("changed");
    case SiteChange::Kind::Removed:
        break;
    }
    return QStringLiteral("removed");
}

int Fail(CommandEnvironment& environment, const QString& strWhy)
{
    environment.err << strWhy << '\n';
    return ExitCode::Failure;
}

} // namespace

QString ImportSiteCommand::Name() const
{
    return QStringLiteral("import-site");
}

QString ImportSiteCommand::Description() const
{
    return tr("Brings the devices of a table or site file into the client's site.");
}

int ImportSiteCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString dryRun = QStringLiteral("dry-run");
    CommandOptions options(Description(), tr("FILE [--dry-run] [--data-dir DIR | --site FILE] [options]"));
    options.AddFlag(dryRun, tr("Changes nothing and tells what would change."));
    SiteArgument::AddTo(options);
    options.AddFormat();
    options.SetArguments(1, 1);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const std::optional<QString> siteFile = SiteArgument::FileOf(options, environment);
    if (!siteFile)
        return ExitCode::WrongUse;
    const bool dry = options.IsSet(dryRun);

    QString reason;
    QByteArray stored;
    Site before;
    if (QFileInfo::exists(*siteFile)) {
        SiteFileError error;
        if (!SiteImport::ReadFile(*siteFile, stored, reason))
            return Fail(environment, reason);
        if (!SiteFile::Parse(stored, *siteFile, before, error))
            return Fail(environment, error.Text());
    }
    const QString file = options.Arguments().constFirst();
    QByteArray text;
    if (!SiteImport::ReadFile(file, text, reason))
        return Fail(environment, reason);
    const SiteImportPlan plan = SiteImport::Plan(text, before);
    if (!plan.IsSound()) {
        TellProblems(file, plan, options.IsJson(), environment);
        return ExitCode::Failure;
    }
    QString backup;
    if (!dry && !plan.difference.IsEmpty()) {
        QDir().mkpath(QFileInfo(*siteFile).path()); // a failure shows in the writing
        if (!SiteImport::ReplaceSiteFile(*siteFile, plan.site, stored, backup, reason))
            return Fail(environment, reason);
    }
    if (options.IsJson())
        TellJson(plan, dry, backup, environment);
    else
        Tell(plan, dry, backup, environment);
    return dry && !plan.difference.IsEmpty() ? ExitCode::Finding : ExitCode::Done;
}

void ImportSiteCommand::TellProblems(const QString& strFile, const SiteImportPlan& plan, bool bJson,
                                     CommandEnvironment& environment)
{
    if (bJson) {
        JsonList list(environment.out, FormatName, QStringLiteral("problems"));
        for (const SiteProblem& problem : plan.problems.list)
            list.Add(
                {{QStringLiteral("line"), problem.iLine}, {QStringLiteral("reason"), problem.strReason}});
        list.End({{QStringLiteral("further"), plan.problems.iFurther}});
    }
    for (const SiteProblem& problem : plan.problems.list)
        environment.err << SiteFileError{strFile, problem.iLine, problem.strReason}.Text() << '\n';
    if (plan.problems.iFurther > 0)
        environment.err << tr("%n more line(s) are wrong.", nullptr, plan.problems.iFurther) << '\n';
    environment.err << tr("Nothing was changed.") << '\n';
}

void ImportSiteCommand::Tell(const SiteImportPlan& plan, bool bDryRun, const QString& strBackup,
                             CommandEnvironment& environment)
{
    if (bDryRun) {
        for (const SiteChange& change : plan.difference.changes)
            environment.out << change.Text() << '\n';
    }
    environment.out << plan.difference.Summary() << '\n';
    if (!strBackup.isEmpty())
        environment.out << tr("The old site is kept in %1.").arg(QDir::toNativeSeparators(strBackup)) << '\n';
}

void ImportSiteCommand::TellJson(const SiteImportPlan& plan, bool bDryRun, const QString& strBackup,
                                 CommandEnvironment& environment)
{
    const SiteDifference& difference = plan.difference;
    JsonList list(environment.out, FormatName, QStringLiteral("changes"));
    for (const SiteChange& change : difference.changes) {
        QJsonObject json{{QStringLiteral("change"), KindWord(change.eKind)},
                         {QStringLiteral("record"), SiteTableFields::NameOf(change.eRecord)},
                         // A JSON number would lose the last digits of a large id.
                         {QStringLiteral("id"), QString::number(change.iId)},
                         {QStringLiteral("name"), change.strName}};
        if (!change.strDetail.isEmpty())
            json.insert(QStringLiteral("detail"), change.strDetail);
        list.Add(json);
    }
    list.End({{QStringLiteral("dryRun"), bDryRun},
              {QStringLiteral("added"), difference.Count(SiteChange::Kind::Added)},
              {QStringLiteral("renamed"), difference.Count(SiteChange::Kind::Renamed)},
              {QStringLiteral("changed"), difference.Count(SiteChange::Kind::Changed)},
              {QStringLiteral("removed"), difference.Count(SiteChange::Kind::Removed)},
              {QStringLiteral("reordered"), difference.bOrderChanged},
              {QStringLiteral("backup"), strBackup}});
}
