#include "plugin/CACSEventConfigWidget.h"

#include "plugin/host_services/HostServices.h"
#include "scheme_editor/ACSEventSchemeEditor.h"

namespace ACSEventConfigUI {

CACSEventConfigWidget::CACSEventConfigWidget(const LXPluginAPI::ManagerList* pManagers)
    : m_pManagers(pManagers)
{
    HostServices::FillTable(*m_pManagers);
}

CACSEventConfigWidget::~CACSEventConfigWidget()
{
    if (!m_pPage.isNull())
        m_pPage->ClearManagerList();
}

std::string CACSEventConfigWidget::GetName() const
{
    return "ACSEventConfigUI";
}

QWidget* CACSEventConfigWidget::GetWidget()
{
    // Anew on every request, so that a manager that the host has replaced is picked up.
    HostServices::FillTable(*m_pManagers);
    if (m_pPage.isNull()) {
        m_pPage = new ACSEventSchemeEditor(nullptr);
        m_pPage->Init(m_pManagers);
    }
    return m_pPage;
}

QString CACSEventConfigWidget::GetTitle() const
{
    return tr("EVENT_CFG-MODULE");
}

QIcon CACSEventConfigWidget::GetIcon() const
{
    return {};
}

QString CACSEventConfigWidget::GetDescription() const
{
    return tr("alarm cfg details");
}

QString CACSEventConfigWidget::GetIconPath() const
{
    return QStringLiteral("./Skin/theme1/homepage/alarmcfg.png");
}

QString CACSEventConfigWidget::GetHoverIconPath() const
{
    return GetIconPath();
}

QString CACSEventConfigWidget::GetGroupTitle() const
{
    return tr("");
}

QIcon CACSEventConfigWidget::GetGroupIcon() const
{
    return {};
}

QString CACSEventConfigWidget::GetTabTitle() const
{
    return GetTitle();
}

QIcon CACSEventConfigWidget::GetTabIcon() const
{
    return {};
}

QVariant CACSEventConfigWidget::GetExtra() const
{
    return {};
}

bool CACSEventConfigWidget::IsWidgetCreated() const
{
    return !m_pPage.isNull();
}

} // namespace ACSEventConfigUI
