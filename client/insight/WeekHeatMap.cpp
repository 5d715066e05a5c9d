#include "client/insight/WeekHeatMap.h"

#include "client/insight/WeekHeatMapAccessible.h"
#include "platform/LXGUI/Theme.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

using LXGUI::Theme;

namespace {

constexpr int Days = 7;
constexpr int RowHeight = 24;
constexpr int Gap = 4;
constexpr int SlotsBetweenLabels = 6; ///< three hours
const QPoint NoSlot(-1, -1);

QColor Between(const QColor& from, const QColor& to, double dPart)
{
    const auto mix = [dPart](int iFrom, int iTo) { return static_cast<int>(iFrom + (iTo - iFrom) * dPart); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()));
}

QString ClockText(int iSlot)
{
    return QStringLiteral("%1:%2")
        .arg(iSlot / 2, 2, 10, QLatin1Char('0'))
        .arg(iSlot % 2 == 0 ? QStringLiteral("00") : QStringLiteral("30"));
}

} // namespace

WeekHeatMap::WeekHeatMap(QWidget* parent)
    : QWidget(parent)
{
    WeekHeatMapAccessible::Install();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

WeekHeatMap::~WeekHeatMap() = default;

void WeekHeatMap::SetCoverage(const WeekCoverage& coverage)
{
    m_coverage = coverage;
    update();
    if (hasFocus()) {
        PointAt(m_current);
    }
}

int WeekHeatMap::DayOfRow(int iRow)
{
    // Qt counts Monday as 1 and Sunday as 7.
    return (static_cast<int>(QLocale().firstDayOfWeek()) + iRow) % Days;
}

QRect WeekHeatMap::Field() const
{
    int iNames = 0;
    for (int iDay = 1; iDay <= Days; ++iDay) {
        iNames = qMax(iNames, fontMetrics().horizontalAdvance(QLocale().dayName(iDay)));
    }
    const int iLeft = iNames + 2 * Gap;
    const int iTop = fontMetrics().height() + Gap;
    return {iLeft, iTop, width() - iLeft - 2 * Gap, Days * RowHeight};
}

QRect WeekHeatMap::SlotRect(int iRow, int iSlot) const
{
    const QRect field = Field();
    const int iLeft = iSlot * field.width() / WeekCoverage::SlotsOfDay;
    const int iRight = (iSlot + 1) * field.width() / WeekCoverage::SlotsOfDay;
    return {field.left() + iLeft, field.top() + iRow * RowHeight, iRight - iLeft, RowHeight};
}

QPoint WeekHeatMap::SlotAt(const QPoint& position) const
{
    const QRect field = Field();
    if (!field.contains(position)) {
        return NoSlot;
    }
    for (int iSlot = 0; iSlot < WeekCoverage::SlotsOfDay; ++iSlot) {
        const int iRow = (position.y() - field.top()) / RowHeight;
        if (SlotRect(iRow, iSlot).contains(position)) {
            return {iSlot, iRow};
        }
    }
    return NoSlot;
}

QString WeekHeatMap::SlotText(int iRow, int iSlot) const
{
    const int iDay = DayOfRow(iRow);
    const WeekCoverage::Slot& slot = m_coverage.At(iDay, iSlot);
    const QString strTime =
        tr("%1 %2-%3", "day, begin, end")
            .arg(QLocale().dayName(iDay == 0 ? Days : iDay), ClockText(iSlot), ClockText(iSlot + 1));
    if (slot.iTouched == slot.iThroughout) {
        return tr("%1: %2 of %3 schemes armed")
            .arg(strTime, QString::number(slot.iThroughout), QString::number(m_coverage.iEnabled));
    }
    return tr("%1: %2 of %3 schemes armed, %4 more for a part of it")
        .arg(strTime, QString::number(slot.iThroughout), QString::number(m_coverage.iEnabled),
             QString::number(slot.iTouched - slot.iThroughout));
}

QSize WeekHeatMap::sizeHint() const
{
    return {720, minimumSizeHint().height()};
}

QSize WeekHeatMap::minimumSizeHint() const
{
    return {420, fontMetrics().height() + 2 * Gap + Days * RowHeight};
}

void WeekHeatMap::PointAt(const QPoint& slot)
{
    Q_EMIT SignalPointedAt(slot == NoSlot ? QString() : SlotText(slot.y(), slot.x()));
}

bool WeekHeatMap::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* pHelp = static_cast<QHelpEvent*>(event);
        const QPoint slot = SlotAt(pHelp->pos());
        if (slot != NoSlot) {
            QToolTip::showText(pHelp->globalPos(), SlotText(slot.y(), slot.x()), this,
                               SlotRect(slot.y(), slot.x()));
            return true;
        }
    }
    return QWidget::event(event);
}

