#include "platform/LXGUI/LXDialogTitleBar.h"

#include "platform/LXGUI/SkinImages.h"
#include "platform/LXGUI/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QWindow>

namespace LXGUI {

LXDialogTitleBar::LXDialogTitleBar(QWidget* pDialog)
    : QWidget(pDialog)
    , m_pTitle(new QLabel(this))
    , m_pClose(new QToolButton(this))
{
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(12, 0, 4, 0);
    pLayout->setSpacing(8);
    pLayout->addWidget(m_pTitle, 1);
    pLayout->addWidget(m_pClose);
    QFont font = m_pTitle->font();
    font.setWeight(QFont::DemiBold);
    m_pTitle->setFont(font);
    m_pTitle->setTextFormat(Qt::PlainText);
    m_pTitle->setMinimumWidth(0);
    m_pTitle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pClose->setObjectName(QStringLiteral("btnDialogClose"));
    m_pClose->setAutoRaise(true);
    m_pClose->setFocusPolicy(Qt::NoFocus);
    m_pClose->setFixedSize(24, 24);
    m_pClose->setIcon(
        QIcon(SkinImage(this, QStringLiteral("controls/close.png"), QStyle::SP_TitleBarCloseButton, 16)));
    m_pClose->setIconSize(QSize(16, 16));
    m_pClose->setToolTip(tr("Close"));
    m_pClose->setAccessibleName(tr("Close"));
    connect(m_pClose, &QToolButton::clicked, this, &LXDialogTitleBar::SignalCloseClicked);
}

LXDialogTitleBar::~LXDialogTitleBar() = default;

void LXDialogTitleBar::SetTitle(const QString& strTitle)
{
    m_strTitle = strTitle;
    ShowTitle();
}

void LXDialogTitleBar::ShowTitle()
{
    const QString strShown =
        m_pTitle->fontMetrics().elidedText(m_strTitle, Qt::ElideRight, m_pTitle->width());
    m_pTitle->setText(strShown);
    m_pTitle->setToolTip(strShown == m_strTitle ? QString() : m_strTitle);
}

void LXDialogTitleBar::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = Theme::Current();
    QPainter painter(this);
    painter.fillRect(rect(), theme.Colour(QStringLiteral("raised")));
    painter.fillRect(0, height() - 1, width(), 1, theme.Colour(QStringLiteral("lineDark")));
}

void LXDialogTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    // The window system moves the window where it can; elsewhere the pointer carries it.
    QWindow* pWindow = window()->windowHandle();
    if (pWindow && pWindow->startSystemMove()) {
        return;
    }
    m_grip = event->globalPos() - window()->pos();
    m_bDragging = true;
}

void LXDialogTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (m_bDragging && (event->buttons() & Qt::LeftButton)) {
        window()->move(event->globalPos() - m_grip);
    }
}

void LXDialogTitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_bDragging = false;
    }
}

void LXDialogTitleBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    ShowTitle();
}

} // namespace LXGUI
