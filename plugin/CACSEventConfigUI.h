#pragma once

#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IManager.h"

#include <QList>

namespace ACSEventConfigUI {

class CACSEventConfigWidget;

/// The module's user-interface object; owns its page descriptors.
class CACSEventConfigUI : public LXPluginAPI::IAbstractUI
{
public:
    explicit CACSEventConfigUI(const LXPluginAPI::ManagerList* pManagers);
    ~CACSEventConfigUI() override;
    CACSEventConfigUI(const CACSEventConfigUI&) = delete;
    CACSEventConfigUI& operator=(const CACSEventConfigUI&) = delete;

    LXPluginAPI::IAbstractWidget* GetWidgetDescriptor() override;
    LXPluginAPI::IAbstractWidget* FindWidget(const std::string& name) override;

private:
    const LXPluginAPI::ManagerList* m_pManagers;
    QList<CACSEventConfigWidget*> m_descriptors;
};

} // namespace ACSEventConfigUI
