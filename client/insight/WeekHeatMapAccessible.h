#pragma once

#include <QAccessibleWidget>

class WeekHeatMap;

/// Tells assistive technology that the map is a chart, and what the half hour in focus stands for.
class WeekHeatMapAccessible : public QAccessibleWidget
{
public:
    explicit WeekHeatMapAccessible(WeekHeatMap* pMap);

    QString text(QAccessible::Text t) const override;

    static void Install(); ///< once a program; more calls do nothing
};
