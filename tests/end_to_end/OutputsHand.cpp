#include "OutputsHand.h"

#include "ClientDriver.h"
#include "Hand.h"

#include "platform/LXGUI/LXSwitchButton.h"

#include <QLineEdit>
#include <QTreeView>

using LXGUI::LXSwitchButton;

OutputsHand::OutputsHand(const ClientDriver& driver)
    : m_pEditor(driver.Page()->findChild<QWidget*>(QStringLiteral("QAlarmOutEditor")))
{
}

QTreeView* OutputsHand::Tree() const
{
    return m_pEditor->findChild<QTreeView*>(QStringLiteral("treeDevices"));
}

QLineEdit* OutputsHand::TimeEdit() const
{
    return m_pEditor->findChild<QLineEdit*>(QStringLiteral("edtTime"));
}

bool OutputsHand::Tick(qint64 iOutput) const
{
    return Hand::ClickBox(Tree(), iOutput, Hand::KindChannel);
}

bool OutputsHand::ClickAutoOpen() const
{
    return Hand::Click(m_pEditor->findChild<LXSwitchButton*>(QStringLiteral("btnAutoOpen")));
}

bool OutputsHand::IsTicked(qint64 iOutput) const
{
    return Hand::CheckState(*Tree(), iOutput, Hand::KindChannel) == Qt::Checked;
}

QString OutputsHand::SettingsOf(qint64 iOutput) const
{
    if (!Hand::ClickRow(Tree(), iOutput, Hand::KindChannel) || !TimeEdit()->isEnabled()) {
        return {};
    }
    const auto* pSwitch = m_pEditor->findChild<LXSwitchButton*>(QStringLiteral("btnAutoOpen"));
    return TimeEdit()->text() +
           (pSwitch->isToggled() ? QStringLiteral(", opens") : QStringLiteral(", stays"));
}
