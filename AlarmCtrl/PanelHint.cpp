#include "AlarmCtrl/PanelHint.h"

#include "platform/LXGUI/Theme.h"

#include <QEvent>

PanelHint::PanelHint(QWidget* pPanel, int iTop)
    : QLabel(pPanel->parentWidget())
    , m_pPanel(pPanel)
    , m_iTop(iTop)
{
    setObjectName(QStringLiteral("lblHint"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette dim = palette();
    dim.setColor(QPalette::WindowText, LXGUI::Theme::Current().Colour(QStringLiteral("dim")));
    setPalette(dim);
    pPanel->installEventFilter(this);
    FollowPanel();
    hide();
}

void PanelHint::SetHint(const QString& strHint)
{
    setText(strHint);
    setVisible(!strHint.isEmpty());
    raise();
}

bool PanelHint::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_pPanel && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        FollowPanel();
    return QLabel::eventFilter(watched, event);
}

void PanelHint::FollowPanel()
{
    setGeometry(m_pPanel->geometry().adjusted(0, m_iTop, 0, 0));
}
