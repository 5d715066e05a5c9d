#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"
#include "AlarmCtrl/DefenceTime.h"

#include <QColor>
#include <QImage>
#include <QSize>

#include <optional>

/// The picture of a day bar, drawn without a widget.
namespace DayBarPicture {

struct Content
{
    AlarmDefenceTime_t regions;            ///< as stored; rounded to quarter hours for the picture only
    std::optional<DefenceTime::Drag> drag; ///< the drag in progress whose effect is previewed
    QColor regionColour;                   ///< opaque
    QColor gridColour;                     ///< opaque
};

/// The bar in `size` logical pixels at a device pixel ratio, as 32-bit ARGB on a fully transparent ground:
/// the regions, the drag's span added or cut out as a transparent hole, the 25 hour lines on top. All edges
/// are placed on whole device pixels, so no pixel is a blend at any ratio. A null image for an empty size; a
/// ratio that is not positive counts as 1.
QImage Draw(const QSize& size, qreal dRatio, const Content& content);

} // namespace DayBarPicture
