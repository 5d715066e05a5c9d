#include "AlarmCtrl/AlarmSchemeData/AlarmVideoSplit.h"

#include <algorithm>
#include <array>

struct AlarmSplitCells::Cells : QSharedData
{
    std::array<AlarmSplitWindow, AlarmSplitCells::CellCount> cells;

    /// The one block that all fresh splits of the process share.
    static const QSharedDataPointer<Cells>& Fresh()
    {
        static const QSharedDataPointer<Cells> fresh(new Cells);
        return fresh;
    }
};

AlarmSplitCells::AlarmSplitCells()
    : d(Cells::Fresh())
{
}

AlarmSplitCells::AlarmSplitCells(const AlarmSplitCells& other) = default;

// What was moved from stays a usable fresh set of cells.
AlarmSplitCells::AlarmSplitCells(AlarmSplitCells&& other) noexcept
    : AlarmSplitCells()
{
    d.swap(other.d);
}

AlarmSplitCells& AlarmSplitCells::operator=(const AlarmSplitCells& other) = default;

AlarmSplitCells& AlarmSplitCells::operator=(AlarmSplitCells&& other) noexcept
{
    d.swap(other.d);
    return *this;
}

AlarmSplitCells::~AlarmSplitCells() = default;

const AlarmSplitWindow& AlarmSplitCells::operator[](int iWindow) const
{
    Q_ASSERT(iWindow >= 0 && iWindow < CellCount);
    return d->cells[static_cast<size_t>(iWindow)];
}

AlarmSplitWindow& AlarmSplitCells::operator[](int iWindow)
{
    Q_ASSERT(iWindow >= 0 && iWindow < CellCount);
    return d->cells[static_cast<size_t>(iWindow)];
}

bool AlarmSplitCells::IsSharedWith(const AlarmSplitCells& other) const
{
    return d.constData() == other.d.constData();
}

int AlarmVideoSplit::UsedCells() const
{
    const int64_t product = static_cast<int64_t>(SplitRow) * SplitCloum;
    return static_cast<int>(std::clamp<int64_t>(product, 0, AlarmSplitCells::CellCount));
}

bool operator==(const AlarmSplitWindow& a, const AlarmSplitWindow& b)
{
    return a.bEnable == b.bEnable && a.iCombine == b.iCombine && a.X1 == b.X1 && a.Y1 == b.Y1 &&
           a.X2 == b.X2 && a.Y2 == b.Y2;
}

bool operator==(const AlarmLinkVideo& a, const AlarmLinkVideo& b)
{
    return a.Preposition == b.Preposition && a.StreamType == b.StreamType && a.bOpen == b.bOpen &&
           a.bRecord == b.bRecord && a.Time == b.Time && a.strLinkDevID == b.strLinkDevID;
}

bool operator==(const AlarmSplitCells& a, const AlarmSplitCells& b)
{
    if (a.IsSharedWith(b))
        return true;
    for (int window = 0; window < AlarmSplitCells::CellCount; ++window) {
        if (!(a[window] == b[window]))
            return false;
    }
    return true;
}

bool operator==(const AlarmVideoSplit& a, const AlarmVideoSplit& b)
{
    return a.SplitRow == b.SplitRow && a.SplitCloum == b.SplitCloum && a.SplitCount == b.SplitCount &&
           a.cells == b.cells && a.videoLinks == b.videoLinks;
}
