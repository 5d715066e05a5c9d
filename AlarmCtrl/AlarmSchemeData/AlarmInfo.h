#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmVideoSplit.h"

#include <QList>
#include <QMap>
#include <QString>

#include <cstdint>

/// A linked alarm output.
struct AlarmLinkAlarmOut
{
    QString strLinkAlarmID; ///< event-source key of the output
    bool bAutoOpen = true;  ///< switch the output on when the event occurs
    int32_t Time = 20;      ///< seconds that the output stays on; the editor accepts 5 to 43200
};

/// A linked door.
struct AlarmLinkDoor
{
    QString strDoorID;        ///< decimal integer as text; written as 0 when it is none
    bool bAlwaysOpen = false; ///< keep the door open
};

/// What happens when one kind of event occurs on one event source. A plain value; a fresh record is disabled
/// and armed all day on all seven days. The week and the 64 split cells are shared until written, so that a
/// map of a million default records stays small.
struct AlarmInfo
{
    bool bOpen = false;
    bool bOpenSound = false;
    bool bEmapTwinkle = false;
    bool bSendEmail = false;
    AlarmVideoSplit videoSplit;
    QList<AlarmLinkAlarmOut> listAlarmOut; ///< in stored row order
    QList<AlarmLinkDoor> listDoor;         ///< in stored row order
    AlarmWeek defenceTime;                 ///< position 0 is Sunday
};

using AlarmInfoMap = QMap<AlarmSourceKey, AlarmInfo>;

/// The three notification flags of a record; they travel together in this order.
struct AlarmNotifyInfo
{
    bool bOpenSound = false;
    bool bEmapTwinkle = false;
    bool bSendEmail = false;
};

ALARMRECORDS_EXPORT bool operator==(const AlarmLinkAlarmOut& a, const AlarmLinkAlarmOut& b);
ALARMRECORDS_EXPORT bool operator==(const AlarmLinkDoor& a, const AlarmLinkDoor& b);
/// Equality of content, field by field; lists in order.
ALARMRECORDS_EXPORT bool operator==(const AlarmInfo& a, const AlarmInfo& b);
inline bool operator!=(const AlarmInfo& a, const AlarmInfo& b)
{
    return !(a == b);
}
