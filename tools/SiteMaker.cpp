#include "tools/SiteMaker.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <random>

namespace {

using VantaLogic::ChannelInfo;
using VantaLogic::DeviceInfo;
using VantaLogic::GroupInfo;

constexpr int s_iMinPerController = 4;
constexpr int s_iMaxPerController = 16;

// Types that the platform does not name.
constexpr int32_t s_iRecorder = 2;
constexpr int32_t s_iIntercom = 13;

/// Makes a site from top to bottom, handing out ids and numbers.
class Maker
{
public:
    explicit Maker(uint32_t uSeed)
        : m_random(uSeed)
    {
    }

    Site Make(int iDoors)
    {
        int left = iDoors;
        for (int building = 0; left > 0; ++building)
            left -= AddBuilding(building, left);
        return m_site;
    }

private:
    // The library's distributions differ from one standard library to another, the generator does not.
    int Pick(int iCount) { return static_cast<int>(m_random() % static_cast<uint32_t>(iCount)); }
    int Between(int iMin, int iMax) { return iMin + Pick(iMax - iMin + 1); }
    bool OneIn(int iCount) { return Pick(iCount) == 0; }
    QString PickName(const QStringList& names) { return names.at(Pick(names.size())); }

    int64_t AddGroup(const QString& strName, int64_t iParentId)
    {
        GroupInfo group;
        group.iGroupId = m_iNextId++;
        group.iParentId = iParentId;
        group.strName = strName;
        m_site.groups.append(group);
        return group.iGroupId;
    }

    DeviceInfo NewDevice(int32_t iType, int64_t iGroupId, const QString& strName)
    {
        DeviceInfo device;
        device.iDeviceId = m_iNextId++;
        device.iDeviceType = iType;
        device.iGroupId = iGroupId;
        device.bOnline = !OneIn(12);
        device.bEnabled = !OneIn(50);
        device.strName = strName;
        return device;
    }

    void AddChannel(DeviceInfo& device, int32_t iType, int32_t iNumber, const QString& strName)
    {
        ChannelInfo channel;
        channel.iChannelId = m_iNextId++;
        channel.iDeviceId = device.iDeviceId;
        channel.iNumber = iNumber;
        channel.iChannelType = iType;
        channel.strName = strName;
        device.channels.append(channel);
    }

    int AddBuilding(int iBuilding, int iLeft);
    int AddFloor(int64_t iGroupId, const QString& strPlace, int iDoors);
    void AddController(int64_t iGroupId, const QString& strPlace, int iController, int iFirstDoor,
                       int iDoors);
    void AddCommonDevices(int64_t iGroupId, const QString& strBuilding, int iFloors);
    int ControllerSize(int iLeft);

