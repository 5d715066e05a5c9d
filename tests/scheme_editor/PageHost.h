#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/LXPluginAPI/IHubManager.h"
#include "platform/SiteLibrary/SiteDeviceManager.h"
#include "tests/VantaTree/ExpansionMemory.h"

#include <QObject>
#include <QSet>
#include <QVector>

#include <functional>
#include <memory>

/// Ids of the site that the tests of the page use; channel numbers are 1, 2, ... and never an id.
namespace PageSite {

constexpr int64_t Lobby = 100; // doors 101 and 102, inputs 103 and 104, output 105
constexpr int64_t Front = 101;
constexpr int64_t Back = 102;
constexpr int64_t Window = 103;
constexpr int64_t Smoke = 104;
constexpr int64_t Siren = 105;
constexpr int64_t Vault = 200; // door 201, no inputs
constexpr int64_t Safe = 201;
constexpr int64_t Garage = 300; // offline; door 301, input 302
constexpr int64_t Gate = 301;
constexpr int64_t Motion = 302;
constexpr int64_t Cellar = 400; // disabled; door 401, input 402
constexpr int64_t Hatch = 401;
constexpr int64_t AlarmHost = 500; // type 15; inputs 501 and 502, outputs 503 and 504
constexpr int64_t HostInput = 501;
constexpr int64_t Horn = 503;
constexpr int64_t Lamp = 504;
constexpr int64_t Attic = 600; // disabled door 601, door 602, disabled input 603, input 604
constexpr int64_t Sealed = 601;
constexpr int64_t Loft = 602;
constexpr int64_t Quiet = 603;
constexpr int64_t Loud = 604;

Site Make();
VantaLogic::DeviceInfo Device(int64_t iDeviceId);

} // namespace PageSite

/// A device manager over a site that can be made to answer differently from what it holds.
class ContraryDeviceManager : public SiteDeviceManager
{
public:
    using SiteDeviceManager::SiteDeviceManager;

    QSet<int64_t> unreadableDevices;
    QSet<int64_t> unreadableChannels;
    QSet<int64_t> refusedDevices; ///< the query at slot 50 answers no
    QSet<int64_t> goneObjects;    ///< no device object is handed out
    QHash<int64_t, int32_t> types;

    int32_t GetDevice(int64_t iDeviceId, VantaLogic::DeviceInfo& out) const override;
    VantaLogic::IDevice* GetDeviceObject(int64_t iDeviceId) override;
    int32_t GetDeviceType(int64_t iDeviceId) const override;
    bool IsDeviceEnabled(int64_t iDeviceId) const override;
    int32_t GetChannel(int64_t iChannelId, VantaLogic::ChannelInfo& out) const override;
};

/// Takes the messages for the host's main window.
class MainWindowDouble : public QObject
{
    Q_OBJECT

public:
    struct Message
    {
        int iMessage;
        quintptr wParam;
        quintptr lParam;
    };

    QVector<Message> messages;
    std::function<void()> answer; ///< runs while a message is being delivered

    bool event(QEvent* event) override;
};

/// What the scheme manager's backend holds and how often it was asked.
struct KeptSchemes
{
    AlarmInfoMap schemes;
    int iLoads = 0;
    int iSaves = 0;
    int iLoadResult = 0;
    int iSaveResult = 0;
};

/// A hub whose sub-managers can be left out.
class HubDouble : public LXPluginAPI::IHubManager
{
public:
    VantaLogic::IDeviceManager* pDevices = nullptr;
    VantaLogic::ITreeExpansion* pExpansion = nullptr;
    QObject* pMainWindow = nullptr;

    std::string GetServiceName() const override;
    void* SubManager2() override;
    void* SubManager3() override;
    void* SubManager58() override;
};

/// A host with the site above: usable mail, no rights, schemes kept in memory. Takes everything back at its
/// end. One at a time.
class PageHost
{
public:
    explicit PageHost(const AlarmInfoMap& schemes = {}, const Site& site = PageSite::Make());
    ~PageHost();
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    KeptSchemes& Kept() const { return *m_kept; }
    /// Fetches the services anew, as the page's descriptor does.
    void Offer() const;

    static void MakeMailUsable();
    static void MakeMailUnusable();

    ContraryDeviceManager devices;
    ExpansionMemory expansion;
    MainWindowDouble mainWindow;
    HubDouble hub;
    LXPluginAPI::ManagerList managers;

private:
    std::shared_ptr<KeptSchemes> m_kept;
};
