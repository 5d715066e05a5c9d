#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"

#include <QString>

/// The keys, event types and records of which the tests of the page make their schemes.
namespace PageSchemes {

inline QString Key(const char* szKey)
{
    return QLatin1String(szKey);
}

/// The alarm event of a door at a place of the list.
inline int Alarm(int iPlace)
{
    return AlarmSchemeCommon::ACSAlarmEvent().at(iPlace);
}

inline int FirstAlarm()
{
    return Alarm(0);
}

inline int FirstAbnormal()
{
    return AlarmSchemeCommon::ACSAbnormalEvent().constFirst();
}

inline int FirstNormal()
{
    return AlarmSchemeCommon::ACSNormalEvent().constFirst();
}

/// A fresh record, switched on.
inline AlarmInfo On()
{
    AlarmInfo info;
    info.bOpen = true;
    return info;
}

/// A link that is fresh but for its output and time.
inline AlarmLinkAlarmOut Output(const char* szKey, int iTime = AlarmLinkAlarmOut().Time)
{
    AlarmLinkAlarmOut link;
    link.strLinkAlarmID = Key(szKey);
    link.Time = iTime;
    return link;
}

/// A line of SchemeText.
inline QString Line(const char* szKey, int iType, const char* szFields)
{
    return QStringLiteral("%1#%2 %3").arg(Key(szKey)).arg(iType).arg(QLatin1String(szFields));
}

} // namespace PageSchemes
