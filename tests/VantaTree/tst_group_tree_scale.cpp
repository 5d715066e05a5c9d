#include "TreeSite.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/GroupTreeModel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QStandardItem>
#include <QTreeView>
#include <QtTest>

#include <functional>

using namespace TreeSite;
using namespace VantaComponent;
using namespace VantaModel;

namespace {

constexpr int deviceCount = 2500; // four doors and sixteen other channels each: 10,000 doors, 40,000 channels

Site LargeSite()
{
    Site site;
    for (int iGroup = 1; iGroup <= 100; ++iGroup)
        site.groups << Group(iGroup, QStringLiteral("Floor %1").arg(iGroup));
    int64_t iNext = 1000;
    for (int i = 0; i < deviceCount; ++i) {
        const int64_t iDevice = iNext++;
        QVector<ChannelInfo> channels;
        for (int iDoor = 1; iDoor <= 4; ++iDoor) {
            channels << Channel(iNext++, 6, iDoor,
                                QStringLiteral("Door %1 of controller %2").arg(iDoor).arg(i));
        }
        for (int iOther = 1; iOther <= 16; ++iOther) {
            channels << Channel(iNext++, iOther % 2 == 0 ? 3 : 4, iOther,
                                QStringLiteral("Contact %1 of controller %2").arg(iOther).arg(i));
        }
        site.devices << Device(iDevice, QStringLiteral("Controller %1").arg(i), 12, 1 + i % 100, channels);
    }
    return site;
}

double Milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The same rows in a plain model: what the container alone costs on this machine.
void FillPlain(QStandardItemModel& model, const Site& site)
{
    QHash<int64_t, QStandardItem*> groups;
    for (const GroupInfo& group : site.groups) {
        groups.insert(group.iGroupId, new QStandardItem(group.strName));
        model.appendRow(groups[group.iGroupId]);
    }
    const auto fill = [](QStandardItem* pItem, int64_t iId, int iKind) {
        pItem->setData(static_cast<qlonglong>(iId), NodeIdRole);
        pItem->setData(iKind, NodeKindRole);
        pItem->setCheckable(true);
    };
    for (const DeviceInfo& device : site.devices) {
        auto* pDevice = new QStandardItem(device.strName);
        fill(pDevice, device.iDeviceId, NodeKindDevice);
        for (const ChannelInfo& channel : device.channels) {
            auto* pChannel = new QStandardItem(channel.strName);
            fill(pChannel, channel.iChannelId, NodeKindChannel);
            pDevice->appendRow(pChannel);
        }
        groups[device.iGroupId]->appendRow(pDevice);
    }
}

} // namespace

class tst_group_tree_scale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLargeSiteIsBuiltFilteredAndTickedInAMultipleOfAPlainFill();
    void oneTickCostsTheDepthAndNotTheSize();
    void statesThatAreRightCostNextToNothing();
};

void tst_group_tree_scale::aLargeSiteIsBuiltFilteredAndTickedInAMultipleOfAPlainFill()
{
    const Site site = LargeSite();
    SiteDeviceManager manager(site);
    double plain = 1e9;
    for (int i = 0; i < 3; ++i) {
        QStandardItemModel model;
        plain = qMin(plain, Milliseconds([&] { FillPlain(model, site); }));
    }

    GroupTreeModel model(&manager, 1);
    GroupTreeCtrl ctrl;
    ctrl.SetDeviceManager(&manager);
    ctrl.SetModel(&model);
    ctrl.EnableCheckBox(true);
    const double build = Milliseconds([&] { model.EnsureBuilt(); });
    auto* pSearch = ctrl.findChild<QLineEdit*>(QStringLiteral("edtSearch"));
    auto* pView = ctrl.findChild<QTreeView*>(QStringLiteral("treeDevices"));
    ctrl.resize(220, 600);
    ctrl.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ctrl));

    // Each with the painting that follows, as a person waits for it.
    const auto search = [&](const char* text) {
        return Milliseconds([&] {
            pSearch->setText(QLatin1String(text));
            pView->viewport()->repaint();
        });
    };
    const double few = search("door 3 of controller 77");
    const double many = search("o");
    const double none = search("zebra");
    const double cleared = search("");
    QStandardItem* pRoot = model.invisibleRootItem();
    const double tick = Milliseconds([&] {
        for (int i = 0; i < pRoot->rowCount(); ++i)
            ctrl.UpdateSelectedState(pRoot->child(i), true);
        pView->viewport()->repaint();
    });
    for (int i = 0; i < pRoot->rowCount(); ++i)
        QCOMPARE(pRoot->child(i)->checkState(), Qt::Checked);
    pSearch->setText(QStringLiteral("door"));
    const double untick = Milliseconds([&] {
        for (int i = 0; i < pRoot->rowCount(); ++i)
            ctrl.UpdateSelectedState(pRoot->child(i), false);
    });
    QCOMPARE(pRoot->child(0)->checkState(), Qt::PartiallyChecked); // its contacts keep their ticks
    const double live = Milliseconds([&] { manager.RemoveDevice(site.devices.first().iDeviceId); });

    qInfo(
        "plain fill %.1f ms; build %.2f, search few %.2f, many %.2f, none %.2f, cleared %.2f, tick all %.2f, "
        "untick under a search %.2f, one removal under a search %.2f times as long",
        plain, build / plain, few / plain, many / plain, none / plain, cleared / plain, tick / plain,
        untick / plain, live / plain);
}

void tst_group_tree_scale::oneTickCostsTheDepthAndNotTheSize()
{
    SiteDeviceManager manager(LargeSite());
    GroupTreeModel model(&manager, 0);
    model.EnableCheckBox(true);
    model.EnsureBuilt();
    QStandardItem* pDoor = model.FindNode(1001, NodeKindChannel);
    QVERIFY(pDoor);
    for (int i = 0; i < model.rowCount(); ++i)
        model.SetChecked(model.item(i), true);
    // The door, its controller and their group, and none of the other rows.
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.SetChecked(pDoor, false);
    QCOMPARE(changes.count(), 3);
    model.SetChecked(pDoor, true);
    QCOMPARE(changes.count(), 6);
}

void tst_group_tree_scale::statesThatAreRightCostNextToNothing()
{
    SiteDeviceManager manager(LargeSite());
    GroupTreeModel model(&manager, 0);
    GroupTreeCtrl ctrl;
    ctrl.SetModel(&model);
    ctrl.EnableCheckBox(true);
    QVector<QStandardItem*> items;
    ctrl.GetAllUnCheckedItem(items);
    QCOMPARE(items.size(), 100 + deviceCount * 21);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    for (QStandardItem* pItem : qAsConst(items)) {
        pItem->setCheckState(Qt::Unchecked);
        ctrl.UpdateSelectedState(pItem, false);
    }
    QCOMPARE(changes.count(), 0);
}

QTEST_MAIN(tst_group_tree_scale)
#include "tst_group_tree_scale.moc"
