// Home of the interfaces' type information: one copy for the host and every module.
#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaLogic/ITreeExpansion.h"

namespace VantaLogic {

IChannel::~IChannel() = default;
IDevice::~IDevice() = default;
IDeviceObserver::~IDeviceObserver() = default;
IDeviceManager::~IDeviceManager() = default;
ITreeExpansion::~ITreeExpansion() = default;

} // namespace VantaLogic
