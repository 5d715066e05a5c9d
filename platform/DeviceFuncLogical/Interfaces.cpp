#include "platform/DeviceFuncLogical/IDeviceFunctionManager.h"

DeviceFuncLogical::IDeviceFunctionManager::~IDeviceFunctionManager() = default;
