#pragma once

#include "alarmrecords_export.h"

#include <QString>

#include <cstdint>
#include <optional>

/// Names one scheme: the event source and the type of event. Ordered by text (case-sensitive), then by type.
struct AlarmSourceKey
{
    QString strEventSource;
    int32_t AlarmType = -1;
};

inline bool operator<(const AlarmSourceKey& a, const AlarmSourceKey& b)
{
    const int order = a.strEventSource.compare(b.strEventSource);
    return order < 0 || (order == 0 && a.AlarmType < b.AlarmType);
}
inline bool operator==(const AlarmSourceKey& a, const AlarmSourceKey& b)
{
    return a.AlarmType == b.AlarmType && a.strEventSource == b.strEventSource;
}
inline bool operator!=(const AlarmSourceKey& a, const AlarmSourceKey& b)
{
    return !(a == b);
}

/// The text of an event source: four decimal fields joined by "$" (owner, unit type, sub-kind flag, channel).
/// The only place where such a text is put together or taken apart.
namespace EventSource {

/// Event type that is kept once per device and shared by all of its doors.
constexpr int32_t PerDeviceAlarmType = 22;
/// Event type under which every alarm input keeps its scheme.
constexpr int32_t AlarmInputAlarmType = 2;

ALARMRECORDS_EXPORT QString Unit(int64_t iDeviceId);                     ///< "%1$1$0$0"
ALARMRECORDS_EXPORT QString Door(int64_t iDeviceId, int64_t iChannelId); ///< "%1$1$0$%2"
ALARMRECORDS_EXPORT QString WholeDevice(int64_t iDeviceId);              ///< "%1$1$0$-1"
ALARMRECORDS_EXPORT QString AccessControlDevice(int64_t iDeviceId);      ///< "%1$1$1$0"
ALARMRECORDS_EXPORT QString AlarmUnit(int64_t iDeviceId);                ///< "%1$3$0$0"
/// "%1$3$1$%2" on an access-control device, else "%1$3$0$%2".
ALARMRECORDS_EXPORT QString AlarmInput(int64_t iDeviceId, int64_t iChannelId, bool bAccessControl);
ALARMRECORDS_EXPORT QString AlarmOutput(int64_t iChannelId); ///< "%1$%2$0$0" with 3 for %2

/// The number of "$"-separated fields; 0 for an empty text.
ALARMRECORDS_EXPORT int FieldCount(const QString& strSource);
/// The first field as a 64-bit integer, of a text with any number of fields; nothing when it is no number.
ALARMRECORDS_EXPORT std::optional<int64_t> FirstField(const QString& strSource);

struct Fields
{
    int64_t iOwner = -1;
    int64_t iUnitType = -1;
    int64_t iSubKind = -1;
    int64_t iChannel = -1;
};
/// The four fields; nothing unless there are exactly four and each is a decimal 64-bit integer.
ALARMRECORDS_EXPORT std::optional<Fields> Split(const QString& strSource);

/// Whether the text has exactly four fields and the first is this device.
ALARMRECORDS_EXPORT bool BelongsToDevice(const QString& strSource, int64_t iDeviceId);

/// The output channel of an output key; -1 unless there are exactly four fields, the second is 3 and the
/// first a decimal 64-bit integer (the others are not looked at).
ALARMRECORDS_EXPORT int64_t OutputChannelId(const QString& strSource);

/// The key under which the scheme of a source and event type is kept: for the per-device type the source is
/// replaced by its whole device. Nothing when that type's source does not split into four fields.
ALARMRECORDS_EXPORT std::optional<AlarmSourceKey> SchemeKey(const QString& strSource, int32_t iAlarmType);

} // namespace EventSource
