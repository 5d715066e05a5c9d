#pragma once

#include <QAccessibleWidget>

namespace LXGUI {

class LXSwitchButton;

/// Tells assistive technology that a switch is a thing with two states that can be toggled.
class LXSwitchButtonAccessible : public QAccessibleWidget
{
public:
    explicit LXSwitchButtonAccessible(LXSwitchButton* pSwitch);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    LXSwitchButton* Switch() const;
};

void InstallSwitchAccessibility(); ///< once a program; more calls do nothing

} // namespace LXGUI
