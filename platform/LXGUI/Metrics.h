#pragma once

#include "lxgui_export.h"

class QWidget;

namespace LXGUI {

/// Heights and durations of the look, in pixels and milliseconds.
constexpr int ControlHeight = 24;
constexpr int DialogControlHeight = 32;
constexpr int CornerRadius = 4;
constexpr int FocusRingWidth = 2;
constexpr int SwitchSlideTime = 120;
constexpr int NoteFadeTime = 150;

/// Whether something may move on this widget: it is on screen, and neither the desktop nor the style asked
/// for still pictures.
LXGUI_EXPORT bool IsMotionWelcome(const QWidget* pWidget);

} // namespace LXGUI
