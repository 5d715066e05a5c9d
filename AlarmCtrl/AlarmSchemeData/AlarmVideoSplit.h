#pragma once

#include "alarmrecords_export.h"

#include <QMap>
#include <QSharedDataPointer>
#include <QString>

#include <cstdint>

/// One cell of the alarm video wall.
struct AlarmSplitWindow
{
    bool bEnable = true;
    int32_t iCombine = 0; ///< merge marker
    int32_t X1 = 0;       ///< area in grid units, by two corners
    int32_t Y1 = 0;
    int32_t X2 = 1;
    int32_t Y2 = 1;
};

/// The channel shown in one cell.
struct AlarmLinkVideo
{
    QString strLinkDevID;     ///< event-source key of the video channel
    int32_t Preposition = -1; ///< preset position to call, -1 none
    int32_t StreamType = -1;  ///< stream to open, -1 not set
    bool bOpen = true;
    bool bRecord = false;
    int32_t Time = 20; ///< seconds
};

/// The 64 cells by window number, shared until written.
class ALARMRECORDS_EXPORT AlarmSplitCells
{
public:
    static constexpr int CellCount = 64;

    AlarmSplitCells();
    AlarmSplitCells(const AlarmSplitCells& other);
    AlarmSplitCells(AlarmSplitCells&& other) noexcept;
    AlarmSplitCells& operator=(const AlarmSplitCells& other);
    AlarmSplitCells& operator=(AlarmSplitCells&& other) noexcept;
    ~AlarmSplitCells();

    /// Window number 0 to 63; anything else is a programming error.
    const AlarmSplitWindow& operator[](int iWindow) const;
    AlarmSplitWindow& operator[](int iWindow); ///< detaches
    bool IsSharedWith(const AlarmSplitCells& other) const;

private:
    struct Cells;
    QSharedDataPointer<Cells> d;
};

/// Layout of the alarm video wall and the channels linked per cell. The counts come from outside and are
/// not to be trusted: see UsedCells().
struct ALARMRECORDS_EXPORT AlarmVideoSplit
{
    int32_t SplitRow = 0;
    int32_t SplitCloum = 0; ///< columns; the name is spelled like the stored column
    int32_t SplitCount = 0; ///< cells in use; video links are kept for window numbers below it
    AlarmSplitCells cells;
    QMap<int32_t, AlarmLinkVideo> videoLinks; ///< by window number

    /// SplitRow x SplitCloum, formed in 64 bits and bounded to 0..64.
    int UsedCells() const;
};

ALARMRECORDS_EXPORT bool operator==(const AlarmSplitWindow& a, const AlarmSplitWindow& b);
ALARMRECORDS_EXPORT bool operator==(const AlarmLinkVideo& a, const AlarmLinkVideo& b);
ALARMRECORDS_EXPORT bool operator==(const AlarmSplitCells& a, const AlarmSplitCells& b);
ALARMRECORDS_EXPORT bool operator==(const AlarmVideoSplit& a, const AlarmVideoSplit& b);
