#include "platform/SystemLibrary/AlarmSchemeCommon.h"

#include "platform/SystemLibrary/EventTypes.h"

QList<int> AlarmSchemeCommon::ACSAlarmEvent()
{
    static const QList<int> types = EventTypes::Types(EventTypes::Category::Alarm);
    return types;
}

QList<int> AlarmSchemeCommon::ACSAbnormalEvent()
{
    static const QList<int> types = EventTypes::Types(EventTypes::Category::Abnormal);
    return types;
}

QList<int> AlarmSchemeCommon::ACSNormalEvent()
{
    static const QList<int> types = EventTypes::Types(EventTypes::Category::Normal);
    return types;
}

bool AlarmSchemeCommon::IsAlarmInfoDefault(const AlarmInfo& info)
{
    static const AlarmInfo fresh;
    return info == fresh;
}
