#include "platform/LXGUI/LXSwitchButtonAccessible.h"

#include "platform/LXGUI/LXSwitchButton.h"

namespace LXGUI {
namespace {

QAccessibleInterface* MakeSwitchInterface(const QString& /*strClass*/, QObject* pObject)
{
    auto* pSwitch = qobject_cast<LXSwitchButton*>(pObject);
    return pSwitch ? new LXSwitchButtonAccessible(pSwitch) : nullptr;
}

} // namespace

LXSwitchButtonAccessible::LXSwitchButtonAccessible(LXSwitchButton* pSwitch)
    : QAccessibleWidget(pSwitch, QAccessible::CheckBox)
{
}

LXSwitchButton* LXSwitchButtonAccessible::Switch() const
{
    return qobject_cast<LXSwitchButton*>(widget());
}

QAccessible::State LXSwitchButtonAccessible::state() const
{
    QAccessible::State result = QAccessibleWidget::state();
    if (const LXSwitchButton* pSwitch = Switch()) {
        result.checkable = true;
        result.checked = pSwitch->isToggled();
        result.pressed = pSwitch->isDown();
    }
    return result;
}

QStringList LXSwitchButtonAccessible::actionNames() const
{
    QStringList names;
    const LXSwitchButton* pSwitch = Switch();
    if (pSwitch && pSwitch->isEnabled()) {
        names << toggleAction();
    }
    return names << QAccessibleWidget::actionNames();
}

void LXSwitchButtonAccessible::doAction(const QString& actionName)
{
    LXSwitchButton* pSwitch = Switch();
    if (pSwitch && (actionName == toggleAction() || actionName == pressAction())) {
        pSwitch->click();
        return;
    }
    QAccessibleWidget::doAction(actionName);
}

QStringList LXSwitchButtonAccessible::keyBindingsForAction(const QString& /*actionName*/) const
{
    return {};
}

void InstallSwitchAccessibility()
{
    static const bool bInstalled = [] {
        QAccessible::installFactory(MakeSwitchInterface);
        return true;
    }();
    Q_UNUSED(bInstalled)
}

} // namespace LXGUI
