#include "AlarmCtrl/AlarmCopyModes.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "platform/VantaModel/NodeRoles.h"

namespace {

using VantaModel::NodeKindChannel;
using VantaModel::NodeKindDevice;

QString ChannelOfDevice(const CopyMode::Source& source)
{
    return EventSource::Door(source.iDeviceId, source.iChannelId);
}

QString NodeAsUnit(const CopyMode::Source& source)
{
    return EventSource::Unit(source.iNodeId);
}

QString NodeAsAlarmUnit(const CopyMode::Source& source)
{
    return EventSource::AlarmUnit(source.iNodeId);
}

QString AlarmInputOfDevice(const CopyMode::Source& source)
{
    return EventSource::AlarmInput(source.iDeviceId, source.iNodeId, false);
}

} // namespace

const std::array<CopyMode, 5>& AlarmCopyModes()
{
    // Mode 2 accepts types 4 and 5 although its tree does not offer them; other pages count on that.
    static const std::array<CopyMode, 5> modes = {{
        {1,
         {{2, 3, 4, 5, 13}, {VantaLogic::ChannelTypeVideo}, false},
         {NodeKindChannel},
         CopyMode::Test::ChannelKind,
         {VantaLogic::ChannelTypeVideo},
         &ChannelOfDevice},
        {2,
         {{2, 3, 13}, {}, true},
         {NodeKindDevice},
         CopyMode::Test::DeviceType,
         {2, 3, 4, 5, 13},
         &NodeAsUnit},
        {3,
         {{1}, TypeSet::All(), false},
         {NodeKindDevice, NodeKindChannel},
         CopyMode::Test::DeviceType,
         {1},
         &NodeAsUnit},
        {4,
         {{VantaLogic::DeviceTypeAlarmHost}, TypeSet::All(), false},
         {NodeKindDevice, NodeKindChannel},
         CopyMode::Test::DeviceType,
         {VantaLogic::DeviceTypeAlarmHost},
         &NodeAsAlarmUnit},
        {5,
         {TypeSet::All(), {VantaLogic::ChannelTypeAlarmInput}, false},
         {NodeKindDevice, NodeKindChannel},
         CopyMode::Test::ChannelKind,
         {VantaLogic::ChannelTypeAlarmInput},
         &AlarmInputOfDevice},
    }};
    return modes;
}
