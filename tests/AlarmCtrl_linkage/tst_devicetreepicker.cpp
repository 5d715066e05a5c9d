#include "AlarmCtrl/DeviceTreePicker.h"
#include "AlarmCtrl/PanelHint.h"
#include "AlarmCtrl/PopupPlacement.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"

#include <QHBoxLayout>
#include <QTest>

using TestSite::ChannelOf;
using TestSite::DeviceOfType;
using VantaModel::NodeKindChannel;
using VantaModel::NodeKindDevice;

namespace {

struct Mounted
{
    Mounted()
        : host(TestSite::EveryTypeAndKind())
        , model(new VantaModel::GroupTreeModel(&host.manager, 0, &container))
        , picker(new DeviceTreePicker(&host.manager, model, &container))
        , ticked(new TickedNodes(model, &container))
        , hand(container)
    {
        QObject::connect(picker->Tree(), &VantaComponent::GroupTreeCtrl::SignalChecked, picker,
                         [this](const QModelIndex& index, bool bChecked) {
                             ticked->Apply(picker->FollowCheck(index, bChecked));
                         });
    }

    SiteHost host;
    QWidget container;
    VantaModel::GroupTreeModel* model;
    DeviceTreePicker* picker;
    TickedNodes* ticked;
    TreeHand hand;
};

} // namespace

class TestDeviceTreePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeFillsItsContainerWithOnePixelAround();
    void nodesAreReadByIdAndKind();
    void onlyAChannelNodeIsAChannelOfAKind();
    void whatIsNotOfferedIsNotInTheTree();
    void hiddenChannelsLeaveTheDevices();
    void tickingADeviceTicksEverythingUnderIt();
    void untickingOneChannelLeavesTheOthers();
    void aDeviceThatGoesLeavesTheTickedSet();
    void aDeviceThatComesBackIsNotTickedAgain();
    void tickedNodesSurviveARename();
    void removingEveryDeviceEmptiesTheSet();
    void aNullManagerGivesAnEmptyTree();
    void aPopupStandsTenPixelsAboveItsParentsTopRightCorner();
    void aPopupWithoutAParentStays();
    void theHintFollowsItsPanelAndStaysOutOfTheWay();
};

