#include "platform/SystemLibrary/EventTypes.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

using EventTypes::Category;

struct EventType
{
    int iType;
    Category category;
    const char* szName;
};

// Most urgent first within a category. Numbers are kept for ever: stored schemes refer to them.
constexpr EventType s_eventTypes[] = {
    {EventSource::AlarmInputAlarmType, Category::Other, QT_TRANSLATE_NOOP("QCommon", "External Alarm")},

    {101, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Door Forced Open")},
    {102, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Duress Code Entered")},
    {103, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Duress Fingerprint")},
    {104, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Door Open Too Long")},
    {EventSource::PerDeviceAlarmType, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Controller Tampered")},
    {105, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Card Reader Tampered")},
    {106, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Fire Alarm Input")},
    {107, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Emergency Button")},
    {108, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Card on Block List")},
    {109, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Too Many Attempts")},
    {110, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Anti-Passback Violation")},
    {111, Category::Alarm, QT_TRANSLATE_NOOP("QCommon", "Interlock Violation")},

    {201, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Unknown Card")},
    {202, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Card Expired")},
    {203, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Card Not Yet Valid")},
    {204, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "No Access at This Door")},
    {205, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Outside Access Hours")},
    {206, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Wrong PIN")},
    {207, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Unknown Fingerprint")},
    {208, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Unknown Face")},
    {209, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "First-Card Rule Not Met")},
    {210, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Second Person Missing")},
    {211, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Door Not Closed")},
    {212, Category::Abnormal, QT_TRANSLATE_NOOP("QCommon", "Door Lock Fault")},

    {301, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Access by Card")},
    {302, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Access by Card and PIN")},
    {303, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Access by Fingerprint")},
    {304, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Access by Face")},
    {305, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Access by PIN")},
    {306, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Access by First Card")},
    {307, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Exit Button Pressed")},
    {308, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Door Opened")},
    {309, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Door Closed")},
    {310, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Opened by Operator")},
    {311, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Opened by Schedule")},
    {312, Category::Normal, QT_TRANSLATE_NOOP("QCommon", "Locked by Schedule")},
};

} // namespace

QList<int> EventTypes::Types(Category category)
{
    QList<int> types;
    for (const EventType& type : s_eventTypes) {
        if (type.category == category)
            types.append(type.iType);
    }
    return types;
}

const char* EventTypes::Name(int iType)
{
    const auto* const found = std::find_if(std::cbegin(s_eventTypes), std::cend(s_eventTypes),
                                           [iType](const EventType& type) { return type.iType == iType; });
    return found == std::cend(s_eventTypes) ? nullptr : found->szName;
}
