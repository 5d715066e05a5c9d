#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <QString>

#include <cstdint>

/// The arithmetic of one day's defence time: the quarter-hour grid, seconds to pixels and back, what a drag
/// on a day bar does to the stored regions, what typed rows come to, and day masks. Seconds count from
/// 00:00:00. Nothing here knows a widget, keeps state or fails on hostile numbers.
namespace DefenceTime {

constexpr int32_t QuarterHour = 900;  ///< step of the grid, in seconds
constexpr int32_t LastSecond = 86399; ///< 23:59:59; a region that reaches the end of the day ends here
constexpr int MaxRegions = 6;         ///< a day's limit
constexpr int DayCount = 7;           ///< day 0 is Sunday
constexpr int AllDays = 0x7F;         ///< day mask with every day set

enum class Rounding
{
    Down,
    Up
};

/// The quarter hour at, before (Down) or after (Up) a second, never beyond LastSecond. Division truncates, so
/// a negative second between two marks goes to the later one in both directions.
int32_t SnapToQuarter(int32_t iSeconds, Rounding rounding);

/// The second under column `x` of a bar of `iWidth` pixels: 0 left of it and without a width, LastSecond
/// right of it.
int32_t PixelToSecs(int x, int iWidth);

/// The column of a second on a bar of `iWidth` pixels, 0 to `iWidth`.
int SecsToPixel(int32_t iSeconds, int iWidth);

/// A second moved into 0..LastSecond, for controls that cannot show others.
int32_t ClampToDay(int32_t iSeconds);

/// A pull of the pointer over a bar.
struct Drag
{
    int32_t iPress = 0;   ///< second under the press
    int32_t iCurrent = 0; ///< second under the pointer now
    bool bErase = false;  ///< takes time away instead of adding it
};

/// The quarter hours that a drag covers, in ascending order however it was pulled. Begin equals End only for
/// a click exactly on a mark.
AlarmTimeRegion SnappedSpan(const Drag& drag);

/// Whether a second lies on one of the regions as they are drawn, snapped outwards, both edges included.
bool IsOnRegion(const AlarmDefenceTime_t& regions, int32_t iSeconds);

enum class MergeStatus
{
    Unchanged,      ///< the drag covers nothing; a success
    Changed,        ///< a success
    TooManyRegions, ///< refused: more than MaxRegions would be left
    Inconsistent    ///< refused: the stored regions touch each other or are broken
};

struct MergeResult
{
    MergeStatus status = MergeStatus::Unchanged;
    AlarmDefenceTime_t regions; ///< the day after the drag; the day before it unless the status is Changed

    bool Succeeded() const { return status == MergeStatus::Unchanged || status == MergeStatus::Changed; }
};

/// What a drag makes of a day. The stored values are compared as they are, only the drag is snapped.
///
/// Painting counts boundaries, and a stored region assigns its two counters instead of adding to them: a
/// stored day is expected to be free of touching regions, and one that is not must not be repaired behind the
/// operator's back, so a paint on it is refused. Typed rows are fused by FuseRows, where touching is
/// ordinary.
MergeResult Merge(const AlarmDefenceTime_t& regions, const Drag& drag);

/// The regions that typed rows come to, ascending, overlapping and touching rows fused, to the second. A row
/// whose begin is not before its end is unused. Here every row adds to the counters, so that rows may touch
/// and overlap in any order; see Merge.
AlarmDefenceTime_t FuseRows(const QVector<AlarmTimeRegion>& rows);

/// The number (from 1) of the first row whose begin is later than its end; 0 when there is none.
int FirstReversedRow(const QVector<AlarmTimeRegion>& rows);

/// The bit of a day in a day mask; 0 for anything but 0..6.
int DayBit(int iDay);

/// The bit of the day whose number ends an object name such as "editor3"; 0 when no digit 0..6 ends it.
int DayBitOfName(const QString& strObjectName);

} // namespace DefenceTime