void TestDeviceTreePicker::theTreeFillsItsContainerWithOnePixelAround()
{
    Mounted mounted;
    QVERIFY(qobject_cast<QHBoxLayout*>(mounted.container.layout()) != nullptr);
    QCOMPARE(mounted.container.layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(mounted.container.layout()->spacing(), 0);
    QCOMPARE(mounted.picker->Tree()->parentWidget(), &mounted.container);
    QVERIFY(mounted.model->IsCheckBoxEnabled());
    QVERIFY(mounted.model->GetNodeFilter().bHideEmaps);
}

void TestDeviceTreePicker::nodesAreReadByIdAndKind()
{
    QStandardItem item;
    QCOMPARE(DeviceTreePicker::NodeOf(item), (DeviceTreeNode{0, 0}));
    item.setData(qlonglong{9223372036854775807LL}, 1057);
    item.setData(3, 1058);
    QCOMPARE(DeviceTreePicker::NodeOf(item), (DeviceTreeNode{9223372036854775807LL, 3}));
    item.setData(QStringLiteral("no number"), 1057);
    QCOMPARE(DeviceTreePicker::NodeOf(item).iId, int64_t{0});
}

void TestDeviceTreePicker::onlyAChannelNodeIsAChannelOfAKind()
{
    QStandardItem item;
    item.setData(2, 1058);
    item.setData(4, 1060);
    QVERIFY(!DeviceTreePicker::IsChannelOfKind(item, 4));
    item.setData(3, 1058);
    QVERIFY(DeviceTreePicker::IsChannelOfKind(item, 4));
    QVERIFY(!DeviceTreePicker::IsChannelOfKind(item, 3));
    item.setData(QVariant(), 1060);
    QVERIFY(!DeviceTreePicker::IsChannelOfKind(item, 0));
}

void TestDeviceTreePicker::whatIsNotOfferedIsNotInTheTree()
{
    Mounted mounted;
    mounted.picker->Offer({{0, 18}, {6}, false});
    mounted.model->EnsureBuilt();
    for (int type = 0; type <= 18; ++type) {
        const bool offered = type == 0 || type == 18;
        QCOMPARE(mounted.hand.Device(DeviceOfType(type)) != nullptr, offered);
        for (int kind = 0; kind <= 6; ++kind)
            QCOMPARE(mounted.hand.Channel(ChannelOf(type, kind)) != nullptr, offered && kind == 6);
    }
}

void TestDeviceTreePicker::hiddenChannelsLeaveTheDevices()
{
    Mounted mounted;
    mounted.picker->Offer({TypeSet::All(), TypeSet::All(), true});
    mounted.model->EnsureBuilt();
    QVERIFY(mounted.hand.Device(DeviceOfType(3)) != nullptr);
    QVERIFY(mounted.hand.Channel(ChannelOf(3, 1)) == nullptr);
}

void TestDeviceTreePicker::tickingADeviceTicksEverythingUnderIt()
{
    Mounted mounted;
    QVERIFY(mounted.hand.TickDevice(DeviceOfType(3)));
    QSet<DeviceTreeNode> expected = {{DeviceOfType(3), NodeKindDevice}};
    for (int kind = 0; kind <= 6; ++kind)
        expected.insert({ChannelOf(3, kind), NodeKindChannel});
    QCOMPARE(mounted.ticked->Nodes(), expected);
}

void TestDeviceTreePicker::untickingOneChannelLeavesTheOthers()
{
    Mounted mounted;
    QVERIFY(mounted.hand.TickDevice(DeviceOfType(3)));
    QVERIFY(mounted.hand.TickChannel(ChannelOf(3, 1), false));
    QVERIFY(!mounted.ticked->Nodes().contains({ChannelOf(3, 1), NodeKindChannel}));
    QVERIFY(mounted.ticked->Nodes().contains({ChannelOf(3, 2), NodeKindChannel}));
    // The set follows the boxes under the changed row only, so the device itself is still in it.
    QVERIFY(mounted.ticked->Nodes().contains({DeviceOfType(3), NodeKindDevice}));
}

void TestDeviceTreePicker::aDeviceThatGoesLeavesTheTickedSet()
{
    Mounted mounted;
    QVERIFY(mounted.hand.TickDevice(DeviceOfType(3)));
    QVERIFY(mounted.hand.TickChannel(ChannelOf(5, 1)));
    QVERIFY(mounted.host.manager.RemoveDevice(DeviceOfType(3)));
    QCOMPARE(mounted.ticked->Nodes(), QSet<DeviceTreeNode>({{ChannelOf(5, 1), NodeKindChannel}}));
}

void TestDeviceTreePicker::aDeviceThatComesBackIsNotTickedAgain()
{
    Mounted mounted;
    const VantaLogic::DeviceInfo device = mounted.host.manager.GetSite().devices.at(3);
    QVERIFY(mounted.hand.TickDevice(DeviceOfType(3)));
    QVERIFY(mounted.host.manager.RemoveDevice(DeviceOfType(3)));
    QVERIFY(mounted.host.manager.AddDevice(device));
    mounted.model->EnsureBuilt();
    QCOMPARE(mounted.hand.Device(DeviceOfType(3))->checkState(), Qt::Unchecked);
    QVERIFY(mounted.ticked->Nodes().isEmpty());
}

void TestDeviceTreePicker::tickedNodesSurviveARename()
{
    Mounted mounted;
    QVERIFY(mounted.hand.TickChannel(ChannelOf(3, 1)));
    QVERIFY(mounted.host.manager.RenameDevice(DeviceOfType(3), QStringLiteral("Other name")));
    mounted.model->EnsureBuilt();
    QCOMPARE(mounted.ticked->Nodes(), QSet<DeviceTreeNode>({{ChannelOf(3, 1), NodeKindChannel}}));
    QCOMPARE(mounted.hand.Channel(ChannelOf(3, 1))->checkState(), Qt::Checked);
}

void TestDeviceTreePicker::removingEveryDeviceEmptiesTheSet()
{
    Mounted mounted;
    for (int type = 0; type <= 18; ++type)
        QVERIFY(mounted.hand.TickDevice(DeviceOfType(type)));
    mounted.host.manager.ApplySite(Site());
    QVERIFY(mounted.ticked->Nodes().isEmpty());
}

void TestDeviceTreePicker::aNullManagerGivesAnEmptyTree()
{
    QWidget container;
    auto* const pModel = new VantaModel::GroupTreeModel(nullptr, 0, &container);
    auto* const pPicker = new DeviceTreePicker(nullptr, pModel, &container);
    const DeviceTreePicker::CheckChange change = pPicker->FollowCheck(QModelIndex(), true);
    QVERIFY(change.checked.isEmpty());
    QVERIFY(change.unchecked.isEmpty());
}

void TestDeviceTreePicker::aPopupStandsTenPixelsAboveItsParentsTopRightCorner()
{
    // Right edges meet at 1000; the popup ends at 700 - 10.
    QCOMPARE(PopupPlacement::AboveParent(QPoint(1000, 700), QSize(222, 500)), QPoint(778, 190));
    // Outside the screen too.
    QCOMPARE(PopupPlacement::AboveParent(QPoint(0, 0), QSize(222, 500)), QPoint(-222, -510));

    QWidget window;
    window.setGeometry(300, 600, 400, 200);
    QWidget button(&window);
    button.setGeometry(100, 50, 70, 24);
    QWidget popup(&button, Qt::Dialog | Qt::FramelessWindowHint);
    popup.setFixedSize(222, 500);
    PopupPlacement::PlaceAboveParent(popup);
    const QPoint corner = button.mapToGlobal(QPoint(70, 0));
    QCOMPARE(popup.geometry().x() + 222, corner.x());
    QCOMPARE(popup.geometry().y() + 500, corner.y() - 10);
}

void TestDeviceTreePicker::aPopupWithoutAParentStays()
{
    QWidget popup;
    popup.move(12, 34);
    PopupPlacement::PlaceAboveParent(popup);
    QCOMPARE(popup.pos(), QPoint(12, 34));
}

void TestDeviceTreePicker::theHintFollowsItsPanelAndStaysOutOfTheWay()
{
    QWidget window;
    QWidget panel(&window);
    panel.setGeometry(10, 20, 300, 400);
    PanelHint hint(&panel, 100);
    QVERIFY(hint.isHidden());
    hint.SetHint(QStringLiteral("Click it."));
    QVERIFY(!hint.isHidden());
    QCOMPARE(hint.geometry(), QRect(10, 120, 300, 300));
    panel.setEnabled(false);
    QVERIFY(hint.isEnabled());
    window.show();
    panel.setGeometry(30, 40, 200, 300);
    QCOMPARE(hint.geometry(), QRect(30, 140, 200, 200));
    QVERIFY(hint.testAttribute(Qt::WA_TransparentForMouseEvents));
    hint.SetHint(QString());
    QVERIFY(hint.isHidden());
}

QTEST_MAIN(TestDeviceTreePicker)
#include "tst_devicetreepicker.moc"
