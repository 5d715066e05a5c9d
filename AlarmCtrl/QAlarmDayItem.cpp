#include "AlarmCtrl/QAlarmDayItem.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int ScaleHeight = 23;
constexpr int MinBarWidth = 201; // below it the labels would run into each other
constexpr int Hours = 24;
constexpr int HourTickHeight = 7;
constexpr int HalfHourTickHeight = 3;
constexpr int LabelPointSize = 9;
constexpr int LabelBaseline = 10;

} // namespace

QAlarmDayItem::QAlarmDayItem(QWidget* parent)
    : QWidget(parent)
    , m_tickColour(QStringLiteral("#000000"))
    , m_tickShadowColour(QStringLiteral("#414141"))
    , m_labelColour(QStringLiteral("#DDDDDD"))
    , m_disabledLabelColour(QStringLiteral("#787878"))
{
    setFixedHeight(ScaleHeight);
    // The labels' colour is fixed; the host's style gives them a ground.
    setAttribute(Qt::WA_StyledBackground);
}

QAlarmDayItem::~QAlarmDayItem() = default;

void QAlarmDayItem::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    const int iBarWidth = width() - m_iMargin;
    if (iBarWidth < MinBarWidth) {
        return;
    }
    QPainter painter(this);
    DrawTicks(painter, iBarWidth);
    DrawLabels(painter, iBarWidth);
}

void QAlarmDayItem::DrawTicks(QPainter& painter, int iBarWidth) const
{
    // Filled, not stroked: a stroke of one unit would straddle its coordinate on a display of higher density.
    const auto tick = [&painter, this](int x, int iHeight, const QColor& colour) {
        painter.fillRect(x, height() - iHeight, 1, iHeight, colour);
    };
    for (int i = 0; i <= Hours; ++i) {
        const int iOffset = std::min(i * iBarWidth / Hours, iBarWidth - 1);
        const int x = iOffset + m_iMargin / 2;
        tick(x, HourTickHeight, m_tickColour);
        tick(x + 1, HourTickHeight, m_tickShadowColour);
    }
    // Here the dark line stands left of the grey one, on the hours right of it: that is the design.
    for (int i = 0; i < Hours; ++i) {
        const int x = (2 * i + 1) * iBarWidth / (2 * Hours) + m_iMargin / 2;
        tick(x - 1, HalfHourTickHeight, m_tickColour);
        tick(x, HalfHourTickHeight, m_tickShadowColour);
    }
}

void QAlarmDayItem::DrawLabels(QPainter& painter, int iBarWidth) const
{
    QFont labelFont = font();
    labelFont.setPointSize(LabelPointSize);
    painter.setFont(labelFont);
    painter.setPen(isEnabled() ? m_labelColour : m_disabledLabelColour);
    const QFontMetrics metrics(labelFont, this);
    const int iRight = m_iMargin + iBarWidth;
    for (int i = 0; i <= Hours; ++i) {
        const QString strLabel = QString::number(i);
        const int iTextWidth = metrics.horizontalAdvance(strLabel);
        int x = std::max(0, i * iBarWidth / Hours + m_iMargin / 2 - iTextWidth / 2);
        if (x + iTextWidth > iRight) {
            x = iRight - iTextWidth;
        }
        painter.drawText(x, LabelBaseline, strLabel);
    }
}
