#include "scheme_services/evaluation/SchemeReactions.h"

#include <algorithm>

namespace {

bool IsShown(const AlarmVideoSplit& split, int32_t iWindow, const AlarmLinkVideo& video)
{
    return iWindow >= 0 && iWindow < split.SplitCount && (video.bOpen || video.bRecord);
}

QList<AlarmLinkAlarmOut> SwitchedOutputs(const QList<AlarmLinkAlarmOut>& links)
{
    QList<AlarmLinkAlarmOut> outputs;
    for (auto link = links.begin(); link != links.end(); ++link) {
        const bool repeated = std::any_of(link + 1, links.end(), [link](const AlarmLinkAlarmOut& later) {
            return later.strLinkAlarmID == link->strLinkAlarmID;
        });
        if (link->bAutoOpen && !repeated)
            outputs.append(*link);
    }
    return outputs;
}

} // namespace

SchemeReactions SchemeReactions::Of(const AlarmInfo& info)
{
    SchemeReactions reactions;
    reactions.bSound = info.bOpenSound;
    reactions.bTwinkle = info.bEmapTwinkle;
    reactions.bMail = info.bSendEmail;
    reactions.outputs = SwitchedOutputs(info.listAlarmOut);
    reactions.doors = info.listDoor;
    const QMap<int32_t, AlarmLinkVideo>& links = info.videoSplit.videoLinks;
    for (auto link = links.begin(); link != links.end(); ++link) {
        if (IsShown(info.videoSplit, link.key(), link.value()))
            reactions.videos.insert(link.key(), link.value());
    }
    return reactions;
}

bool SchemeReactions::HasAny(const AlarmInfo& info)
{
    if (info.bOpenSound || info.bEmapTwinkle || info.bSendEmail || !info.listDoor.isEmpty())
        return true;
    const QMap<int32_t, AlarmLinkVideo>& links = info.videoSplit.videoLinks;
    for (auto link = links.begin(); link != links.end(); ++link) {
        if (IsShown(info.videoSplit, link.key(), link.value()))
            return true;
    }
    return !SwitchedOutputs(info.listAlarmOut).isEmpty();
}
