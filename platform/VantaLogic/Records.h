#pragma once

#include <QString>
#include <QVector>

#include <cstdint>

namespace VantaLogic {

/// Device types that the platform gives a meaning. The numbers run from 0 to 18.
enum DeviceType : int32_t
{
    DeviceTypeAlarmHost = 15,
    DeviceTypeVirtual = 16,
    DeviceTypeAccessControl = 12,
    DeviceTypeUnknown = -1,
};

/// Channel kinds that the platform gives a meaning. The numbers run from 0 to 6.
enum ChannelType : int32_t
{
    ChannelTypeVideo = 1,
    ChannelTypeAlarmInput = 3,
    ChannelTypeAlarmOutput = 4,
    ChannelTypeDoor = 6,
};

/// One channel as the device manager describes it.
struct ChannelInfo
{
    int64_t iChannelId = -1;   ///< the channel's own id; device, channel and group ids share one number space
    int64_t iDeviceId = -1;    ///< the device that owns the channel
    int32_t iNumber = 0;       ///< number on the device, unique per kind and device
    int32_t iChannelType = -1; ///< 0 to 6, see ChannelType
    bool bEnabled = true;      ///< enabled in the configuration (says nothing of online)
    QString strName;
};

/// One device with its channels in the device's own order.
struct DeviceInfo
{
    int64_t iDeviceId = -1;
    int32_t iDeviceType = DeviceTypeUnknown; ///< 0 to 18, see DeviceType
    int64_t iGroupId = -1;                   ///< the group that the device stands in, -1 for none
    bool bEnabled = true;                    ///< enabled in the configuration (says nothing of online)
    bool bOnline = true;
    QString strName;
    QVector<ChannelInfo> channels;
};

/// A place of the site (building, floor) that groups devices.
struct GroupInfo
{
    int64_t iGroupId = -1;
    int64_t iParentId = -1; ///< enclosing group, -1 for none
    QString strName;
};

} // namespace VantaLogic
