#include "scheme_editor/TabLayout.h"

QVector<QPoint> TabLayout::Positions(const QVector<QSize>& buttonSizes, int iContainerHeight)
{
    QVector<QPoint> positions;
    positions.reserve(buttonSizes.size());
    int x = 0;
    for (const QSize& size : buttonSizes) {
        positions.append({x, iContainerHeight - size.height()});
        x += size.width() - Overlap;
    }
    return positions;
}
