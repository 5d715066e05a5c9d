#pragma once

#include "scheme_services/evaluation/WeekCoverage.h"

#include <QWidget>

/// The week as a field of half hours, seven rows of 48, each the greener the more schemes are armed. The
/// arrow keys walk over the field, from where the mouse has clicked last; what the field under the cursor or
/// the focus stands for is said in words.
class WeekHeatMap : public QWidget
{
    Q_OBJECT

public:
    explicit WeekHeatMap(QWidget* parent = nullptr);
    ~WeekHeatMap() override;

    void SetCoverage(const WeekCoverage& coverage);

    /// Where a half hour is drawn, in pixels; `iRow` 0 is the first day of the week as people here count.
    QRect SlotRect(int iRow, int iSlot) const;
    /// "Monday 08:00-08:30: 12 of 40 schemes armed".
    QString SlotText(int iRow, int iSlot) const;

    /// That of the half hour which the arrow keys have come to.
    QString CurrentText() const { return SlotText(m_current.y(), m_current.x()); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The half hour under the cursor or the focus, in words; empty when there is none.
    void SignalPointedAt(const QString& strText);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QRect Field() const;
    static int DayOfRow(int iRow); ///< 0 (Sunday) to 6
    QPoint SlotAt(const QPoint& position) const;
    void PointAt(const QPoint& slot);
    void GoTo(const QPoint& slot);

    WeekCoverage m_coverage;
    QPoint m_current; ///< column (half hour) and row of the keyboard's
};
