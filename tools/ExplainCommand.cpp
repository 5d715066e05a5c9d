#include "tools/ExplainCommand.h"

#include "scheme_services/evaluation/SchemeExplanation.h"
#include "scheme_services/evaluation/SchemeWords.h"
#include "tools/JsonList.h"
#include "tools/MomentArgument.h"
#include "tools/SchemeInput.h"
#include "tools/SchemeText.h"

#include <QTextStream>

namespace {

QString VerdictCode(SchemeVerdict verdict)
{
    switch (verdict) {
    case SchemeVerdict::NoScheme:
        break;
    case SchemeVerdict::SwitchedOff:
        return QStringLiteral("switched-off");
    case SchemeVerdict::NotArmed:
        return QStringLiteral("not-armed");
    case SchemeVerdict::Armed:
        return QStringLiteral("armed");
    }
    return QStringLiteral("no-scheme");
}

/// With the offset from UTC, so that the two runs of a repeated hour are told apart.
QJsonValue MomentJson(const std::optional<QDateTime>& moment)
{
    return moment ? QJsonValue(moment->toOffsetFromUtc(moment->offsetFromUtc()).toString(Qt::ISODate))
                  : QJsonValue();
}

QJsonObject Json(const SchemeExplanation& explanation, const AlarmSourceKey& asked, const SiteIndex& site)
{
    QJsonObject json = SchemeText::KeyJson(asked, site);
    json.insert(QStringLiteral("format"), QStringLiteral("acs-scheme-explanation"));
    json.insert(QStringLiteral("version"), 1);
    json.insert(QStringLiteral("at"), MomentJson(explanation.at));
    json.insert(QStringLiteral("scheme"),
                explanation.key ? QJsonValue(explanation.key->strEventSource) : QJsonValue());
    json.insert(QStringLiteral("verdict"), VerdictCode(explanation.verdict));
    json.insert(QStringLiteral("sentence"), explanation.Sentence());
    json.insert(QStringLiteral("since"), MomentJson(explanation.since));
    json.insert(QStringLiteral("nextChange"), MomentJson(explanation.nextChange));
    const SchemeReactions none;
    const bool armed = explanation.verdict == SchemeVerdict::Armed;
    json.insert(QStringLiteral("reactions"),
                SchemeText::ReactionsJson(armed ? explanation.reactions : none, site));
    return json;
}

} // namespace

QString ExplainCommand::Name() const
{
    return QStringLiteral("explain");
}

QString ExplainCommand::Description() const
{
    return tr("Tells what would happen if an event came at a time.");
}

int ExplainCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString source = QStringLiteral("source");
    const QString event = QStringLiteral("event");
    const QString at = QStringLiteral("at");
    const QString zone = QStringLiteral("zone");
    CommandOptions options(Description(), tr("--source S --event TYPE --at TIME [--zone ID] [options]"));
    SchemeInput::AddSourceAndEvent(options);
    options.Add(at, tr("The time by the wall clock, like 2026-11-23T08:30."), QStringLiteral("TIME"));
    options.Add(zone,
                tr("The time zone of the clock, like Europe/Rome; the computer's unless it is said here."),
                QStringLiteral("ID"));
    SchemeInput::AddInput(options);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    for (const QString& strName : {source, event, at}) {
        if (!options.IsSet(strName))
            return CommandOptions::WrongUse(environment, tr("--%1 is missing.").arg(strName));
    }
    const MomentArgument moment = MomentArgument::Parse(options.Value(at), options.Value(zone));
    if (!moment.strProblem.isEmpty())
        return CommandOptions::WrongUse(environment, moment.strProblem);
    SchemeInput input;
    if (const std::optional<int> code = input.Read(options, environment))
        return *code;
    const std::optional<QString> strSource = input.Source(options.Value(source), environment);
    if (!strSource)
        return ExitCode::WrongUse;
    const std::optional<int32_t> type = input.Event(options.Value(event), environment);
    if (!type)
        return ExitCode::WrongUse;

    const SchemeExplanation explanation = SchemeExplanation::Of(input.schemes, *strSource, *type, moment.at);
    const AlarmSourceKey asked{*strSource, *type};
    if (options.IsJson()) {
        environment.out << JsonList::Text(Json(explanation, asked, input.site));
    } else {
        Write(explanation, asked, input.site, environment.out);
        if (moment.bTwice) {
            environment.out << tr("The clock shows this time twice on that day; this is about the first. An "
                                  "offset, like \"+01:00\" behind the time, tells them apart.")
                            << '\n';
        }
    }
    return explanation.verdict == SchemeVerdict::Armed ? ExitCode::Done : ExitCode::Finding;
}

void ExplainCommand::Write(const SchemeExplanation& explanation, const AlarmSourceKey& asked,
                           const SiteIndex& site, QTextStream& out)
{
    SchemeText::Line(out,
                     tr("%1, %2", "source and event, time")
                         .arg(SchemeWords::Name(asked, site), SchemeExplanation::MomentText(explanation.at)));
    SchemeText::Line(out, explanation.Sentence());
    if (explanation.key && explanation.key->strEventSource != asked.strEventSource)
        out << tr("A device has one scheme for this event, whichever door it comes from.") << '\n';
    if (explanation.verdict == SchemeVerdict::Armed) {
        const QStringList reactions = SchemeWords::Reactions(explanation.reactions, site);
        out << (reactions.isEmpty() ? tr("It does nothing.") : tr("It does this:")) << '\n';
        for (const QString& strReaction : reactions)
            SchemeText::Line(out, QStringLiteral("  ") + strReaction);
    }
    if (explanation.nextChange) {
        out << tr("The next change is at %1.").arg(SchemeExplanation::MomentText(*explanation.nextChange))
            << '\n';
    } else {
        out << tr("Nothing changes with time.") << '\n';
    }
}
