#include "client/DeviceFunctionManager.h"

std::string DeviceFunctionManager::GetServiceName() const
{
    return "DeviceFunction";
}
