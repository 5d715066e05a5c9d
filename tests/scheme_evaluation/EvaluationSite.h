#pragma once

#include "platform/SiteLibrary/Site.h"

/// Two controllers with doors of the same names, an alarm host, and a recorder.
///
/// Lobby (100, online): doors "Main" 101 and "Side" 102, input "Glass" 103, output "Siren" 104
/// Yard (200, offline): doors "Main" 201 and "Gate/East" 202, input "main" 203, output "Lamp" 204
/// Panel (300, alarm host): input "Motion" 301, output "Siren" 302
/// Cameras (400): video "Lobby" 401
inline Site EvaluationSite()
{
    using namespace VantaLogic;
    const auto device = [](int64_t iId, int32_t iType, const char* szName) {
        DeviceInfo info;
        info.iDeviceId = iId;
        info.iDeviceType = iType;
        info.strName = QLatin1String(szName);
        return info;
    };
    const auto add = [](DeviceInfo& info, int64_t iId, int32_t iKind, const char* szName) {
        ChannelInfo channel;
        channel.iChannelId = iId;
        channel.iDeviceId = info.iDeviceId;
        channel.iChannelType = iKind;
        channel.iNumber = static_cast<int32_t>(iId % 100);
        channel.strName = QLatin1String(szName);
        info.channels.append(channel);
    };
    DeviceInfo lobby = device(100, DeviceTypeAccessControl, "Lobby");
    add(lobby, 101, ChannelTypeDoor, "Main");
    add(lobby, 102, ChannelTypeDoor, "Side");
    add(lobby, 103, ChannelTypeAlarmInput, "Glass");
    add(lobby, 104, ChannelTypeAlarmOutput, "Siren");
    DeviceInfo yard = device(200, DeviceTypeAccessControl, "Yard");
    yard.bOnline = false;
    add(yard, 201, ChannelTypeDoor, "Main");
    add(yard, 202, ChannelTypeDoor, "Gate/East");
    add(yard, 203, ChannelTypeAlarmInput, "main");
    add(yard, 204, ChannelTypeAlarmOutput, "Lamp");
    DeviceInfo panel = device(300, DeviceTypeAlarmHost, "Panel");
    add(panel, 301, ChannelTypeAlarmInput, "Motion");
    add(panel, 302, ChannelTypeAlarmOutput, "Siren");
    DeviceInfo cameras = device(400, 2, "Cameras");
    add(cameras, 401, ChannelTypeVideo, "Lobby");
    Site site;
    site.devices = {lobby, yard, panel, cameras};
    return site;
}
