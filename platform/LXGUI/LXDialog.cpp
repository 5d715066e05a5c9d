#include "platform/LXGUI/LXDialog.h"

#include "platform/LXGUI/LXDialogTitleBar.h"
#include "platform/LXGUI/Theme.h"

#include <QEvent>
#include <QPainter>

namespace LXGUI {
namespace {

constexpr int FrameWidth = 1;
constexpr int TitleHeight = 36;

} // namespace

LXDialog::LXDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_pTitleBar(new LXDialogTitleBar(this))
{
    connect(m_pTitleBar, &LXDialogTitleBar::SignalCloseClicked, this, &QDialog::reject);
    SetTitleHeight(TitleHeight);
}

LXDialog::~LXDialog() = default;

void LXDialog::SetTitleHeight(int iHeight)
{
    m_iTitleHeight = iHeight;
    setContentsMargins(FrameWidth, FrameWidth + iHeight, FrameWidth, FrameWidth);
    PlaceTitleBar();
}

void LXDialog::PlaceTitleBar()
{
    m_pTitleBar->setGeometry(FrameWidth, FrameWidth, width() - 2 * FrameWidth, m_iTitleHeight);
}

void LXDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange) {
        m_pTitleBar->SetTitle(windowTitle());
    }
}

void LXDialog::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = Theme::Current();
    QPainter painter(this);
    painter.fillRect(rect(), theme.Colour(QStringLiteral("panel")));
    painter.setPen(theme.Colour(QStringLiteral("lineLight")));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LXDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    PlaceTitleBar();
}

} // namespace LXGUI
