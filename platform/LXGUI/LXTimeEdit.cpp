#include "platform/LXGUI/LXTimeEdit.h"

#include "platform/LXGUI/Metrics.h"

#include <QEvent>
#include <QLineEdit>
#include <QMouseEvent>

namespace LXGUI {

LXTimeEdit::LXTimeEdit(QWidget* parent)
    : QTimeEdit(parent)
{
    setMinimumHeight(ControlHeight);
    lineEdit()->installEventFilter(this);
}

LXTimeEdit::~LXTimeEdit() = default;

bool LXTimeEdit::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == lineEdit() && pEvent->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(pEvent)->button() == Qt::LeftButton) {
        // After the line has taken the click: only then is known what it selects by itself.
        QMetaObject::invokeMethod(this, &LXTimeEdit::SelectClickedSection, Qt::QueuedConnection);
    }
    return QTimeEdit::eventFilter(pWatched, pEvent);
}

void LXTimeEdit::SelectClickedSection()
{
    if (!lineEdit()->hasSelectedText()) {
        setSelectedSection(currentSection());
    }
}

} // namespace LXGUI
