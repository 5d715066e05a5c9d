#include "platform/LXGUI/LXTimeEdit.h"

#include "platform/LXGUI/Metrics.h"

#include <QEvent>
#include <QKeyEvent>
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
        m_eLedTo = NoSection;
        // After the line has taken the click: only then is known what it selects by itself.
        QMetaObject::invokeMethod(this, &LXTimeEdit::SelectClickedSection, Qt::QueuedConnection);
    }
    return QTimeEdit::eventFilter(pWatched, pEvent);
}

void LXTimeEdit::keyPressEvent(QKeyEvent* pEvent)
{
    const QString strText = pEvent->text();
    if (strText == QLatin1String(":") && m_eLedTo != NoSection && m_eLedTo == currentSection()) {
        m_eLedTo = NoSection;
        pEvent->accept();
        return;
    }
    const Section eBefore = currentSection();
    QTimeEdit::keyPressEvent(pEvent);
    if (!strText.isEmpty()) { // Shift before the colon is no text
        const bool bLedOn = strText.at(0).isDigit() && currentSection() != eBefore;
        m_eLedTo = bLedOn ? currentSection() : NoSection;
    }
}

void LXTimeEdit::SelectClickedSection()
{
    if (!lineEdit()->hasSelectedText()) {
        setSelectedSection(currentSection());
    }
}

} // namespace LXGUI