void WeekHeatMap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Theme& theme = Theme::Current();
    const QColor none = theme.Colour(QStringLiteral("input"));
    const QColor all = theme.Colour(QStringLiteral("accent"));
    const QRect field = Field();
    painter.setPen(theme.Colour(QStringLiteral("text")));
    for (int iRow = 0; iRow < Days; ++iRow) {
        const int iDay = DayOfRow(iRow);
        painter.drawText(QRect(0, field.top() + iRow * RowHeight, field.left() - Gap, RowHeight),
                         Qt::AlignRight | Qt::AlignVCenter, QLocale().dayName(iDay == 0 ? Days : iDay));
        for (int iSlot = 0; iSlot < WeekCoverage::SlotsOfDay; ++iSlot) {
            painter.fillRect(SlotRect(iRow, iSlot).adjusted(0, 0, 0, -1),
                             Between(none, all, m_coverage.Fraction(iDay, iSlot)));
        }
    }
    painter.setPen(theme.Colour(QStringLiteral("dim")));
    for (int iSlot = 0; iSlot <= WeekCoverage::SlotsOfDay; iSlot += SlotsBetweenLabels) {
        const int iX = field.left() + iSlot * field.width() / WeekCoverage::SlotsOfDay;
        painter.drawText(QRect(iX - RowHeight, 0, 2 * RowHeight, field.top() - Gap), Qt::AlignCenter,
                         QString::number(iSlot / 2));
    }
    if (hasFocus()) {
        painter.setPen(QPen(theme.Colour(QStringLiteral("focus")), 2));
        painter.drawRect(SlotRect(m_current.y(), m_current.x()));
    }
}

void WeekHeatMap::keyPressEvent(QKeyEvent* event)
{
    QPoint next = m_current;
    switch (event->key()) {
    case Qt::Key_Left:
        next.rx() = qMax(0, next.x() - 1);
        break;
    case Qt::Key_Right:
        next.rx() = qMin(WeekCoverage::SlotsOfDay - 1, next.x() + 1);
        break;
    case Qt::Key_Up:
        next.ry() = qMax(0, next.y() - 1);
        break;
    case Qt::Key_Down:
        next.ry() = qMin(Days - 1, next.y() + 1);
        break;
    case Qt::Key_Home:
        next.rx() = 0;
        break;
    case Qt::Key_End:
        next.rx() = WeekCoverage::SlotsOfDay - 1;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    GoTo(next);
}

void WeekHeatMap::GoTo(const QPoint& slot)
{
    m_current = slot;
    update();
    PointAt(m_current);
    QAccessibleValueChangeEvent changed(this, CurrentText());
    QAccessible::updateAccessibility(&changed);
}

void WeekHeatMap::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
    PointAt(m_current);
}

void WeekHeatMap::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
    PointAt(NoSlot);
}

void WeekHeatMap::mousePressEvent(QMouseEvent* event)
{
    const QPoint slot = SlotAt(event->pos());
    if (event->button() == Qt::LeftButton && slot != NoSlot) {
        GoTo(slot);
    }
}

void WeekHeatMap::mouseMoveEvent(QMouseEvent* event)
{
    PointAt(SlotAt(event->pos()));
}

void WeekHeatMap::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    PointAt(hasFocus() ? m_current : NoSlot);
}
