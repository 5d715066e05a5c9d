#pragma once

#include "alarmrecords_export.h"

#include <QMetaType>
#include <QSharedDataPointer>
#include <QVector>

#include <cstdint>

/// A span of one day in whole seconds since 00:00:00. Valid: 0 <= Begin <= End <= 86399. Armed for
/// Begin <= t < End; an End of 86399 lasts through the end of the day.
struct AlarmTimeRegion
{
    int32_t Begin = 0;
    int32_t End = 0;
};

inline bool operator==(const AlarmTimeRegion& a, const AlarmTimeRegion& b)
{
    return a.Begin == b.Begin && a.End == b.End;
}
inline bool operator!=(const AlarmTimeRegion& a, const AlarmTimeRegion& b)
{
    return !(a == b);
}
Q_DECLARE_TYPEINFO(AlarmTimeRegion, Q_PRIMITIVE_TYPE);

/// One day's armed regions. What comes from outside may be unsorted, overlapping or too long; see
/// DefenceTime.
using AlarmDefenceTime_t = QVector<AlarmTimeRegion>;
Q_DECLARE_METATYPE(AlarmDefenceTime_t)

/// Seven days, Sunday first, shared until written. A fresh week is armed all day on every day.
class ALARMRECORDS_EXPORT AlarmWeek
{
public:
    static constexpr int DayCount = 7;

    AlarmWeek();
    AlarmWeek(const AlarmWeek& other);
    AlarmWeek(AlarmWeek&& other) noexcept;
    AlarmWeek& operator=(const AlarmWeek& other);
    AlarmWeek& operator=(AlarmWeek&& other) noexcept;
    ~AlarmWeek();

    /// Position 0 (Sunday) to 6 (Saturday); anything else is a programming error.
    const AlarmDefenceTime_t& operator[](int iDay) const;
    AlarmDefenceTime_t& operator[](int iDay); ///< detaches

    const AlarmDefenceTime_t* data() const; ///< seven days
    AlarmDefenceTime_t* data();             ///< seven days; detaches

    /// Whether both share one block of memory (equal without looking).
    bool IsSharedWith(const AlarmWeek& other) const;

private:
    struct Days;
    QSharedDataPointer<Days> d;
};

ALARMRECORDS_EXPORT bool operator==(const AlarmWeek& a, const AlarmWeek& b);
inline bool operator!=(const AlarmWeek& a, const AlarmWeek& b)
{
    return !(a == b);
}
