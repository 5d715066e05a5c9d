# The widgets for alarm outputs, notification and copying to other event sources.
acs_library(AlarmLinkage STATIC SOURCES
    AlarmCopyModes.cpp AlarmCopyModes.h
    CopyMode.cpp CopyMode.h
    DeviceTreePicker.cpp DeviceTreePicker.h
    PanelHint.cpp PanelHint.h
    PopupPlacement.cpp PopupPlacement.h
    QAlarmCopyToPopup.cpp QAlarmCopyToPopup.h QAlarmCopyToPopup.ui
    QAlarmNotifyEditor.cpp QAlarmNotifyEditor.h QAlarmNotifyEditor.ui
    QAlarmOutEditor.cpp QAlarmOutEditor.h QAlarmOutEditor.ui
    PUBLIC AlarmRecords Qt::Widgets
    PRIVATE HostServices LXGUI VantaComponent VantaModel VantaLogic)
