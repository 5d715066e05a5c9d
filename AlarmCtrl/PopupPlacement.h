#pragma once

#include <QPoint>
#include <QSize>

class QWidget;

/// Where a small popup stands beside the widget that opened it.
namespace PopupPlacement {

/// Pixels between a popup's lower edge and its parent's upper edge.
constexpr int Gap = 10;

/// The popup's top left corner: its right edge lines up with the parent's, its lower edge lies Gap pixels
/// above. Screen coordinates; also where that is outside the screen.
QPoint AboveParent(const QPoint& parentTopRight, const QSize& popupSize);

/// Moves a popup above its parent widget; without a parent it stays where it is.
void PlaceAboveParent(QWidget& popup);

} // namespace PopupPlacement
