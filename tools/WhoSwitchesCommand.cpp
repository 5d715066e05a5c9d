#include "tools/WhoSwitchesCommand.h"

#include "scheme_services/evaluation/OutputUse.h"
#include "scheme_services/evaluation/SchemeWords.h"
#include "tools/JsonList.h"
#include "tools/SchemeInput.h"
#include "tools/SchemeText.h"

#include <QTextStream>

#include <algorithm>

QString WhoSwitchesCommand::Name() const
{
    return QStringLiteral("who-switches");
}

QString WhoSwitchesCommand::Description() const
{
    return tr("Tells which schemes switch an output on.");
}

QString WhoSwitchesCommand::State(const OutputUse& use)
{
    if (!use.bEnabled)
        return tr("no: the scheme is switched off");
    if (!use.bEverArmed)
        return tr("no: the scheme is never armed");
    return use.bAutoOpen ? tr("for %1 s").arg(use.iSeconds)
                         : tr("no: the output is not opened automatically");
}

int WhoSwitchesCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    CommandOptions options(Description(), tr("OUTPUT [options]"));
    options.SetArguments(1, 1);
    SchemeInput::AddInput(options);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    SchemeInput input;
    if (const std::optional<int> code = input.Read(options, environment))
        return *code;
    const SiteIndex::Resolved output = input.site.ResolveOutput(options.Arguments().constFirst());
    if (!output.strProblem.isEmpty())
        return CommandOptions::WrongUse(environment, output.strProblem);

    const QVector<OutputUse> uses = OutputUse::Of(input.schemes, output.strKey);
    if (options.IsJson()) {
        JsonList list(environment.out, QStringLiteral("acs-scheme-output"), QStringLiteral("schemes"));
        for (const OutputUse& use : uses) {
            QJsonObject line = SchemeText::KeyJson(use.key, input.site);
            line.insert(QStringLiteral("switches"), use.Switches());
            line.insert(QStringLiteral("enabled"), use.bEnabled);
            line.insert(QStringLiteral("everArmed"), use.bEverArmed);
            line.insert(QStringLiteral("automatic"), use.bAutoOpen);
            line.insert(QStringLiteral("seconds"), use.iSeconds);
            list.Add(line);
        }
        list.End({{QStringLiteral("output"), output.strKey},
                  {QStringLiteral("outputName"), input.site.NameOfOutput(output.strKey)}});
    } else {
        SchemeText::Line(environment.out, tr("%1, linked by %2:", "output, number of schemes")
                                              .arg(input.site.NameOfOutput(output.strKey))
                                              .arg(uses.size()));
        for (const OutputUse& use : uses) {
            SchemeText::Line(environment.out,
                             QStringLiteral("  ") +
                                 tr("%1: %2", "scheme, whether and how long it switches the output on")
                                     .arg(SchemeWords::Name(use.key, input.site), State(use)));
        }
    }
    const bool switched =
        std::any_of(uses.begin(), uses.end(), [](const OutputUse& use) { return use.Switches(); });
    return switched ? ExitCode::Done : ExitCode::Finding;
}
