#pragma once

#include "platform/LXPluginAPI/IManager.h"

namespace LXPluginAPI {

// clang-format off
#define LX_HUB_SLOT(n) \
    virtual void* SubManager##n() { return nullptr; }
#define LX_HUB_SLOTS_5(a, b, c, d, e) \
    LX_HUB_SLOT(a) LX_HUB_SLOT(b) LX_HUB_SLOT(c) LX_HUB_SLOT(d) LX_HUB_SLOT(e)
#define LX_HUB_SLOTS_10(t) \
    LX_HUB_SLOTS_5(t##0, t##1, t##2, t##3, t##4) LX_HUB_SLOTS_5(t##5, t##6, t##7, t##8, t##9)

/// The manager under the service name "HubPluginManager": one operation per sub-manager of the host.
/// The number in each operation's name is its slot. A host overrides those that it offers; the others answer
/// null. Every pointer is handed out as the exact type stated here, converted to void*:
///   slot 2   VantaLogic::IDeviceManager*
///   slot 3   VantaLogic::ITreeExpansion*
///   slot 58  QObject*, the main window object that receives host messages
/// The host owns what it hands out.
class LXPLUGINAPI_EXPORT IHubManager : public IManager
{
public:
    ~IHubManager() override;
    LX_HUB_SLOTS_5(2, 3, 4, 5, 6)                   // slots 2 to 6
    LX_HUB_SLOT(7) LX_HUB_SLOT(8) LX_HUB_SLOT(9)    // slots 7 to 9
    LX_HUB_SLOTS_10(1)                              // slots 10 to 19
    LX_HUB_SLOTS_10(2)                              // slots 20 to 29
    LX_HUB_SLOTS_10(3)                              // slots 30 to 39
    LX_HUB_SLOTS_10(4)                              // slots 40 to 49
    LX_HUB_SLOTS_5(50, 51, 52, 53, 54)              // slots 50 to 54
    LX_HUB_SLOT(55) LX_HUB_SLOT(56) LX_HUB_SLOT(57) // slots 55 to 57
    LX_HUB_SLOT(58)                                 // slot 58
};
// clang-format on

#undef LX_HUB_SLOTS_10
#undef LX_HUB_SLOTS_5
#undef LX_HUB_SLOT

} // namespace LXPluginAPI
