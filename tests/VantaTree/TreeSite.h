#pragma once

#include "platform/SiteLibrary/SiteDeviceManager.h"
#include "platform/VantaModel/NodeRoles.h"

#include <QAbstractItemModel>
#include <QStringList>

/// Sites for the tests of device trees, and trees as text.
namespace TreeSite {

using namespace VantaLogic;

inline ChannelInfo Channel(int64_t iId, int32_t iType, int32_t iNumber, const QString& strName)
{
    ChannelInfo channel;
    channel.iChannelId = iId;
    channel.iChannelType = iType;
    channel.iNumber = iNumber;
    channel.strName = strName;
    return channel;
}

inline DeviceInfo Device(int64_t iId, const QString& strName, int32_t iType = DeviceTypeAccessControl,
                         int64_t iGroup = -1, const QVector<ChannelInfo>& channels = {})
{
    DeviceInfo device;
    device.iDeviceId = iId;
    device.iDeviceType = iType;
    device.iGroupId = iGroup;
    device.strName = strName;
    device.channels = channels;
    for (ChannelInfo& channel : device.channels)
        channel.iDeviceId = iId;
    return device;
}

inline GroupInfo Group(int64_t iId, const QString& strName, int64_t iParent = -1)
{
    GroupInfo group;
    group.iGroupId = iId;
    group.iParentId = iParent;
    group.strName = strName;
    return group;
}

/// Main (floor below it: North with a contact, two doors and a siren), Annex (an alarm host), Empty; outside
/// of groups: South with one door.
inline Site Sample()
{
    Site site;
    site.groups << Group(1, QStringLiteral("Main")) << Group(2, QStringLiteral("Floor"), 1)
                << Group(3, QStringLiteral("Annex")) << Group(4, QStringLiteral("Empty"));
    site.devices << Device(100, QStringLiteral("North"), 12, 2,
                           {Channel(101, 3, 1, QStringLiteral("Contact")),
                            Channel(102, 6, 1, QStringLiteral("Lobby door")),
                            Channel(103, 6, 2, QStringLiteral("Back door")),
                            Channel(104, 4, 1, QStringLiteral("Siren"))})
                 << Device(200, QStringLiteral("Host"), 15, 3,
                           {Channel(201, 3, 1, QStringLiteral("Window")),
                            Channel(202, 4, 7, QStringLiteral("Lamp"))})
                 << Device(300, QStringLiteral("South"), 12, -1,
                           {Channel(301, 6, 5, QStringLiteral("Garage door"))});
    return site;
}

inline void AppendText(const QAbstractItemModel& model, const QModelIndex& parent, int iDepth,
                       QStringList& lines)
{
    static const char marks[] = {' ', '-', 'x'};
    for (int i = 0; i < model.rowCount(parent); ++i) {
        const QModelIndex index = model.index(i, 0, parent);
        const QVariant check = index.data(Qt::CheckStateRole);
        lines << QString(iDepth * 2, QLatin1Char(' ')) +
                     (check.isValid() ? QStringLiteral("[%1] ").arg(QLatin1Char(marks[check.toInt()]))
                                      : QString()) +
                     index.data().toString();
        AppendText(model, index, iDepth + 1, lines);
    }
}

/// One line a row, indented, with its check state when it has one.
inline QString TreeText(const QAbstractItemModel& model)
{
    QStringList lines;
    AppendText(model, QModelIndex(), 0, lines);
    return lines.join(QLatin1Char('\n'));
}

} // namespace TreeSite
