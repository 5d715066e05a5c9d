#include "tests/scheme_editor/PageHost.h"

#include "platform/SystemLibrary/AlarmSchemeManager.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QSystem.h"
#include "plugin/host_services/HostServices.h"

#include <utility>

namespace {

VantaLogic::DeviceInfo MakeDevice(int64_t iId, int32_t iType, const char* szName)
{
    VantaLogic::DeviceInfo device;
    device.iDeviceId = iId;
    device.iDeviceType = iType;
    device.strName = QString::fromUtf8(szName);
    return device;
}

void AddChannel(VantaLogic::DeviceInfo& device, int64_t iId, int32_t iKind, const char* szName,
                bool bEnabled = true)
{
    VantaLogic::ChannelInfo channel;
    channel.iChannelId = iId;
    channel.iDeviceId = device.iDeviceId;
    channel.iNumber = 1;
    for (const VantaLogic::ChannelInfo& other : std::as_const(device.channels)) {
        if (other.iChannelType == iKind)
            ++channel.iNumber;
    }
    channel.iChannelType = iKind;
    channel.bEnabled = bEnabled;
    channel.strName = QString::fromUtf8(szName);
    device.channels.append(channel);
}

class KeepingBackend : public IAlarmSchemeBackend
{
public:
    explicit KeepingBackend(std::shared_ptr<KeptSchemes> kept)
        : m_kept(std::move(kept))
    {
    }

    int Load(AlarmInfoMap& map) override
    {
        ++m_kept->iLoads;
        map = m_kept->schemes;
        return m_kept->iLoadResult;
    }
    int Save(const AlarmInfoMap& map) override
    {
        ++m_kept->iSaves;
        if (m_kept->iSaveResult == 0)
            m_kept->schemes = map;
        return m_kept->iSaveResult;
    }

private:
    std::shared_ptr<KeptSchemes> m_kept;
};

} // namespace

Site PageSite::Make()
{
    using namespace VantaLogic;

    DeviceInfo lobby = MakeDevice(Lobby, DeviceTypeAccessControl, "Lobby");
    AddChannel(lobby, Front, ChannelTypeDoor, "Front Door");
    AddChannel(lobby, Window, ChannelTypeAlarmInput, "Window Contact");
    AddChannel(lobby, Back, ChannelTypeDoor, "Back Door");
    AddChannel(lobby, Smoke, ChannelTypeAlarmInput, "Smoke Detector");
    AddChannel(lobby, Siren, ChannelTypeAlarmOutput, "Siren");
    DeviceInfo vault = MakeDevice(Vault, DeviceTypeAccessControl, "Vault");
    AddChannel(vault, Safe, ChannelTypeDoor, "Safe Door");
    DeviceInfo garage = MakeDevice(Garage, DeviceTypeAccessControl, "Garage");
    garage.bOnline = false;
    AddChannel(garage, Gate, ChannelTypeDoor, "Gate");
    AddChannel(garage, Motion, ChannelTypeAlarmInput, "Motion");
    DeviceInfo cellar = MakeDevice(Cellar, DeviceTypeAccessControl, "Cellar");
    cellar.bEnabled = false;
    AddChannel(cellar, Hatch, ChannelTypeDoor, "Hatch");
    AddChannel(cellar, 402, ChannelTypeAlarmInput, "Water");
    DeviceInfo host = MakeDevice(AlarmHost, DeviceTypeAlarmHost, "Alarm Host");
    AddChannel(host, HostInput, ChannelTypeAlarmInput, "Panic Button");
    AddChannel(host, 502, ChannelTypeAlarmInput, "Glass Break");
    AddChannel(host, Horn, ChannelTypeAlarmOutput, "Horn");
    AddChannel(host, Lamp, ChannelTypeAlarmOutput, "Lamp");
    DeviceInfo attic = MakeDevice(Attic, DeviceTypeAccessControl, "Attic");
    AddChannel(attic, Sealed, ChannelTypeDoor, "Sealed Door", false);
    AddChannel(attic, Loft, ChannelTypeDoor, "Loft Door");
    AddChannel(attic, Quiet, ChannelTypeAlarmInput, "Quiet Input", false);
    AddChannel(attic, Loud, ChannelTypeAlarmInput, "Loud Input");

    Site site;
    site.devices = {lobby, vault, garage, cellar, host, attic};
    return site;
}

