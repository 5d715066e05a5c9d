#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

/// Where the tiles of the home page lie: left to right, row by row, as many in a row as fit.
struct TileArrangement
{
    QVector<QRect> tiles;
    int iColumns = 1;
    int iHeight = 0; ///< of all rows together, in pixels

    static constexpr int Gap = 16; ///< between neighbouring tiles, in pixels

    /// `iWidth` is the room in pixels; a room smaller than a tile gets one column of narrower tiles.
    static TileArrangement Of(int iCount, int iWidth, const QSize& tileSize);
    /// The tile that an arrow key leads to from `iCurrent`; `iCurrent` itself at an edge or for another key.
    int Neighbour(int iCurrent, int iKey) const;
};
