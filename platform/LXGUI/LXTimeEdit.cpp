#include "platform/LXGUI/LXTimeEdit.h"

#include "platform/LXGUI/Metrics.h"

namespace LXGUI {

LXTimeEdit::LXTimeEdit(QWidget* parent)
    : QTimeEdit(parent)
{
    setMinimumHeight(ControlHeight);
}

LXTimeEdit::~LXTimeEdit() = default;

} // namespace LXGUI
