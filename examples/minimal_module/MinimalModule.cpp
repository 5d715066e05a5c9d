// A whole module in one file: a page that lists the devices that are offline, and follows the site.
#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IClientUIPluginAPI.h"
#include "platform/LXPluginAPI/IHubManager.h"
#include "platform/VantaLogic/IDeviceManager.h"

#include <QListWidget>
#include <QPointer>

#include <memory>

// The page. The host's window owns it; the host destroys it before the module and the device manager end.
class OfflinePage : public QListWidget, public VantaLogic::IDeviceObserver
{
    Q_OBJECT

public:
    explicit OfflinePage(VantaLogic::IDeviceManager* pDevices)
        : m_pDevices(pDevices)
    {
        setObjectName(QStringLiteral("pageOffline"));
        if (m_pDevices)
            m_pDevices->AddObserver(this);
        Fill();
    }
    ~OfflinePage() override
    {
        if (m_pDevices)
            m_pDevices->RemoveObserver(this);
    }

    void OnDeviceAdded(int64_t /*iDeviceId*/) override { Fill(); }
    void OnDeviceRemoved(int64_t /*iDeviceId*/) override { Fill(); }
    void OnDeviceChanged(int64_t /*iDeviceId*/) override { Fill(); }
    void OnDeviceOnline(int64_t /*iDeviceId*/, bool /*bOnline*/) override { Fill(); }
    void OnGroupsChanged() override {}

private:
    void Fill()
    {
        clear();
        const QVector<int64_t> ids = m_pDevices ? m_pDevices->GetDeviceIds() : QVector<int64_t>();
        for (const int64_t iDeviceId : ids) {
            VantaLogic::DeviceInfo device;
            if (m_pDevices->GetDevice(iDeviceId, device) == 0 && !device.bOnline)
                addItem(device.strName);
        }
    }

    VantaLogic::IDeviceManager* m_pDevices;
};

// The descriptor: what the home page and the tabs say of the page, and the way to it.
class OfflineDescriptor : public QObject, public LXPluginAPI::IAbstractWidget
{
    Q_OBJECT

public:
    explicit OfflineDescriptor(VantaLogic::IDeviceManager* pDevices)
        : m_pDevices(pDevices)
    {
    }
    std::string GetName() const override { return "MinimalModule"; }
    QWidget* GetWidget() override
    {
        if (m_page.isNull())
            m_page = new OfflinePage(m_pDevices);
        return m_page;
    }
    QString GetTitle() const override { return tr("Offline devices"); }
    QIcon GetIcon() const override { return {}; }
    QString GetDescription() const override { return tr("Devices that do not answer"); }
    QString GetIconPath() const override { return {}; }
    QString GetHoverIconPath() const override { return {}; }
    QString GetGroupTitle() const override { return {}; }
    QIcon GetGroupIcon() const override { return {}; }
    QString GetTabTitle() const override { return tr("Offline"); }
    QIcon GetTabIcon() const override { return {}; }
    QVariant GetExtra() const override { return {}; }
    bool IsWidgetCreated() const override { return !m_page.isNull(); }

private:
    VantaLogic::IDeviceManager* m_pDevices;
    QPointer<OfflinePage> m_page;
};

// The root object, which the host makes from the file, and the user-interface object in one.
class MinimalModule : public QObject, public LXPluginAPI::IClientUIPluginAPI, public LXPluginAPI::IAbstractUI
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.MinimalModule")
    Q_INTERFACES(LXPluginAPI::IClientUIPluginAPI)

public:
    std::string GetModuleKey() const override { return "MinimalModule"; }
    bool AddManager(LXPluginAPI::IManager* pManager) override
    {
        if (auto* pHub = dynamic_cast<LXPluginAPI::IHubManager*>(pManager))
            m_pDevices = static_cast<VantaLogic::IDeviceManager*>(pHub->SubManager2());
        return true;
    }
    bool Load() override { return true; }
    void Initialize() override { m_descriptor = std::make_unique<OfflineDescriptor>(m_pDevices); }
    bool Start() override { return true; }
    void Stop() override {}
    void Uninitialize() override { m_descriptor.reset(); }
    LXPluginAPI::IAbstractUI* GetUIObject() override { return m_descriptor ? this : nullptr; }

    LXPluginAPI::IAbstractWidget* GetWidgetDescriptor() override { return m_descriptor.get(); }
    LXPluginAPI::IAbstractWidget* FindWidget(const std::string& name) override
    {
        return m_descriptor && name == m_descriptor->GetName() ? m_descriptor.get() : nullptr;
    }

private:
    VantaLogic::IDeviceManager* m_pDevices = nullptr;
    std::unique_ptr<OfflineDescriptor> m_descriptor;
};

#include "MinimalModule.moc"
