#include "scheme_services/evaluation/SchemeExplanation.h"

#include <QLocale>

namespace {

/// Unit type of alarm inputs in a source's key.
constexpr int64_t AlarmUnitType = 3;

bool IsAlarmInput(const QString& strSource)
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strSource);
    return fields && fields->iUnitType == AlarmUnitType && fields->iChannel > 0;
}

} // namespace

std::optional<AlarmSourceKey> SchemeExplanation::KeyOf(const QString& strSource, int32_t iType)
{
    if (IsAlarmInput(strSource) && iType != EventSource::AlarmInputAlarmType &&
        iType != EventSource::PerDeviceAlarmType) {
        return std::nullopt;
    }
    return EventSource::SchemeKey(strSource, iType);
}

SchemeExplanation SchemeExplanation::Of(const AlarmInfoMap& map, const QString& strSource, int32_t iType,
                                        const QDateTime& at)
{
    SchemeExplanation explanation;
    explanation.at = at;
    explanation.key = KeyOf(strSource, iType);
    if (!explanation.key)
        return explanation;
    const auto found = map.constFind(*explanation.key);
    if (found == map.constEnd())
        return explanation;
    SchemeMoment moment(at);
    const SchemeState state = moment.Evaluate(&found.value());
    explanation.verdict = state.verdict;
    if (state.since)
        explanation.since = moment.ToDateTime(*state.since);
    if (state.nextChange)
        explanation.nextChange = moment.ToDateTime(*state.nextChange);
    explanation.reactions = SchemeReactions::Of(found.value());
    return explanation;
}

QString SchemeExplanation::MomentText(const QDateTime& moment)
{
    const bool seconds = moment.time().second() != 0;
    return QLocale().toString(moment, seconds ? QStringLiteral("ddd yyyy-MM-dd HH:mm:ss")
                                              : QStringLiteral("ddd yyyy-MM-dd HH:mm"));
}

QString SchemeExplanation::Sentence() const
{
    switch (verdict) {
    case SchemeVerdict::NoScheme:
        break;
    case SchemeVerdict::SwitchedOff:
        return tr("The scheme is switched off.");
    case SchemeVerdict::NotArmed:
        return nextChange ? tr("The scheme is not armed at this time; it will be from %1.")
                                .arg(MomentText(*nextChange))
                          : tr("The scheme is switched on but never armed.");
    case SchemeVerdict::Armed:
        if (since && nextChange)
            return tr("The scheme is armed since %1 until %2.")
                .arg(MomentText(*since), MomentText(*nextChange));
        return tr("The scheme is armed all the time.");
    }
    return key ? tr("There is no scheme for this event.") : tr("Such an event does not happen there.");
}
