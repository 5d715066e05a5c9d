#pragma once

#include <QPixmap>
#include <QStyle>

class QWidget;

namespace LXGUI {

/// An image of the skin, `strName` below "./Skin/theme1/". Where the skin lacks it the style's own picture
/// steps in, so that a missing skin costs the look and nothing else. `iSize` in pixels of the widget.
QPixmap SkinImage(const QWidget* pWidget, const QString& strName, QStyle::StandardPixmap substitute,
                  int iSize);

} // namespace LXGUI
