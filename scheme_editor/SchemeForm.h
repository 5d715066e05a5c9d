#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <array>

class ACSEventNotifyEditor;
class QAlarmDefenceTimeEditor;
class QAlarmOutEditor;
class QWidget;

namespace LXGUI {
class LXSwitchButton;
}

/// The enable switch and the three sub-editors of the scheme page: together they show one scheme and are read
/// back into one. Makes the sub-editors as children of a container, which owns them.
class SchemeForm
{
public:
    SchemeForm(LXGUI::LXSwitchButton* pOpenStatus, QWidget* pContainer);

    /// The sub-editors in the order of their tabs: notify, alarm out, defence time.
    std::array<QWidget*, 3> Editors() const;

    /// Position of the sub-editor in which two schemes differ; -1 for none and for several.
    static int EditorOf(const AlarmInfo& a, const AlarmInfo& b);

    void Show(const AlarmInfo& info);
    /// Writes what the form shows into a scheme; what the form does not show stays as it is.
    void Store(AlarmInfo& info) const;

private:
    LXGUI::LXSwitchButton* m_pOpenStatus;
    ACSEventNotifyEditor* m_pNotify;
    QAlarmOutEditor* m_pAlarmOut;
    QAlarmDefenceTimeEditor* m_pDefenceTime;
};
