#include "platform/LXGUI/LXCheckBox.h"

#include "platform/LXGUI/Metrics.h"

namespace LXGUI {

LXCheckBox::LXCheckBox(QWidget* parent)
    : QCheckBox(parent)
{
    setMinimumHeight(ControlHeight);
}

LXCheckBox::~LXCheckBox() = default;

} // namespace LXGUI
