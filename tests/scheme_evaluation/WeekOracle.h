#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cstddef>
#include <vector>

/// Every second of a week by itself: slow, and too simple to be wrong.
class WeekOracle
{
public:
    static constexpr int Day = 86400;
    static constexpr int Week = 7 * Day;

    explicit WeekOracle(const AlarmWeek& week)
    {
        for (int day = 0; day < 7; ++day) {
            for (int second = 0; second < Day; ++second)
                m_armed.push_back(Covers(week[day], second));
        }
    }

    bool IsArmed(int iSecond) const { return m_armed[static_cast<std::size_t>(iSecond)]; }

    /// A week of up to six regions a day whose edges lie close together, so that they touch, overlap, are
    /// empty and reach midnight often.
    static AlarmWeek Random(QRandomGenerator& random)
    {
        AlarmWeek week;
        for (int day = 0; day < 7; ++day) {
            AlarmDefenceTime_t regions;
            for (int region = random.bounded(7); region > 0; --region)
                regions.append({Edge(random), Edge(random)});
            week[day] = regions;
        }
        return week;
    }

private:
    static bool Covers(const AlarmDefenceTime_t& regions, int iSecond)
    {
        return std::any_of(regions.begin(), regions.end(), [iSecond](const AlarmTimeRegion& region) {
            if (region.Begin < 0 || region.Begin == region.End)
                return false;
            return region.Begin <= iSecond &&
                   (iSecond < region.End || (region.End == 86399 && iSecond == 86399));
        });
    }

    static int Edge(QRandomGenerator& random)
    {
        switch (random.bounded(8)) {
        case 0:
            return 0;
        case 1:
            return 86399;
        case 2:
            return random.bounded(Day);
        case 3:
            return 86400 + random.bounded(100);
        case 4:
            return -1 - random.bounded(100);
        default:
            return 3600 * random.bounded(24);
        }
    }

    std::vector<bool> m_armed;
};
