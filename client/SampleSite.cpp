#include "client/SampleSite.h"

namespace {

constexpr int32_t DeviceTypeCamera = 2;

// Ids are spread so that a person reading the file can tell them apart: groups from 1, devices from 1000,
// channels from the device's id times 100.
constexpr int64_t ChannelsPerDevice = 100;

class DeviceBuilder
{
public:
    DeviceBuilder(int64_t iId, int32_t iType, int64_t iGroup, const QString& strName)
    {
        m_device.iDeviceId = iId;
        m_device.iDeviceType = iType;
        m_device.iGroupId = iGroup;
        m_device.strName = strName;
    }

    DeviceBuilder& Channel(int32_t iType, const QString& strName, bool bEnabled = true)
    {
        VantaLogic::ChannelInfo channel;
        channel.iChannelId = m_device.iDeviceId * ChannelsPerDevice + m_device.channels.size() + 1;
        channel.iDeviceId = m_device.iDeviceId;
        channel.iChannelType = iType;
        channel.bEnabled = bEnabled;
        channel.strName = strName;
        channel.iNumber = 1;
        for (const VantaLogic::ChannelInfo& other : qAsConst(m_device.channels)) {
            channel.iNumber += other.iChannelType == iType ? 1 : 0;
        }
        m_device.channels.append(channel);
        return *this;
    }
    DeviceBuilder& Door(const QString& strName, bool bEnabled = true)
    {
        return Channel(VantaLogic::ChannelTypeDoor, strName, bEnabled);
    }
    DeviceBuilder& Input(const QString& strName)
    {
        return Channel(VantaLogic::ChannelTypeAlarmInput, strName);
    }
    DeviceBuilder& Output(const QString& strName)
    {
        return Channel(VantaLogic::ChannelTypeAlarmOutput, strName);
    }
    DeviceBuilder& Video(const QString& strName) { return Channel(VantaLogic::ChannelTypeVideo, strName); }
    DeviceBuilder& Offline()
    {
        m_device.bOnline = false;
        return *this;
    }
    VantaLogic::DeviceInfo Take() const { return m_device; }

private:
    VantaLogic::DeviceInfo m_device;
};

VantaLogic::GroupInfo Group(int64_t iId, int64_t iParent, const QString& strName)
{
    VantaLogic::GroupInfo group;
    group.iGroupId = iId;
    group.iParentId = iParent;
    group.strName = strName;
    return group;
}

QString Text(const char* szUtf8)
{
    return QString::fromUtf8(szUtf8);
}

} // namespace

Site MakeSampleSite()
{
    using VantaLogic::DeviceTypeAccessControl;
    using VantaLogic::DeviceTypeAlarmHost;
    using VantaLogic::DeviceTypeVirtual;
    constexpr int64_t Headquarters = 1;
    constexpr int64_t GroundFloor = 2;
    constexpr int64_t FirstFloor = 3;
    constexpr int64_t Basement = 4;
    constexpr int64_t Warehouse = 5;

    Site site;
    site.groups = {Group(Headquarters, -1, Text("Headquarters")),
                   Group(GroundFloor, Headquarters, Text("Ground floor")),
                   Group(FirstFloor, Headquarters, Text("First floor")),
                   Group(Basement, Headquarters, Text("Basement")), Group(Warehouse, -1, Text("东区仓库"))};
    site.devices = {
        DeviceBuilder(1001, DeviceTypeAccessControl, GroundFloor, Text("Entrance controller"))
            .Door(Text("Main entrance"))
            .Door(Text("Visitors' turnstile"))
            .Door(Text("Delivery door"))
            .Door(Text("Bicycle store"))
            .Input(Text("Reception panic button"))
            .Input(Text("Glass break, lobby"))
            .Output(Text("Lobby siren"))
            .Output(Text("Entrance floodlight"))
            .Take(),
        DeviceBuilder(1002, DeviceTypeAccessControl, FirstFloor, Text("Office controller"))
            .Door(Text("Office north"))
            .Door(Text("Office south"))
            .Door(Text("Meeting rooms"))
            .Door(Text("Archive (closed for works)"), false)
            .Input(Text("Smoke detector, archive"))
            .Output(Text("Corridor siren"))
            .Take(),
        DeviceBuilder(1003, DeviceTypeAccessControl, Basement, Text("Server room controller"))
            .Door(Text("Серверная"))
            .Door(Text("Машинный зал"))
            .Input(Text("Датчик протечки"))
            .Input(Text("Temperature alarm"))
            .Output(Text("Машинный зал: сирена"))
            .Take(),
        DeviceBuilder(1004, DeviceTypeAccessControl, Warehouse, Text("仓库门禁控制器"))
            .Door(Text("一号装卸门"))
            .Door(Text("二号装卸门"))
            .Door(Text("危险品库"))
            .Input(Text("红外对射"))
            .Output(Text("仓库警铃"))
            .Take(),
        DeviceBuilder(1005, DeviceTypeAccessControl, Warehouse, Text("Gatehouse controller"))
            .Offline()
            .Door(Text("بوابة الشاحنات"))
            .Door(Text("بوابة المشاة"))
            .Take(),
        DeviceBuilder(1006, DeviceTypeAlarmHost, Basement, Text("Intrusion panel"))
            .Input(Text("Motion, ground floor"))
            .Input(Text("Motion, first floor"))
            .Input(Text("Tamper switch"))
            .Output(Text("Outdoor siren"))
            .Output(Text("Strobe light"))
            .Take(),
        DeviceBuilder(1007, DeviceTypeVirtual, -1, Text("Control room outputs"))
            .Output(Text("Desk buzzer"))
            .Output(Text("Warning lamp"))
            .Take(),
        DeviceBuilder(1008, DeviceTypeCamera, GroundFloor, Text("Lobby cameras"))
            .Video(Text("Lobby, east"))
            .Video(Text("Lobby, west"))
            .Take(),
        DeviceBuilder(1009, DeviceTypeCamera, Warehouse, Text("仓库摄像机")).Video(Text("装卸区")).Take(),
    };
    return site;
}
