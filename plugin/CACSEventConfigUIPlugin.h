#pragma once

#include "platform/LXPluginAPI/IClientUIPluginAPI.h"

#include <QObject>

#include <memory>

namespace ACSEventConfigUI {

class CACSEventConfigUI;

/// Root object of the module.
class CACSEventConfigUIPlugin : public QObject, public LXPluginAPI::IClientUIPluginAPI
{
    Q_OBJECT
    // Hosts find the module by this identifier; it names no interface that the module implements.
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QStyleFactoryInterface" FILE "ACSEventConfigUI.json")
    Q_INTERFACES(LXPluginAPI::IClientUIPluginAPI)

public:
    explicit CACSEventConfigUIPlugin(QObject* parent = nullptr);
    ~CACSEventConfigUIPlugin() override;

    std::string GetModuleKey() const override;
    std::string GetRightName() const override;
    bool AddManager(LXPluginAPI::IManager* pManager) override;
    bool Load() override;
    bool Start() override;
    void Stop() override;
    void Initialize() override;
    void Uninitialize() override;
    LXPluginAPI::IAbstractUI* GetUIObject() override;

private:
    std::unique_ptr<LXPluginAPI::ManagerList> m_pManagers; // gone after Uninitialize()
    std::unique_ptr<CACSEventConfigUI> m_pUI;
};

} // namespace ACSEventConfigUI
