#include "scheme_services/evaluation/OutputUse.h"

#include "scheme_services/evaluation/ArmedWeek.h"

#include <algorithm>

QVector<OutputUse> OutputUse::Of(const AlarmInfoMap& map, const QString& strOutput)
{
    const int64_t channel = EventSource::OutputChannelId(strOutput);
    const auto names = [&strOutput, channel](const AlarmLinkAlarmOut& link) {
        return link.strLinkAlarmID == strOutput ||
               (channel >= 0 && EventSource::OutputChannelId(link.strLinkAlarmID) == channel);
    };
    QVector<OutputUse> uses;
    for (auto scheme = map.begin(); scheme != map.end(); ++scheme) {
        const QList<AlarmLinkAlarmOut>& links = scheme->listAlarmOut;
        const auto link = std::find_if(links.rbegin(), links.rend(), names);
        if (link == links.rend())
            continue;
        uses.append({scheme.key(), scheme->bOpen, !ArmedWeek(scheme->defenceTime).IsNever(), link->bAutoOpen,
                     link->Time});
    }
    return uses;
}
