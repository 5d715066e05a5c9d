#pragma once

#include "platform/LXPluginAPI/IHubManager.h"

class QObject;

namespace VantaLogic {
class IDeviceManager;
class ITreeExpansion;
} // namespace VantaLogic

/// The client's services for modules. Owns none of them; each may be null and is then not offered.
class HubManager : public LXPluginAPI::IHubManager
{
public:
    std::string GetServiceName() const override;

    void SetDeviceManager(VantaLogic::IDeviceManager* pDeviceManager) { m_pDeviceManager = pDeviceManager; }
    void SetTreeExpansion(VantaLogic::ITreeExpansion* pTreeExpansion) { m_pTreeExpansion = pTreeExpansion; }
    void SetMainWindow(QObject* pMainWindow) { m_pMainWindow = pMainWindow; }

    void* SubManager2() override;  // VantaLogic::IDeviceManager*
    void* SubManager3() override;  // VantaLogic::ITreeExpansion*
    void* SubManager58() override; // QObject*

private:
    VantaLogic::IDeviceManager* m_pDeviceManager = nullptr;
    VantaLogic::ITreeExpansion* m_pTreeExpansion = nullptr;
    QObject* m_pMainWindow = nullptr;
};
