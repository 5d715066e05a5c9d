# The week plan: the arithmetic of a day (no widgets), and the widgets that edit a week.
acs_library(DefenceTime STATIC SOURCES
    DefenceTime.cpp DefenceTime.h
    PUBLIC AlarmRecords)

acs_library(AlarmWeekPlan STATIC SOURCES
    DayBarPicture.cpp DayBarPicture.h
    QAlarmDayDetailEditor.cpp QAlarmDayDetailEditor.h QAlarmDayDetailEditor.ui
    QAlarmDayEditor.cpp QAlarmDayEditor.h QAlarmDayEditor.ui
    QAlarmDayItem.cpp QAlarmDayItem.h
    QAlarmDefenceTimeEditor.cpp QAlarmDefenceTimeEditor.h QAlarmDefenceTimeEditor.ui
    PUBLIC DefenceTime AlarmRecords Qt::Widgets
    PRIVATE LXGUI SystemLibrary)
