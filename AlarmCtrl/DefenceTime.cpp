#include "AlarmCtrl/DefenceTime.h"

#include <algorithm>
#include <map>

namespace DefenceTime {

namespace {

using Boundaries = QVector<int32_t>;
using Counters = std::map<int32_t, int64_t>;

/// The seconds at which a running sum over the counters leaves or reaches zero.
Boundaries Walk(const Counters& counters)
{
    Boundaries points;
    int64_t sum = 0;
    for (const auto& [second, counter] : counters) {
        if (sum == 0) {
            points.append(second);
            sum = counter;
        } else {
            sum += counter;
            if (sum == 0) {
                points.append(second);
            }
        }
    }
    return points;
}

Boundaries Painted(const AlarmDefenceTime_t& regions, const AlarmTimeRegion& span)
{
    Counters counters;
    for (const AlarmTimeRegion& region : regions) {
        counters[region.Begin] = 1;
        counters[region.End] = -1;
    }
    ++counters[span.Begin];
    --counters[span.End];
    return Walk(counters);
}

Boundaries Erased(const AlarmDefenceTime_t& regions, const AlarmTimeRegion& span)
{
    Boundaries points;
    for (const AlarmTimeRegion& region : regions) {
        const bool bOutside = region.End <= span.Begin || region.Begin >= span.End;
        const bool bStartsBefore = region.Begin < span.Begin;
        const bool bEndsAfter = region.End > span.End;
        if (bOutside) {
            points << region.Begin << region.End;
            continue;
        }
        if (bStartsBefore) {
            points << region.Begin << span.Begin;
        }
        if (bEndsAfter) {
            points << span.End << region.End;
        }
    }
    return points;
}

AlarmDefenceTime_t Paired(const Boundaries& points)
{
    AlarmDefenceTime_t regions;
    regions.reserve(points.size() / 2);
    for (int i = 0; i + 1 < points.size(); i += 2) {
        regions.append({points[i], points[i + 1]});
    }
    return regions;
}

} // namespace

int32_t SnapToQuarter(int32_t iSeconds, Rounding rounding)
{
    int64_t snapped = int64_t{iSeconds} / QuarterHour * QuarterHour;
    if (rounding == Rounding::Up && snapped < iSeconds) {
        snapped += QuarterHour;
    }
    return static_cast<int32_t>(std::min<int64_t>(snapped, LastSecond));
}

int32_t PixelToSecs(int x, int iWidth)
{
    if (iWidth <= 0 || x < 0) {
        return 0;
    }
    if (x > iWidth) {
        return LastSecond;
    }
    return static_cast<int32_t>(int64_t{LastSecond} * x / iWidth);
}

int SecsToPixel(int32_t iSeconds, int iWidth)
{
    if (iWidth <= 0 || iSeconds < 0) {
        return 0;
    }
    if (iSeconds > LastSecond) {
        return iWidth;
    }
    return static_cast<int>(int64_t{iSeconds} * iWidth / LastSecond);
}

int32_t ClampToDay(int32_t iSeconds)
{
    return std::clamp(iSeconds, 0, LastSecond);
}

AlarmTimeRegion SnappedSpan(const Drag& drag)
{
    const auto [first, last] = std::minmax(drag.iPress, drag.iCurrent);
    const int32_t begin = SnapToQuarter(first, Rounding::Down);
    const int32_t end = SnapToQuarter(last, Rounding::Up);
    return {std::min(begin, end), std::max(begin, end)};
}

bool IsOnRegion(const AlarmDefenceTime_t& regions, int32_t iSeconds)
{
    return std::any_of(regions.cbegin(), regions.cend(), [iSeconds](const AlarmTimeRegion& region) {
        return SnapToQuarter(region.Begin, Rounding::Down) <= iSeconds &&
               iSeconds <= SnapToQuarter(region.End, Rounding::Up);
    });
}

MergeResult Merge(const AlarmDefenceTime_t& regions, const Drag& drag)
{
    const AlarmTimeRegion span = SnappedSpan(drag);
    if (span.Begin == span.End) {
        return {MergeStatus::Unchanged, regions};
    }
    const Boundaries points = drag.bErase ? Erased(regions, span) : Painted(regions, span);
    if (points.size() > 2 * MaxRegions) {
        return {MergeStatus::TooManyRegions, regions};
    }
    if (points.size() % 2 != 0) {
        return {MergeStatus::Inconsistent, regions};
    }
    return {MergeStatus::Changed, Paired(points)};
}

AlarmDefenceTime_t FuseRows(const QVector<AlarmTimeRegion>& rows)
{
    Counters counters;
    for (const AlarmTimeRegion& row : rows) {
        if (row.Begin < row.End) {
            ++counters[row.Begin];
            --counters[row.End];
        }
    }
    return Paired(Walk(counters));
}

int FirstReversedRow(const QVector<AlarmTimeRegion>& rows)
{
    const auto bad = std::find_if(rows.cbegin(), rows.cend(),
                                  [](const AlarmTimeRegion& row) { return row.Begin > row.End; });
    return bad == rows.cend() ? 0 : static_cast<int>(std::distance(rows.cbegin(), bad)) + 1;
}

int DayBit(int iDay)
{
    return iDay >= 0 && iDay < DayCount ? 1 << iDay : 0;
}

int DayBitOfName(const QString& strObjectName)
{
    return strObjectName.isEmpty() ? 0 : DayBit(strObjectName.back().unicode() - u'0');
}

} // namespace DefenceTime
