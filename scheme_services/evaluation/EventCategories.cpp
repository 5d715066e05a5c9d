#include "scheme_services/evaluation/EventCategories.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <algorithm>

EventCategory EventCategories::CategoryOf(int32_t iType)
{
    // Asked for every scheme of a site, so the lists are kept.
    static const QList<int> alarm = AlarmSchemeCommon::ACSAlarmEvent();
    static const QList<int> abnormal = AlarmSchemeCommon::ACSAbnormalEvent();
    static const QList<int> normal = AlarmSchemeCommon::ACSNormalEvent();
    if (iType == EventSource::AlarmInputAlarmType)
        return EventCategory::AlarmInput;
    if (alarm.contains(iType))
        return EventCategory::Alarm;
    if (abnormal.contains(iType))
        return EventCategory::Abnormal;
    return normal.contains(iType) ? EventCategory::Normal : EventCategory::Unknown;
}

QString EventCategories::NameOf(EventCategory category)
{
    switch (category) {
    case EventCategory::Alarm:
        return tr("Alarm events");
    case EventCategory::Abnormal:
        return tr("Abnormal events");
    case EventCategory::Normal:
        return tr("Normal events");
    case EventCategory::AlarmInput:
        return tr("Alarm inputs");
    case EventCategory::Unknown:
        break;
    }
    return tr("Unknown events");
}

QList<int32_t> EventCategories::KnownTypes()
{
    return AlarmSchemeCommon::ACSAlarmEvent() + AlarmSchemeCommon::ACSAbnormalEvent() +
           AlarmSchemeCommon::ACSNormalEvent() + QList<int32_t>{EventSource::AlarmInputAlarmType};
}

std::optional<int32_t> EventCategories::TypeOf(const QString& strText)
{
    const std::optional<int32_t> number = NumberOf(strText);
    const QList<int32_t> types = KnownTypes();
    const auto found = std::find_if(types.begin(), types.end(), [&strText, &number](int32_t iType) {
        return number == iType ||
               QCommon::GetAlarmNameByType(iType).compare(strText, Qt::CaseInsensitive) == 0;
    });
    return found == types.end() ? std::nullopt : std::optional<int32_t>(*found);
}

std::optional<int32_t> EventCategories::NumberOf(const QString& strText)
{
    const bool digits = !strText.isEmpty() && std::all_of(strText.begin(), strText.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    bool ok = false;
    const int value = strText.toInt(&ok);
    return digits && ok ? std::optional<int32_t>(value) : std::nullopt;
}
