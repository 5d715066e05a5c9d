#include "scheme_editor/EventSourceLookup.h"

#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaLogic/ReleasePtr.h"
#include "platform/VantaModel/NodeRoles.h"

using VantaLogic::IDeviceManager;
using VantaLogic::ReleasePtr;

namespace {

EventSourceLookup::Source SourceOfChannel(IDeviceManager& manager, int64_t iChannelId)
{
    VantaLogic::ChannelInfo channel;
    if (manager.GetChannel(iChannelId, channel) != 0)
        return {};
    const ReleasePtr<VantaLogic::IDevice> device(manager.GetDeviceObject(channel.iDeviceId));
    if (device == nullptr)
        return {};
    const ReleasePtr<VantaLogic::IChannel> object(device->GetChannel(channel.iChannelType, channel.iNumber));
    if (object == nullptr || !object->IsEnabled() || !device->IsEnabled() ||
        device->GetType() != VantaLogic::DeviceTypeAccessControl ||
        channel.iChannelType != VantaLogic::ChannelTypeDoor) {
        return {};
    }
    return {EventSource::Door(channel.iDeviceId, channel.iChannelId), EventSourceLookup::CategoryDoor};
}

} // namespace

EventSourceLookup::Source EventSourceLookup::SourceOfNode(IDeviceManager& manager, int64_t iNodeId,
                                                          int32_t iNodeKind)
{
    if (iNodeKind == VantaModel::NodeKindChannel)
        return SourceOfChannel(manager, iNodeId);
    if (iNodeKind == VantaModel::NodeKindDevice && manager.IsDeviceEnabled(iNodeId) &&
        manager.GetDeviceType(iNodeId) == VantaLogic::DeviceTypeAccessControl) {
        return {EventSource::AccessControlDevice(iNodeId), CategoryDevice};
    }
    return {};
}

EventSourceLookup::AlarmInputs EventSourceLookup::AlarmInputsOf(IDeviceManager& manager,
                                                                const QString& strSource)
{
    AlarmInputs result;
    const std::optional<int64_t> iDeviceId = EventSource::FirstField(strSource);
    VantaLogic::DeviceInfo device;
    if (!iDeviceId || manager.GetDevice(*iDeviceId, device) != 0)
        return result;
    result.strDeviceName = device.strName;
    const bool bAccessControl = manager.GetDeviceType(*iDeviceId) == VantaLogic::DeviceTypeAccessControl;
    for (const VantaLogic::ChannelInfo& listed : qAsConst(device.channels)) {
        VantaLogic::ChannelInfo channel;
        if (manager.GetChannel(listed.iChannelId, channel) == 0 &&
            channel.iChannelType == VantaLogic::ChannelTypeAlarmInput) {
            result.inputs.append(
                {channel.strName, EventSource::AlarmInput(*iDeviceId, listed.iChannelId, bAccessControl)});
        }
    }
    return result;
}

bool EventSourceLookup::IsCopySource(IDeviceManager& manager, const QString& strSource)
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strSource);
    if (!fields)
        return false;
    const ReleasePtr<VantaLogic::IDevice> device(manager.GetDeviceObject(fields->iOwner));
    VantaLogic::ChannelInfo channel;
    return device != nullptr && device->GetType() == VantaLogic::DeviceTypeAccessControl &&
           manager.GetChannel(fields->iChannel, channel) == 0;
}

QString EventSourceLookup::NameOf(IDeviceManager* pManager, const QString& strSource)
{
    const std::optional<EventSource::Fields> fields = EventSource::Split(strSource);
    VantaLogic::DeviceInfo device;
    if (!fields || pManager == nullptr || pManager->GetDevice(fields->iOwner, device) != 0)
        return strSource;
    VantaLogic::ChannelInfo channel;
    if (fields->iChannel > 0 && pManager->GetChannel(fields->iChannel, channel) == 0)
        return QStringLiteral("%1 (%2)").arg(channel.strName, device.strName);
    return device.strName;
}
