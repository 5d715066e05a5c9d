#include "platform/LXGUI/Metrics.h"

#include <QStyle>
#include <QWidget>

namespace LXGUI {

bool IsMotionWelcome(const QWidget* pWidget)
{
    return pWidget->isVisible() &&
           pWidget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, pWidget) > 0;
}

} // namespace LXGUI
