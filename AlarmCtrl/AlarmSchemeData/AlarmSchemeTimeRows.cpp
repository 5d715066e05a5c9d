#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeTimeRows.h"

#include <limits>

bool IsSoundTimeRow(int64_t iDay, int64_t iBegin, int64_t iEnd)
{
    return iDay >= 1 && iDay <= AlarmWeek::DayCount && iBegin >= 0 && iBegin <= iEnd &&
           iEnd <= std::numeric_limits<int32_t>::max();
}

AlarmWeek EmptyAlarmWeek()
{
    static const AlarmWeek empty = [] {
        AlarmWeek week;
        for (int day = 0; day < AlarmWeek::DayCount; ++day)
            week[day].clear();
        return week;
    }();
    return empty;
}