VantaLogic::DeviceInfo PageSite::Device(int64_t iDeviceId)
{
    const Site site = Make();
    for (const VantaLogic::DeviceInfo& device : site.devices) {
        if (device.iDeviceId == iDeviceId)
            return device;
    }
    return {};
}

int32_t ContraryDeviceManager::GetDevice(int64_t iDeviceId, VantaLogic::DeviceInfo& out) const
{
    return unreadableDevices.contains(iDeviceId) ? -1 : SiteDeviceManager::GetDevice(iDeviceId, out);
}

VantaLogic::IDevice* ContraryDeviceManager::GetDeviceObject(int64_t iDeviceId)
{
    return goneObjects.contains(iDeviceId) ? nullptr : SiteDeviceManager::GetDeviceObject(iDeviceId);
}

int32_t ContraryDeviceManager::GetDeviceType(int64_t iDeviceId) const
{
    return types.contains(iDeviceId) ? types.value(iDeviceId) : SiteDeviceManager::GetDeviceType(iDeviceId);
}

bool ContraryDeviceManager::IsDeviceEnabled(int64_t iDeviceId) const
{
    return !refusedDevices.contains(iDeviceId) && SiteDeviceManager::IsDeviceEnabled(iDeviceId);
}

int32_t ContraryDeviceManager::GetChannel(int64_t iChannelId, VantaLogic::ChannelInfo& out) const
{
    return unreadableChannels.contains(iChannelId) ? -1 : SiteDeviceManager::GetChannel(iChannelId, out);
}

bool MainWindowDouble::event(QEvent* event)
{
    if (event->type() != LXHostMessageEvent::EventType())
        return QObject::event(event);
    const auto* const pMessage = static_cast<LXHostMessageEvent*>(event);
    messages.append({pMessage->GetMessageNumber(), pMessage->GetWParam(), pMessage->GetLParam()});
    event->accept();
    if (answer)
        answer();
    return true;
}

std::string HubDouble::GetServiceName() const
{
    return "HubPluginManager";
}

void* HubDouble::SubManager2()
{
    return pDevices;
}

void* HubDouble::SubManager3()
{
    return pExpansion;
}

void* HubDouble::SubManager58()
{
    return pMainWindow;
}

PageHost::PageHost(const AlarmInfoMap& schemes, const Site& site)
    : devices(site)
    , m_kept(std::make_shared<KeptSchemes>())
{
    m_kept->schemes = schemes;
    AlarmSchemeManager::Instance()->SetBackend(std::make_unique<KeepingBackend>(m_kept));
    QCommon::SetMenuRights(QCommon::RightOperator);
    QSystem::GetInstance()->SetState(QSystem::StateRunning);
    MakeMailUsable();
    hub.pDevices = &devices;
    hub.pExpansion = &expansion;
    hub.pMainWindow = &mainWindow;
    managers = {&hub};
    Offer();
}

PageHost::~PageHost()
{
    HostServices::FillTable({});
    AlarmSchemeManager::Instance()->SetBackend(nullptr);
    QCommon::SetMenuRights(QCommon::RightOperator);
    QSystem::GetInstance()->SetState(QSystem::StateStarting);
    MakeMailUnusable();
}

void PageHost::Offer() const
{
    HostServices::FillTable(managers);
}

void PageHost::MakeMailUsable()
{
    SystemMailSettings settings;
    settings.bEnable = true;
    SystemMailServer server;
    server.strServer = QStringLiteral("mail.example");
    server.strSender = QStringLiteral("door@example");
    settings.servers.append(server);
    QSystem::GetInstance()->SetMailSettings(settings);
}

void PageHost::MakeMailUnusable()
{
    QSystem::GetInstance()->SetMailSettings({});
}
