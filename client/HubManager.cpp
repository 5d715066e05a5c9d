#include "client/HubManager.h"

std::string HubManager::GetServiceName() const
{
    return "HubPluginManager";
}

void* HubManager::SubManager2()
{
    return m_pDeviceManager;
}

void* HubManager::SubManager3()
{
    return m_pTreeExpansion;
}

void* HubManager::SubManager58()
{
    return m_pMainWindow;
}
