#pragma once

#include "platform/LXPluginAPI/IManager.h"

#include <string>

namespace LXPluginAPI {

/// What every module offers its host, whatever it contributes. User-interface thread only.
/// Life cycle: load, AddManager once per manager, Load, Initialize, Start, use, destroy the pages, Stop,
/// Uninitialize, delete the root object. A page that a host keeps longer still watches the device manager:
/// that one must then outlive the page.
class LXPLUGINAPI_EXPORT IPluginAPI
{
public:
    virtual ~IPluginAPI();                           // slot 0
    virtual std::string GetModuleKey() const = 0;    // slot 1: key of the module, unique in a host
    virtual std::string GetRightName() const;        // slot 2: right that shows the module; "Default Right"
    virtual bool AddManager(IManager* pManager) = 0; // slot 3: false when the manager is refused
    virtual bool Load() = 0;  // slot 4: the host is about to use the module; false refuses
    virtual bool Start() = 0; // slot 5: all modules are loaded; false refuses
    virtual void Stop() = 0;  // slot 6: the host is about to uninitialise the module
};

} // namespace LXPluginAPI
