#include "plugin/CACSEventConfigUIPlugin.h"

#include "plugin/CACSEventConfigUI.h"
#include "plugin/host_services/HostServices.h"

#include <algorithm>

namespace ACSEventConfigUI {

CACSEventConfigUIPlugin::CACSEventConfigUIPlugin(QObject* parent)
    : QObject(parent)
    , m_pManagers(std::make_unique<LXPluginAPI::ManagerList>())
{
}

CACSEventConfigUIPlugin::~CACSEventConfigUIPlugin() = default;

std::string CACSEventConfigUIPlugin::GetModuleKey() const
{
    return "ACSEventConfigUI";
}

// The module asks for no right of its own; its editors check rights where they need them.
std::string CACSEventConfigUIPlugin::GetRightName() const
{
    return IPluginAPI::GetRightName();
}

bool CACSEventConfigUIPlugin::AddManager(LXPluginAPI::IManager* pManager)
{
    if (m_pManagers == nullptr ||
        std::find(m_pManagers->cbegin(), m_pManagers->cend(), pManager) != m_pManagers->cend()) {
        return false;
    }
    m_pManagers->push_back(pManager);
    return true;
}

bool CACSEventConfigUIPlugin::Load()
{
    return true;
}

bool CACSEventConfigUIPlugin::Start()
{
    return true;
}

void CACSEventConfigUIPlugin::Stop()
{
}

void CACSEventConfigUIPlugin::Initialize()
{
    if (m_pUI == nullptr && m_pManagers != nullptr)
        m_pUI = std::make_unique<CACSEventConfigUI>(m_pManagers.get());
}

void CACSEventConfigUIPlugin::Uninitialize()
{
    m_pUI.reset();
    m_pManagers.reset();
    HostServices::FillTable({}); // a page that outlives this call finds no services instead of dead ones
}

LXPluginAPI::IAbstractUI* CACSEventConfigUIPlugin::GetUIObject()
{
    return m_pUI.get();
}

} // namespace ACSEventConfigUI
