#pragma once

#include "platform/LXPluginAPI/IManager.h"

#include <QtGlobal>

#include <array>
#include <string>

class QObject;

namespace DeviceFuncLogical {
class IDeviceFunctionManager;
}

namespace VantaLogic {
class IDeviceManager;
class ITreeExpansion;
} // namespace VantaLogic

/// The host's sub-managers as the module last fetched them. Entries are null where the host offers none.
struct HostServiceTable
{
    void* pFirst = nullptr;  // hub slot 58
    void* pSecond = nullptr; // hub slot 43
    void* pThird = nullptr;  // hub slot 47
    void* pFourth = nullptr; // hub slot 48
    void* pFifth = nullptr;  // hub slot 52
    void* pSixth = nullptr;  // hub slot 53
    std::array<void*, 40> arrServices{};
};

/// Looking up the host's services. User-interface thread only; nothing is cached but the table, and nothing
/// here owns what it returns.
namespace HostServices {

/// The first manager with this service name, compared byte for byte; null entries are skipped.
LXPluginAPI::IManager* FindManager(const LXPluginAPI::ManagerList& managers,
                                   const std::string& strServiceName);

/// What the hub's operation at a slot answers; null without a hub, with a manager of the wrong type, and for
/// slots that no getter serves.
void* HubSubManager(const LXPluginAPI::ManagerList& managers, int iSlot);

DeviceFuncLogical::IDeviceFunctionManager* DeviceFunctionManager(const LXPluginAPI::ManagerList& managers);

/// Fetches every entry of the table anew, null included; always true.
bool FillTable(const LXPluginAPI::ManagerList& managers);

const HostServiceTable& Table();

// Typed access to the entries that the module uses; null where the host offers none.
VantaLogic::IDeviceManager* DeviceManager(); // array position 0
VantaLogic::ITreeExpansion* TreeExpansion(); // array position 1
QObject* MainWindowObject();                 // first single entry

} // namespace HostServices
