#include "scheme_editor/edits/SchemeContent.h"

namespace {

QMap<QString, AlarmLinkAlarmOut> OutputsById(const QList<AlarmLinkAlarmOut>& links,
                                             const SchemeContent::KnownOutput& isKnown)
{
    QMap<QString, AlarmLinkAlarmOut> byId;
    for (const AlarmLinkAlarmOut& link : links) {
        if (isKnown(link.strLinkAlarmID))
            byId.insert(link.strLinkAlarmID, link);
    }
    return byId;
}

QMap<QString, AlarmLinkDoor> DoorsById(const QList<AlarmLinkDoor>& links)
{
    QMap<QString, AlarmLinkDoor> byId;
    for (const AlarmLinkDoor& link : links)
        byId.insert(link.strDoorID, link);
    return byId;
}

} // namespace

bool SchemeContent::AreSame(const AlarmInfo& a, const AlarmInfo& b, const KnownOutput& isKnown)
{
    return a.bOpen == b.bOpen && a.bOpenSound == b.bOpenSound && a.bEmapTwinkle == b.bEmapTwinkle &&
           a.bSendEmail == b.bSendEmail && a.defenceTime == b.defenceTime && a.videoSplit == b.videoSplit &&
           (a.listAlarmOut == b.listAlarmOut ||
            OutputsById(a.listAlarmOut, isKnown) == OutputsById(b.listAlarmOut, isKnown)) &&
           (a.listDoor == b.listDoor || DoorsById(a.listDoor) == DoorsById(b.listDoor));
}

const AlarmInfo& SchemeContent::OrDefault(const AlarmInfo* pInfo)
{
    static const AlarmInfo fresh;
    return pInfo != nullptr ? *pInfo : fresh;
}
