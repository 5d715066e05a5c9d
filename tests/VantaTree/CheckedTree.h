#pragma once

#include "platform/VantaModel/GroupTreeModel.h"
#include "tests/VantaTree/TreeSite.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

#include <algorithm>

namespace TreeSite {

using namespace VantaModel;

constexpr auto Strict = QAbstractItemModelTester::FailureReportingMode::QtTest;

/// Access-control devices and their doors.
inline NodeFilter Doors()
{
    NodeFilter filter;
    filter.deviceWhiteList = {12};
    filter.channelWhiteList = {6};
    return filter;
}

/// A manager, a model over it and the model's checker.
struct CheckedTree
{
    explicit CheckedTree(const Site& site, const NodeFilter& filter = NodeFilter(), int iMode = 0)
        : manager(site)
        , model(&manager, iMode)
        , tester(&model, Strict)
    {
        model.SetNodeFilter(filter);
        model.EnsureBuilt();
    }

    QString Text() const { return TreeText(model); }
    QStandardItem* Node(int64_t iId, int iKind) const { return model.FindNode(iId, iKind); }
    /// What a model that knows only the site as it is now shows.
    QString FreshText()
    {
        GroupTreeModel fresh(&manager, model.GetMode());
        fresh.SetNodeFilter(model.GetNodeFilter());
        fresh.EnsureBuilt();
        return TreeText(fresh);
    }

    SiteDeviceManager manager;
    GroupTreeModel model;
    QAbstractItemModelTester tester;
};

/// Up to twelve devices, with and without groups, doors and inputs.
inline Site RandomSite(QRandomGenerator& random)
{
    Site site;
    QVector<int64_t> groups{-1};
    const int iGroups = random.bounded(6);
    for (int i = 0; i < iGroups; ++i) {
        site.groups << Group(1 + i, QStringLiteral("g%1").arg(random.bounded(100)),
                             groups[random.bounded(groups.size())]);
        groups << 1 + i;
    }
    for (int iDevice = 0; iDevice < 12; ++iDevice) {
        if (random.bounded(3) == 0)
            continue;
        QVector<ChannelInfo> channels;
        for (int iChannel = 0; iChannel < 5; ++iChannel) {
            if (random.bounded(3) != 0) {
                channels << Channel(1000 + iDevice * 10 + iChannel, random.bounded(2) == 0 ? 6 : 3, iChannel,
                                    QStringLiteral("c%1").arg(random.bounded(100)));
            }
        }
        std::shuffle(channels.begin(), channels.end(), random);
        DeviceInfo device =
            Device(100 + iDevice, QStringLiteral("d%1").arg(random.bounded(100)),
                   random.bounded(4) == 0 ? 15 : 12, groups[random.bounded(groups.size())], channels);
        device.bOnline = random.bounded(2) == 0;
        site.devices << device;
    }
    std::shuffle(site.devices.begin(), site.devices.end(), random);
    return site;
}

} // namespace TreeSite
