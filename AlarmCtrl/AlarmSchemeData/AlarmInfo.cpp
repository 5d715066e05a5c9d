#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

bool operator==(const AlarmLinkAlarmOut& a, const AlarmLinkAlarmOut& b)
{
    return a.bAutoOpen == b.bAutoOpen && a.Time == b.Time && a.strLinkAlarmID == b.strLinkAlarmID;
}

bool operator==(const AlarmLinkDoor& a, const AlarmLinkDoor& b)
{
    return a.bAlwaysOpen == b.bAlwaysOpen && a.strDoorID == b.strDoorID;
}

bool operator==(const AlarmInfo& a, const AlarmInfo& b)
{
    return a.bOpen == b.bOpen && a.bOpenSound == b.bOpenSound && a.bEmapTwinkle == b.bEmapTwinkle &&
           a.bSendEmail == b.bSendEmail && a.videoSplit == b.videoSplit && a.listAlarmOut == b.listAlarmOut &&
           a.listDoor == b.listDoor && a.defenceTime == b.defenceTime;
}
