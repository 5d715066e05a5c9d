#include "scheme_editor/EditObserver.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {

QEvent::Type LookEvent()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

// Menus and dialogs that the page has opened count as the page.
bool BelongsTo(const QWidget& page, const QObject* pObject)
{
    while (pObject != nullptr && pObject != &page)
        pObject = pObject->parent();
    return pObject == &page;
}

} // namespace

EditObserver::EditObserver(QWidget& page, Observe observe)
    : QObject(&page)
    , m_page(page)
    , m_observe(std::move(observe))
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* pOld, QWidget* pNow) {
        if (BelongsTo(m_page, pOld) || BelongsTo(m_page, pNow))
            ++m_iStay;
    });
    // Assistive technology presses buttons without a mouse or a key.
    const QList<QAbstractButton*> buttons = page.findChildren<QAbstractButton*>();
    for (const QAbstractButton* pButton : buttons)
        connect(pButton, &QAbstractButton::clicked, this, &EditObserver::LookSoon);
}

EditObserver::~EditObserver() = default;

int EditObserver::LoopLevel()
{
    return QThread::currentThread()->loopLevel();
}

bool EditObserver::IsBusy() const
{
    return m_pressed != Qt::NoButton || (m_bDue && LoopLevel() > m_iLevel);
}

int EditObserver::Typing() const
{
    const QWidget* const pFocus = QApplication::focusWidget();
    const bool bText = qobject_cast<const QLineEdit*>(pFocus) != nullptr ||
                       qobject_cast<const QAbstractSpinBox*>(pFocus) != nullptr;
    return bText && m_page.isAncestorOf(pFocus) ? m_iStay : 0;
}

void EditObserver::LookSoon()
{
    m_iLevel = m_bDue ? std::min(m_iLevel, LoopLevel()) : LoopLevel();
    m_bDue = true;
    if (!m_bPosted) {
        m_bPosted = true;
        QCoreApplication::postEvent(this, new QEvent(LookEvent()), Qt::LowEventPriority);
    }
}

bool EditObserver::event(QEvent* event)
{
    if (event->type() != LookEvent())
        return QObject::event(event);
    m_bPosted = false;
    if (!m_bDue)
        return true;
    if (LoopLevel() > m_iLevel) {
        m_bInDialog = true; // the filter looks again when that loop has ended
    } else if (m_pressed == Qt::NoButton) {
        m_bDue = false;
        m_observe(std::exchange(m_bInDialog, false));
    }
    return true;
}

// Runs for every event of the program, so the common ones leave at once.
bool EditObserver::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (watched->isWidgetType() && BelongsTo(m_page, watched)) {
            m_pressed |= static_cast<QMouseEvent*>(event)->button();
            LookSoon();
        }
        break;
    case QEvent::MouseButtonRelease:
        if (watched->isWidgetType() && (m_pressed != Qt::NoButton || BelongsTo(m_page, watched))) {
            m_pressed &= ~static_cast<QMouseEvent*>(event)->button();
            LookSoon();
        }
        break;
    case QEvent::MouseMove:
        // A release that went astray: the pointer moves without a button.
        if (m_pressed != Qt::NoButton && watched->isWidgetType() &&
            static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) {
            m_pressed = Qt::NoButton;
            LookSoon();
        }
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::InputMethod:
    case QEvent::Drop:
        if (watched->isWidgetType() && BelongsTo(m_page, watched))
            LookSoon();
        break;
    default:
        if (m_bDue && !m_bPosted && m_pressed == Qt::NoButton && LoopLevel() <= m_iLevel)
            LookSoon();
        break;
    }
    return false;
}
