#include "tools/CheckCommand.h"

#include "scheme_services/evaluation/SchemeCheck.h"
#include "scheme_services/evaluation/SilencedFindings.h"
#include "tools/JsonList.h"
#include "tools/ProgressLine.h"
#include "tools/SchemeInput.h"
#include "tools/SchemeText.h"

#include <QTextStream>

#include <algorithm>
#include <array>

namespace {

QString SeverityCode(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Error:
        return QStringLiteral("error");
    case FindingSeverity::Warning:
        return QStringLiteral("warning");
    case FindingSeverity::Information:
        break;
    }
    return QStringLiteral("information");
}

QJsonObject Json(const Finding& finding, const SiteIndex& site)
{
    QJsonObject json{{QStringLiteral("code"), Finding::CodeName(finding.code)},
                     {QStringLiteral("severity"), SeverityCode(finding.Severity())},
                     {QStringLiteral("place"), finding.Place(site)},
                     {QStringLiteral("source"), finding.key.strEventSource},
                     {QStringLiteral("text"), finding.Text(site)},
                     {QStringLiteral("advice"), finding.Advice()}};
    if (finding.key.AlarmType >= 0)
        json.insert(QStringLiteral("event"), finding.key.AlarmType);
    if (finding.iDay >= 0)
        json.insert(QStringLiteral("day"), finding.iDay);
    if (!finding.strLink.isEmpty())
        json.insert(QStringLiteral("link"), finding.strLink);
    return json;
}

} // namespace

QString CheckCommand::Name() const
{
    return QStringLiteral("check");
}

QString CheckCommand::Description() const
{
    return tr("Finds what cannot be meant: schemes that never act, links to nothing, impossible times.");
}

int CheckCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString silence = QStringLiteral("silence");
    CommandOptions options(Description(), tr("[--silence FILE] [options]"));
    options.Add(silence, tr("Leaves out the findings whose codes stand in this file."),
                QStringLiteral("FILE"));
    SchemeInput::AddInput(options);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    SilencedFindings silenced;
    if (options.IsSet(silence)) {
        QString strProblem;
        const auto read = SilencedFindings::Read(options.Value(silence), strProblem);
        if (!read) {
            environment.err << strProblem << '\n';
            return ExitCode::Failure;
        }
        silenced = *read;
    }
    SchemeInput input;
    if (const std::optional<int> code = input.Read(options, environment))
        return *code;

    QVector<Finding> findings;
    {
        ProgressLine progress(environment, tr("Checking"));
        findings = SchemeCheck::Run(input.schemes, input.site, [&progress](int iDone, int iAll) {
            progress.Show(iDone, iAll);
            return true;
        });
    }
    const int all = findings.size();
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&silenced](const Finding& finding) { return silenced.Holds(finding); }),
                   findings.end());
    const Counts counts{static_cast<int>(input.schemes.size()), Count(findings, FindingSeverity::Error),
                        Count(findings, FindingSeverity::Warning),
                        Count(findings, FindingSeverity::Information),
                        static_cast<int>(all - findings.size())};
    if (options.IsJson()) {
        JsonList list(environment.out, QStringLiteral("acs-scheme-check"), QStringLiteral("findings"));
        for (const Finding& finding : qAsConst(findings))
            list.Add(Json(finding, input.site));
        list.End({{QStringLiteral("schemes"), counts.iSchemes},
                  {QStringLiteral("errors"), counts.iErrors},
                  {QStringLiteral("warnings"), counts.iWarnings},
                  {QStringLiteral("information"), counts.iInformation},
                  {QStringLiteral("silenced"), counts.iSilenced},
                  {QStringLiteral("siteKnown"), !input.site.IsEmpty()}});
    } else {
        Write(findings, counts, input.site, environment.out);
    }
    return counts.iErrors == 0 ? ExitCode::Done : ExitCode::Finding;
}

int CheckCommand::Count(const QVector<Finding>& findings, FindingSeverity severity)
{
    return static_cast<int>(
        std::count_if(findings.begin(), findings.end(),
                      [severity](const Finding& finding) { return finding.Severity() == severity; }));
}

void CheckCommand::Write(const QVector<Finding>& findings, const Counts& counts, const SiteIndex& site,
                         QTextStream& out)
{
    for (const Finding& finding : findings) {
        SchemeText::Line(out, tr("%1 %2: %3", "severity, code, place")
                                  .arg(Finding::SeverityName(finding.Severity()),
                                       Finding::CodeName(finding.code), finding.Place(site)));
        SchemeText::Line(out, QStringLiteral("  %1 %2").arg(finding.Text(site), finding.Advice()));
    }
    if (site.IsEmpty())
        out << tr("No site file: sources, links, doors and devices were not looked at.") << '\n';
    out << tr("Schemes: %1, errors: %2, warnings: %3, information: %4, silenced: %5")
               .arg(counts.iSchemes)
               .arg(counts.iErrors)
               .arg(counts.iWarnings)
               .arg(counts.iInformation)
               .arg(counts.iSilenced)
        << '\n';
}
