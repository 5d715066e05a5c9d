#include "plugin/host_services/HostServices.h"

#include "platform/DeviceFuncLogical/IDeviceFunctionManager.h"
#include "platform/LXPluginAPI/IHubManager.h"
#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaLogic/ITreeExpansion.h"

#include <QObject>

#include <cstddef>

namespace {

using LXPluginAPI::IHubManager;
using Getter = void* (IHubManager::*)();

constexpr int s_iSlotCount = 59;

// The hub's operation at each slot that a getter serves; null for the others (0, 1 and 57).
constexpr std::array<Getter, s_iSlotCount> s_getters = {
    nullptr, nullptr,
#define HUB(n) &IHubManager::SubManager##n
    HUB(2),  HUB(3),  HUB(4),  HUB(5),  HUB(6),  HUB(7),  HUB(8),  HUB(9),  HUB(10), HUB(11),
    HUB(12), HUB(13), HUB(14), HUB(15), HUB(16), HUB(17), HUB(18), HUB(19), HUB(20), HUB(21),
    HUB(22), HUB(23), HUB(24), HUB(25), HUB(26), HUB(27), HUB(28), HUB(29), HUB(30), HUB(31),
    HUB(32), HUB(33), HUB(34), HUB(35), HUB(36), HUB(37), HUB(38), HUB(39), HUB(40), HUB(41),
    HUB(42), HUB(43), HUB(44), HUB(45), HUB(46), HUB(47), HUB(48), HUB(49), HUB(50), HUB(51),
    HUB(52), HUB(53), HUB(54), HUB(55), HUB(56), nullptr, HUB(58)
#undef HUB
};

// Hub slot of each array position.
constexpr std::array<int, 40> s_arraySlots = {2,  3,  4,  5,  6,  7,  8,  25, 26, 19, 20, 30, 31, 21,
                                              22, 34, 32, 33, 35, 36, 23, 24, 37, 38, 27, 28, 29, 39,
                                              40, 41, 9,  13, 14, 17, 18, 12, 10, 11, 15, 16};

const char* const s_szHubService = "HubPluginManager";
const char* const s_szDeviceFunctionService = "DeviceFunction";

HostServiceTable s_table;

} // namespace

LXPluginAPI::IManager* HostServices::FindManager(const LXPluginAPI::ManagerList& managers,
                                                 const std::string& strServiceName)
{
    for (LXPluginAPI::IManager* const pManager : managers) {
        if (pManager != nullptr && pManager->GetServiceName() == strServiceName)
            return pManager;
    }
    return nullptr;
}

void* HostServices::HubSubManager(const LXPluginAPI::ManagerList& managers, int iSlot)
{
    if (iSlot < 0 || iSlot >= s_iSlotCount)
        return nullptr;
    const Getter getter = s_getters[static_cast<std::size_t>(iSlot)];
    auto* const pHub = dynamic_cast<IHubManager*>(FindManager(managers, s_szHubService));
    if (pHub == nullptr || getter == nullptr)
        return nullptr;
    return (pHub->*getter)();
}

DeviceFuncLogical::IDeviceFunctionManager*
HostServices::DeviceFunctionManager(const LXPluginAPI::ManagerList& managers)
{
    return dynamic_cast<DeviceFuncLogical::IDeviceFunctionManager*>(
        FindManager(managers, s_szDeviceFunctionService));
}

bool HostServices::FillTable(const LXPluginAPI::ManagerList& managers)
{
    const auto fetch = [&managers](std::size_t position) {
        s_table.arrServices[position] = HubSubManager(managers, s_arraySlots[position]);
    };
    // Hosts rely on this order, positions 7 and 13 being asked for twice included.
    fetch(7);
    fetch(13);
    for (std::size_t position = 0; position <= 38; ++position)
        fetch(position);
    s_table.pSecond = HubSubManager(managers, 43);
    s_table.pFourth = HubSubManager(managers, 48);
    s_table.pThird = HubSubManager(managers, 47);
    fetch(39);
    s_table.pSixth = HubSubManager(managers, 53);
    s_table.pFifth = HubSubManager(managers, 52);
    s_table.pFirst = HubSubManager(managers, 58);
    return true;
}

const HostServiceTable& HostServices::Table()
{
    return s_table;
}

VantaLogic::IDeviceManager* HostServices::DeviceManager()
{
    return static_cast<VantaLogic::IDeviceManager*>(s_table.arrServices[0]);
}

VantaLogic::ITreeExpansion* HostServices::TreeExpansion()
{
    return static_cast<VantaLogic::ITreeExpansion*>(s_table.arrServices[1]);
}

QObject* HostServices::MainWindowObject()
{
    return static_cast<QObject*>(s_table.pFirst);
}
