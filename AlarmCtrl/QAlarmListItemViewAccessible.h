#pragma once

#include <QAccessibleWidget>

class QAlarmListItemView;

/// Tells assistive technology that the event list is a list, and which entry is current: the entries take no
/// focus themselves.
class QAlarmListItemViewAccessible : public QAccessibleWidget
{
public:
    explicit QAlarmListItemViewAccessible(QAlarmListItemView* pView);

    QString text(QAccessible::Text kind) const override;

    static void Install(); ///< once a program; more calls do nothing
};
