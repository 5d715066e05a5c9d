#pragma once

#include <QColor>
#include <QWidget>

#include <cstdint>

/// The hour scale above a day bar: tick marks and the numbers 0 to 24. It is Margin() pixels wider than the
/// bar that it labels, half of it on each side, and 23 pixels high; its owner places it. Purely a picture.
class QAlarmDayItem : public QWidget
{
    Q_OBJECT

public:
    explicit QAlarmDayItem(QWidget* parent = nullptr);
    ~QAlarmDayItem() override;

    int32_t Margin() const { return m_iMargin; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void DrawTicks(QPainter& painter, int iBarWidth) const;
    void DrawLabels(QPainter& painter, int iBarWidth) const;

    int32_t m_iMargin = 20;
    QColor m_tickColour;
    QColor m_tickShadowColour;
    QColor m_labelColour;
    QColor m_disabledLabelColour;
};
