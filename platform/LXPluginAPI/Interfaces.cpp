// Home of the interfaces' type information: one copy for the host and every module.
#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IClientUIPluginAPI.h"
#include "platform/LXPluginAPI/IHubManager.h"

namespace LXPluginAPI {

IManager::~IManager() = default;
IHubManager::~IHubManager() = default;
IAbstractWidget::~IAbstractWidget() = default;
IAbstractUI::~IAbstractUI() = default;
IPluginAPI::~IPluginAPI() = default;
IClientUIPluginAPI::~IClientUIPluginAPI() = default;

std::string IPluginAPI::GetRightName() const
{
    return "Default Right";
}

} // namespace LXPluginAPI
