#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <QString>

/// Days as the tests of the week plan write them.
namespace DayTexts {

constexpr int Minute = 60;
constexpr int Hour = 3600;

/// "[Begin End]" for every region.
inline QString Text(const AlarmDefenceTime_t& regions)
{
    QString text;
    for (const AlarmTimeRegion& region : regions) {
        text += QStringLiteral("[%1 %2]").arg(region.Begin).arg(region.End);
    }
    return text;
}

/// As many regions as a day can have, each of an hour, with an hour between them: 01-02, 03-04 … 11-12.
inline AlarmDefenceTime_t SixRegions()
{
    AlarmDefenceTime_t regions;
    for (int hour = 1; hour <= 11; hour += 2) {
        regions.append({hour * Hour, (hour + 1) * Hour});
    }
    return regions;
}

} // namespace DayTexts
