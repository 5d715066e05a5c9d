#pragma once

#include "lxpluginapi_export.h"

#include <string>
#include <vector>

namespace LXPluginAPI {

/// Base of every manager object that a host hands to its modules. All calls on the user-interface thread.
/// The host owns its managers and keeps them alive until the module has been uninitialised.
class LXPLUGINAPI_EXPORT IManager
{
public:
    virtual std::string GetServiceName() const = 0; // slot 0: the name by which modules find this manager
    virtual ~IManager();                            // slot 1
};

/// The host's managers in the order in which they were handed over, without duplicates. Entries may be null.
using ManagerList = std::vector<IManager*>;

} // namespace LXPluginAPI
