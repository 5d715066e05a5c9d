#include "AlarmCtrl/QAlarmListItem.h"

#include "platform/LXGUI/Metrics.h"
#include "platform/LXGUI/Theme.h"
#include "ui_QAlarmListItem.h"

#include <QApplication>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

QAlarmListItem::QAlarmListItem(QWidget* parent)
    : QPushButton(parent)
    , m_ui(std::make_unique<Ui::QAlarmListItem>())
{
    m_ui->setupUi(this);
    m_ui->lblPix->hide();
    // A long text is cut at the mark instead of making every entry of the list wider than the list.
    setSizePolicy(QSizePolicy::Ignored, sizePolicy().verticalPolicy());
}

QAlarmListItem::~QAlarmListItem() = default;

int32_t QAlarmListItem::GetType() const
{
    return m_iType;
}

void QAlarmListItem::SetType(int32_t iType)
{
    m_iType = iType;
}

void QAlarmListItem::SetMark(bool bShow)
{
    m_ui->lblPix->setVisible(bShow);
    setAccessibleDescription(bShow ? tr("alarm scheme on") : QString());
}

bool QAlarmListItem::HasMark() const
{
    return !m_ui->lblPix->isHidden();
}

QString QAlarmListItem::ElidedText() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    const int iMarkLeft = m_ui->horizontalLayout->contentsRect().right() - m_ui->lblPix->maximumWidth();
    const int iWidth = std::min(contents.right(), iMarkLeft) - contents.left();
    return fontMetrics().elidedText(text(), Qt::ElideRight, std::max(iWidth, 0), Qt::TextShowMnemonic);
}

void QAlarmListItem::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = ElidedText();
    painter.drawControl(QStyle::CE_PushButton, option);
    if (isChecked() && IsInFocusedView()) {
        const int iHalf = LXGUI::FocusRingWidth / 2;
        painter.setPen(QPen(LXGUI::Theme::Current().Colour(QStringLiteral("focus")), LXGUI::FocusRingWidth));
        painter.drawRect(rect().adjusted(iHalf, iHalf, -iHalf, -iHalf));
    }
}

// Entries take no focus themselves: the current one shows where the keys of its view go.
bool QAlarmListItem::IsInFocusedView() const
{
    const QWidget* const pFocus = QApplication::focusWidget();
    return pFocus != nullptr && pFocus->isAncestorOf(this);
}

void QAlarmListItem::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    setToolTip(ElidedText() == text() ? QString() : text());
}
