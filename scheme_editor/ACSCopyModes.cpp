#include "scheme_editor/ACSCopyModes.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "platform/VantaModel/NodeRoles.h"

namespace {

using VantaModel::NodeKindChannel;
using VantaModel::NodeKindDevice;

QString DoorOfDevice(const CopyMode::Source& source)
{
    return EventSource::Door(source.iChannelOwnerId, source.iChannelId);
}

QString AlarmInputOfDevice(const CopyMode::Source& source)
{
    // The popup lists access-control devices only, so the key always says so.
    return EventSource::AlarmInput(source.iChannelOwnerId, source.iNodeId, true);
}

} // namespace

const std::array<CopyMode, 2>& ACSCopy::Modes()
{
    static const std::array<CopyMode, 2> modes = {{
        {Door,
         {{VantaLogic::DeviceTypeAccessControl}, {VantaLogic::ChannelTypeDoor}, false},
         {NodeKindChannel},
         CopyMode::Test::ChannelKind,
         {VantaLogic::ChannelTypeDoor},
         &DoorOfDevice},
        {AlarmInput,
         {TypeSet::All(), {VantaLogic::ChannelTypeAlarmInput}, false},
         {NodeKindDevice, NodeKindChannel},
         CopyMode::Test::ChannelKind,
         {VantaLogic::ChannelTypeAlarmInput},
         &AlarmInputOfDevice},
    }};
    return modes;
}
