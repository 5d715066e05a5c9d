#include "client/insight/DayStrip.h"

#include "platform/LXGUI/Theme.h"
#include "scheme_services/evaluation/ArmedWeek.h"

#include <QPainter>

using LXGUI::Theme;

namespace {

constexpr int BarHeight = 20;
constexpr int Margin = 16; ///< at both sides, for half a label
constexpr int Gap = 4;
constexpr int MarkWidth = 2;
constexpr int HoursBetweenLabels = 3;

} // namespace

DayStrip::DayStrip(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

DayStrip::~DayStrip() = default;

void DayStrip::SetDay(const AlarmDefenceTime_t& regions)
{
    m_regions = regions;
    update();
}

void DayStrip::SetMoment(std::optional<int> iSecond)
{
    m_moment = iSecond;
    update();
}

QSize DayStrip::sizeHint() const
{
    return {480, minimumSizeHint().height()};
}

QSize DayStrip::minimumSizeHint() const
{
    return {240, BarHeight + 2 * Gap + fontMetrics().height()};
}

int DayStrip::ColumnOf(int iSecond, int iWidth)
{
    return static_cast<int>(static_cast<qint64>(iSecond) * iWidth / ArmedWeek::DaySeconds);
}

void DayStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Theme& theme = Theme::Current();
    const QRect bar(Margin, Gap, width() - 2 * Margin, BarHeight);
    painter.fillRect(bar, theme.Colour(QStringLiteral("input")));
    for (const AlarmTimeRegion& region : qAsConst(m_regions)) {
        if (const auto span = ArmedWeek::CoveredBy(region)) {
            const int iLeft = ColumnOf(span->iBegin, bar.width());
            const int iRight = qMax(iLeft + 1, ColumnOf(span->iEnd, bar.width()));
            painter.fillRect(bar.left() + iLeft, bar.top(), iRight - iLeft, bar.height(),
                             theme.Colour(QStringLiteral("accent")));
        }
    }
    painter.setPen(theme.Colour(QStringLiteral("lineLight")));
    painter.drawRect(bar.adjusted(0, 0, -1, -1));

    painter.setPen(theme.Colour(QStringLiteral("dim")));
    for (int iHour = 0; iHour <= 24; iHour += HoursBetweenLabels) {
        const int iX = bar.left() + ColumnOf(iHour * 3600, bar.width());
        painter.drawText(QRect(iX - Margin, bar.bottom() + Gap, 2 * Margin, fontMetrics().height()),
                         Qt::AlignCenter, QString::number(iHour));
    }
    if (m_moment) {
        const int iX = bar.left() + ColumnOf(*m_moment, bar.width());
        painter.fillRect(iX - MarkWidth / 2, bar.top() - Gap, MarkWidth, bar.height() + 2 * Gap,
                         theme.Colour(QStringLiteral("warning")));
    }
}
