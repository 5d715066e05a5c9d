#pragma once

#include "devicefunclogical_export.h"

#include "platform/LXPluginAPI/IManager.h"

namespace DeviceFuncLogical {

/// The manager under the service name "DeviceFunction": commands to devices. Modules only look it up today.
class DEVICEFUNCLOGICAL_EXPORT IDeviceFunctionManager : public LXPluginAPI::IManager
{
public:
    ~IDeviceFunctionManager() override;
};

} // namespace DeviceFuncLogical