    std::mt19937 m_random;
    Site m_site;
    int64_t m_iNextId = 1;
};

// "A" to "Z", then "AA" and on, as columns are named.
QString BuildingLetters(int iBuilding)
{
    QString strLetters;
    for (int rest = iBuilding; rest >= 0; rest = rest / 26 - 1)
        strLetters.prepend(QChar(static_cast<ushort>(u'A' + rest % 26)));
    return strLetters;
}

QString TwoDigits(int iNumber)
{
    return QStringLiteral("%1").arg(iNumber, 2, 10, QLatin1Char('0'));
}

// Four to sixteen doors, so that no rest of one to three is left for the next controller.
int Maker::ControllerSize(int iLeft)
{
    static constexpr int sizes[] = {4, 4, 8, 8, 8, 12, 16, 16};
    if (iLeft <= s_iMaxPerController)
        return iLeft <= 2 * s_iMinPerController || OneIn(2) ? iLeft : iLeft - s_iMinPerController;
    const int size = sizes[Pick(static_cast<int>(std::size(sizes)))];
    const int rest = iLeft - size;
    return rest < s_iMinPerController ? size - s_iMinPerController : size;
}

int Maker::AddBuilding(int iBuilding, int iLeft)
{
    static const QStringList kinds = {QStringLiteral("Offices"), QStringLiteral("Laboratories"),
                                      QStringLiteral("Warehouse"), QStringLiteral("Production"),
                                      QStringLiteral("Data centre")};
    const QString strLetters = BuildingLetters(iBuilding);
    const int64_t building =
        AddGroup(QStringLiteral("Building %1 - %2").arg(strLetters, PickName(kinds)), -1);
    const int floors = Between(3, 9);
    int placed = 0;
    int used = 0;
    for (int floor = 0; floor < floors && placed < iLeft; ++floor, ++used) {
        const QString strFloor =
            floor == 0 ? QStringLiteral("Ground floor") : QStringLiteral("Floor %1").arg(floor);
        const int64_t group = AddGroup(strFloor, building);
        int doors = std::min(Between(24, 72), iLeft - placed);
        const int rest = iLeft - placed - doors;
        if (rest < s_iMinPerController)
            doors += rest;
        placed += AddFloor(group, strLetters + QString::number(floor), doors);
    }
    AddCommonDevices(building, strLetters, used);
    return placed;
}

int Maker::AddFloor(int64_t iGroupId, const QString& strPlace, int iDoors)
{
    int placed = 0;
    for (int controller = 1; placed < iDoors; ++controller) {
        const int doors = ControllerSize(iDoors - placed);
        AddController(iGroupId, strPlace, controller, placed + 1, doors);
        placed += doors;
    }
    return placed;
}

void Maker::AddController(int64_t iGroupId, const QString& strPlace, int iController, int iFirstDoor,
                          int iDoors)
{
    static const QStringList rooms = {QStringLiteral("Office"),      QStringLiteral("Meeting room"),
                                      QStringLiteral("Laboratory"),  QStringLiteral("Store"),
                                      QStringLiteral("Server room"), QStringLiteral("Archive"),
                                      QStringLiteral("Workshop"),    QStringLiteral("Plant room"),
                                      QStringLiteral("Stairwell"),   QStringLiteral("Goods entrance")};
    // What tells names apart comes first: trees are narrow.
    DeviceInfo device = NewDevice(VantaLogic::DeviceTypeAccessControl, iGroupId,
                                  QStringLiteral("%1 C%2 Door controller").arg(strPlace).arg(iController));
    QStringList doorNames;
    for (int door = 0; door < iDoors; ++door) {
        doorNames.append(
            QStringLiteral("%1-%2 %3").arg(strPlace, TwoDigits(iFirstDoor + door), PickName(rooms)));
    }
    for (int door = 0; door < iDoors; ++door)
        AddChannel(device, VantaLogic::ChannelTypeDoor, door + 1, doorNames.at(door));
    for (int door = 0; door < iDoors; ++door) {
        AddChannel(device, VantaLogic::ChannelTypeAlarmInput, 2 * door + 1,
                   QStringLiteral("Exit button %1").arg(doorNames.at(door)));
        AddChannel(device, VantaLogic::ChannelTypeAlarmInput, 2 * door + 2,
                   QStringLiteral("Contact %1").arg(doorNames.at(door)));
    }
    for (int door = 0; door < iDoors; ++door) {
        AddChannel(device, VantaLogic::ChannelTypeAlarmOutput, door + 1,
                   QStringLiteral("Lock %1").arg(doorNames.at(door)));
    }
    m_site.devices.append(device);
}

// What a building has besides its doors.
void Maker::AddCommonDevices(int64_t iGroupId, const QString& strBuilding, int iFloors)
{
    static const QStringList zones = {QStringLiteral("Smoke"), QStringLiteral("Glass break"),
                                      QStringLiteral("Motion"), QStringLiteral("Panic button")};
    static const QStringList sounders = {QStringLiteral("Siren"), QStringLiteral("Strobe"),
                                         QStringLiteral("Gate")};
    DeviceInfo host = NewDevice(VantaLogic::DeviceTypeAlarmHost, iGroupId,
                                QStringLiteral("Alarm host %1").arg(strBuilding));
    const int inputs = 4 * iFloors;
    for (int input = 1; input <= inputs; ++input) {
        AddChannel(host, VantaLogic::ChannelTypeAlarmInput, input,
                   QStringLiteral("Zone %1 %2").arg(TwoDigits(input), PickName(zones)));
    }
    const int outputs = 2 * iFloors;
    for (int output = 1; output <= outputs; ++output) {
        AddChannel(host, VantaLogic::ChannelTypeAlarmOutput, output,
                   QStringLiteral("%1 %2").arg(PickName(sounders), TwoDigits(output)));
    }
    m_site.devices.append(host);

    DeviceInfo recorder =
        NewDevice(s_iRecorder, iGroupId, QStringLiteral("Video recorder %1").arg(strBuilding));
    const int cameras = Between(4, 16);
    for (int camera = 1; camera <= cameras; ++camera) {
        AddChannel(recorder, VantaLogic::ChannelTypeVideo, camera,
                   QStringLiteral("Camera %1-%2").arg(strBuilding, TwoDigits(camera)));
    }
    AddChannel(recorder, VantaLogic::ChannelTypeAlarmOutput, 1,
               QStringLiteral("Recorder relay %1").arg(strBuilding));
    m_site.devices.append(recorder);

    DeviceInfo intercom = NewDevice(s_iIntercom, iGroupId, QStringLiteral("Intercom %1").arg(strBuilding));
    AddChannel(intercom, VantaLogic::ChannelTypeVideo, 1,
               QStringLiteral("Entrance camera %1").arg(strBuilding));
    m_site.devices.append(intercom);
}

} // namespace

Site SiteMaker::MakeSite(int iDoors, uint32_t uSeed)
{
    return Maker(uSeed).Make(std::clamp(iDoors, 1, MaxDoors));
}
