#pragma once

#include <QPoint>
#include <QSize>
#include <QVector>

/// Where tab buttons stand that overlap their neighbours.
namespace TabLayout {

constexpr int Overlap = 14; ///< pixels

/// Top-left corners in a container of this height (pixels): each button at its own size, standing on the
/// container's bottom edge, the first at the left edge, each next one Overlap pixels over the previous one.
QVector<QPoint> Positions(const QVector<QSize>& buttonSizes, int iContainerHeight);

} // namespace TabLayout
