#include "platform/LXGUI/LXPushButton.h"

#include "platform/LXGUI/Metrics.h"

namespace LXGUI {

LXPushButton::LXPushButton(QWidget* parent)
    : QPushButton(parent)
{
    setMinimumHeight(ControlHeight);
}

LXPushButton::~LXPushButton() = default;

} // namespace LXGUI
