#include "plugin/CACSEventConfigUI.h"

#include "plugin/CACSEventConfigWidget.h"

namespace ACSEventConfigUI {

CACSEventConfigUI::CACSEventConfigUI(const LXPluginAPI::ManagerList* pManagers)
    : m_pManagers(pManagers)
{
}

CACSEventConfigUI::~CACSEventConfigUI()
{
    qDeleteAll(m_descriptors);
}

LXPluginAPI::IAbstractWidget* CACSEventConfigUI::GetWidgetDescriptor()
{
    if (m_descriptors.isEmpty())
        m_descriptors.append(new CACSEventConfigWidget(m_pManagers));
    return m_descriptors.constFirst();
}

LXPluginAPI::IAbstractWidget* CACSEventConfigUI::FindWidget(const std::string& name)
{
    for (CACSEventConfigWidget* const pDescriptor : qAsConst(m_descriptors)) {
        if (pDescriptor->GetName() == name)
            return pDescriptor;
    }
    return nullptr;
}

} // namespace ACSEventConfigUI
