#include "client/TileArrangement.h"

#include <Qt>

TileArrangement TileArrangement::Of(int iCount, int iWidth, const QSize& tileSize)
{
    TileArrangement arrangement;
    const int iTileWidth = qBound(1, iWidth, qMax(1, tileSize.width()));
    const int iColumns = qMax(1, (iWidth + Gap) / (iTileWidth + Gap));
    arrangement.iColumns = qBound(1, iCount, iColumns);
    for (int i = 0; i < iCount; ++i) {
        const QPoint topLeft((i % arrangement.iColumns) * (iTileWidth + Gap),
                             (i / arrangement.iColumns) * (tileSize.height() + Gap));
        arrangement.tiles.append(QRect(topLeft, QSize(iTileWidth, tileSize.height())));
        arrangement.iHeight = arrangement.tiles.constLast().bottom() + 1;
    }
    return arrangement;
}

int TileArrangement::Neighbour(int iCurrent, int iKey) const
{
    int iWanted = iCurrent;
    switch (iKey) {
    case Qt::Key_Left:
        iWanted = iCurrent - 1;
        break;
    case Qt::Key_Right:
        iWanted = iCurrent + 1;
        break;
    case Qt::Key_Up:
        iWanted = iCurrent - iColumns;
        break;
    case Qt::Key_Down:
        iWanted = iCurrent + iColumns;
        break;
    case Qt::Key_Home:
        iWanted = 0;
        break;
    case Qt::Key_End:
        iWanted = tiles.size() - 1;
        break;
    default:
        break;
    }
    return iWanted >= 0 && iWanted < tiles.size() ? iWanted : iCurrent;
}
