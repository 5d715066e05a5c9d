#pragma once

#include "AlarmCtrl/QAlarmDayDetailEditor.h"

#include <QTimeEdit>

/// The rows of the dialog of a day, 1 to 6.
namespace DialogRows {

inline QTimeEdit* Begin(const QAlarmDayDetailEditor& dialog, int row)
{
    return dialog.findChild<QTimeEdit*>(QStringLiteral("timeEditBegin%1").arg(row));
}

inline QTimeEdit* End(const QAlarmDayDetailEditor& dialog, int row)
{
    return dialog.findChild<QTimeEdit*>(QStringLiteral("timeEditEnd%1").arg(row));
}

inline void Type(const QAlarmDayDetailEditor& dialog, int row, const QTime& begin, const QTime& end)
{
    Begin(dialog, row)->setTime(begin);
    End(dialog, row)->setTime(end);
}

inline QString Text(const QAlarmDayDetailEditor& dialog, int row)
{
    return Begin(dialog, row)->text() + QLatin1Char('-') + End(dialog, row)->text();
}

} // namespace DialogRows
