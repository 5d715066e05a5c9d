#pragma once

#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IManager.h"

#include <QObject>
#include <QPointer>

class ACSEventSchemeEditor;

namespace ACSEventConfigUI {

/// Describes the module's page and creates it on request. The page belongs to the host's widget tree; the
/// descriptor only watches it.
class CACSEventConfigWidget : public QObject, public LXPluginAPI::IAbstractWidget
{
    Q_OBJECT

public:
    explicit CACSEventConfigWidget(const LXPluginAPI::ManagerList* pManagers);
    ~CACSEventConfigWidget() override; ///< a page that is still alive loses its reference to the managers

    std::string GetName() const override;
    QWidget* GetWidget() override;
    QString GetTitle() const override;
    QIcon GetIcon() const override;
    QString GetDescription() const override;
    QString GetIconPath() const override;
    QString GetHoverIconPath() const override;
    QString GetGroupTitle() const override;
    QIcon GetGroupIcon() const override;
    QString GetTabTitle() const override;
    QIcon GetTabIcon() const override;
    QVariant GetExtra() const override;
    bool IsWidgetCreated() const override;

private:
    const LXPluginAPI::ManagerList* m_pManagers;
    QPointer<ACSEventSchemeEditor> m_pPage;
};

} // namespace ACSEventConfigUI
