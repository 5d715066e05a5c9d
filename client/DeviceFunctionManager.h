#pragma once

#include "platform/DeviceFuncLogical/IDeviceFunctionManager.h"

/// The client's manager for commands to devices. Configuration modules only look it up.
class DeviceFunctionManager : public DeviceFuncLogical::IDeviceFunctionManager
{
public:
    std::string GetServiceName() const override;
};
