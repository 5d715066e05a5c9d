#include "platform/LXGUI/LXLineEdit.h"

#include "platform/LXGUI/Metrics.h"

namespace LXGUI {

LXLineEdit::LXLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setMinimumHeight(ControlHeight);
}

LXLineEdit::~LXLineEdit() = default;

} // namespace LXGUI
