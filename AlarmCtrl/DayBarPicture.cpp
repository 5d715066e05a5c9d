#include "AlarmCtrl/DayBarPicture.h"

#include <algorithm>
#include <vector>

namespace DayBarPicture {

namespace {

constexpr int GridSpaces = 24; ///< hours

/// Every row of a bar is the same, so that one row is all there is to draw.
using Row = std::vector<QRgb>;

void FillSpan(Row& row, const AlarmTimeRegion& span, QRgb colour)
{
    const int width = static_cast<int>(row.size());
    const int first = DefenceTime::SecsToPixel(span.Begin, width);
    const int last = DefenceTime::SecsToPixel(span.End, width);
    if (first < last) {
        std::fill(row.begin() + first, row.begin() + last, colour);
    }
}

void DrawGrid(Row& row, int iLineWidth, QRgb colour)
{
    const int width = static_cast<int>(row.size());
    const int line = std::min(iLineWidth, width);
    for (int i = 0; i <= GridSpaces; ++i) {
        const int x = static_cast<int>(std::min<qint64>(qint64{width} * i / GridSpaces, width - line));
        std::fill_n(row.begin() + x, line, colour);
    }
}

Row DrawRow(int iWidth, int iLineWidth, const Content& content)
{
    constexpr QRgb hole = 0;
    const QRgb region = content.regionColour.rgba();
    Row row(static_cast<size_t>(iWidth), hole);
    for (const AlarmTimeRegion& stored : content.regions) {
        FillSpan(row,
                 {DefenceTime::SnapToQuarter(stored.Begin, DefenceTime::Rounding::Down),
                  DefenceTime::SnapToQuarter(stored.End, DefenceTime::Rounding::Up)},
                 region);
    }
    if (content.drag) {
        FillSpan(row, DefenceTime::SnappedSpan(*content.drag), content.drag->bErase ? hole : region);
    }
    DrawGrid(row, iLineWidth, content.gridColour.rgba());
    return row;
}

} // namespace

QImage Draw(const QSize& size, qreal dRatio, const Content& content)
{
    const qreal ratio = dRatio > 0 ? dRatio : 1;
    const QSize pixels(qRound(size.width() * ratio), qRound(size.height() * ratio));
    QImage image(pixels, QImage::Format_ARGB32);
    if (pixels.isEmpty() || image.isNull()) {
        return {};
    }
    const Row row = DrawRow(pixels.width(), std::max(1, qRound(ratio)), content);
    for (int y = 0; y < pixels.height(); ++y) {
        std::copy(row.cbegin(), row.cend(), reinterpret_cast<QRgb*>(image.scanLine(y)));
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace DayBarPicture
