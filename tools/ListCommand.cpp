#include "tools/ListCommand.h"

#include "scheme_services/evaluation/SchemeWords.h"
#include "tools/JsonList.h"
#include "tools/SchemeInput.h"
#include "tools/SchemeText.h"

#include <QTextStream>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

/// Longer keys stick out, so that one of them does not push everything aside.
constexpr int WidestColumn = 40;
constexpr int TypeWidth = 3;

using Scheme = AlarmInfoMap::const_iterator;

struct Wish
{
    std::optional<QString> source;
    std::optional<int32_t> type;
    bool bEnabled = false;

    bool Fits(const AlarmSourceKey& key, const AlarmInfo& info) const
    {
        if (bEnabled && !info.bOpen)
            return false;
        if (type && key.AlarmType != *type)
            return false;
        if (!source)
            return true;
        // What belongs to a door includes what its device has once for all of its doors.
        return key == EventSource::SchemeKey(*source, key.AlarmType);
    }
};

} // namespace

QString ListCommand::Name() const
{
    return QStringLiteral("list");
}

QString ListCommand::Description() const
{
    return tr("Lists the schemes.");
}

int ListCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString enabled = QStringLiteral("enabled");
    CommandOptions options(Description(), tr("[--source S] [--event TYPE] [--enabled] [options]"));
    SchemeInput::AddSourceAndEvent(options);
    options.AddFlag(enabled, tr("Only the schemes that are switched on."));
    SchemeInput::AddInput(options);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    SchemeInput input;
    if (const std::optional<int> code = input.Read(options, environment))
        return *code;

    Wish wish;
    wish.bEnabled = options.IsSet(enabled);
    if (options.IsSet(QStringLiteral("source"))) {
        wish.source = input.Source(options.Value(QStringLiteral("source")), environment);
        if (!wish.source)
            return ExitCode::WrongUse;
    }
    if (options.IsSet(QStringLiteral("event"))) {
        wish.type = input.Event(options.Value(QStringLiteral("event")), environment);
        if (!wish.type)
            return ExitCode::WrongUse;
    }
    std::vector<Scheme> schemes;
    for (Scheme scheme = input.schemes.constBegin(); scheme != input.schemes.constEnd(); ++scheme) {
        if (wish.Fits(scheme.key(), scheme.value()))
            schemes.push_back(scheme);
    }

    if (options.IsJson()) {
        JsonList list(environment.out, QStringLiteral("acs-scheme-list"), QStringLiteral("schemes"));
        for (const Scheme& scheme : schemes) {
            QJsonObject line = SchemeText::KeyJson(scheme.key(), input.site);
            line.insert(QStringLiteral("enabled"), scheme->bOpen);
            list.Add(line);
        }
        return ExitCode::Done;
    }
    int width = 0;
    for (const Scheme& scheme : schemes)
        width = std::max(width, std::min<int>(scheme.key().strEventSource.size(), WidestColumn));
    const QString strOn = tr("on");
    const QString strOff = tr("off");
    const int stateWidth = std::max<int>(strOn.size(), strOff.size());
    const auto state = [&](bool bOpen) { return (bOpen ? strOn : strOff).leftJustified(stateWidth); };
    int on = 0;
    for (const Scheme& scheme : schemes) {
        on += scheme->bOpen ? 1 : 0;
        const QStringList columns{state(scheme->bOpen), scheme.key().strEventSource.leftJustified(width),
                                  QString::number(scheme.key().AlarmType).leftJustified(TypeWidth),
                                  SchemeWords::Name(scheme.key(), input.site)};
        SchemeText::Line(environment.out, columns.join(QStringLiteral("  ")));
    }
    environment.out << tr("Schemes: %1, switched on: %2").arg(schemes.size()).arg(on) << '\n';
    return ExitCode::Done;
}
