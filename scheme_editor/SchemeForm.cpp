#include "scheme_editor/SchemeForm.h"

#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "scheme_editor/ACSEventNotifyEditor.h"

#include <QHBoxLayout>

#include <algorithm>

SchemeForm::SchemeForm(LXGUI::LXSwitchButton* pOpenStatus, QWidget* pContainer)
    : m_pOpenStatus(pOpenStatus)
    , m_pNotify(new ACSEventNotifyEditor(pContainer))
    , m_pAlarmOut(new QAlarmOutEditor(pContainer))
    , m_pDefenceTime(new QAlarmDefenceTimeEditor(pContainer))
{
    auto* const pLayout = new QHBoxLayout(pContainer);
    pLayout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const pEditor : Editors())
        pLayout->addWidget(pEditor);
}

std::array<QWidget*, 3> SchemeForm::Editors() const
{
    return {m_pNotify, m_pAlarmOut, m_pDefenceTime};
}

int SchemeForm::EditorOf(const AlarmInfo& a, const AlarmInfo& b)
{
    const std::array<bool, 3> differs{a.bOpenSound != b.bOpenSound || a.bSendEmail != b.bSendEmail,
                                      !(a.listAlarmOut == b.listAlarmOut), a.defenceTime != b.defenceTime};
    if (std::count(differs.cbegin(), differs.cend(), true) != 1)
        return -1;
    return static_cast<int>(std::find(differs.cbegin(), differs.cend(), true) - differs.cbegin());
}

void SchemeForm::Show(const AlarmInfo& info)
{
    m_pOpenStatus->setToggle(info.bOpen);
    m_pNotify->SetNotifyInfo({info.bOpenSound, info.bEmapTwinkle, info.bSendEmail});
    m_pAlarmOut->SetAlarmOutInfo(info.listAlarmOut);
    m_pDefenceTime->SetDefenceTime(info.defenceTime.data());
}

void SchemeForm::Store(AlarmInfo& info) const
{
    info.bOpen = m_pOpenStatus->isToggled();

    AlarmNotifyInfo notify{info.bOpenSound, info.bEmapTwinkle, info.bSendEmail};
    m_pNotify->GetNotifyInfo(notify);
    info.bOpenSound = notify.bOpenSound;
    info.bEmapTwinkle = notify.bEmapTwinkle;
    info.bSendEmail = notify.bSendEmail;

    m_pAlarmOut->GetAlarmOutInfo(info.listAlarmOut);

    // Only a week that differs is written, so that untouched schemes go on sharing theirs.
    AlarmWeek week;
    if (m_pDefenceTime->GetDefenceTime(week.data()) == 0 && week != info.defenceTime)
        info.defenceTime = week;
}
