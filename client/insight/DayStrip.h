#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <QWidget>

#include <optional>

/// One day's armed time as a bar from 00:00 to 24:00, with a moment marked. Shows only; not for editing.
class DayStrip : public QWidget
{
    Q_OBJECT

public:
    explicit DayStrip(QWidget* parent = nullptr);
    ~DayStrip() override;

    /// Without regions that are to be shown the bar is empty and says nothing.
    void SetDay(const AlarmDefenceTime_t& regions);
    /// Seconds of the day, 0 to 86399; nothing: no mark.
    void SetMoment(std::optional<int> iSecond);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The pixel column of a second of the day, 0 to 86400, in a bar of this width; pure.
    static int ColumnOf(int iSecond, int iWidth);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AlarmDefenceTime_t m_regions;
    std::optional<int> m_moment;
};
