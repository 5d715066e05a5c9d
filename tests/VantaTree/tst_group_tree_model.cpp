#include "TreeSite.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace TreeSite;
using namespace VantaModel;

namespace {

constexpr auto Strict = QAbstractItemModelTester::FailureReportingMode::QtTest;

NodeFilter Doors()
{
    NodeFilter filter;
    filter.deviceWhiteList = {12};
    filter.channelWhiteList = {6};
    return filter;
}

/// A manager, a model over it and the model's checker.
struct Tree
{
    explicit Tree(const Site& site, const NodeFilter& filter = NodeFilter(), int iMode = 0)
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

/// A host whose groups lie inside themselves.
class CircularHost : public SiteDeviceManager
{
public:
    using SiteDeviceManager::SiteDeviceManager;
    QVector<GroupInfo> GetGroups() const override
    {
        return {Group(1, QStringLiteral("a"), 2), Group(2, QStringLiteral("b"), 1),
                Group(3, QStringLiteral("c"), 99)};
    }
};

} // namespace

class tst_group_tree_model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeHoldsGroupsThenDevicesThenChannels();
    void modeOnePutsDoorsFirst();
    void everyNodeCarriesItsRoles();
    void iconsAreShared();
    void groupsWithoutAnOfferedDeviceAreNotShown();
    void aBlackListBeatsAWhiteList();
    void everyTypeAndKindIsOfferedOrNot();
    void hiddenChannelsLeaveTheDevices();
    void aRowOfFiltersCostsOneRebuild();
    void theTreeIsBuiltWhenControlReturnsToTheEventLoop();
    void aRebuildKeepsTheTicks();
    void aNullManagerGivesAnEmptyTree();
    void circlesOfGroupsAreCut();

    void aNewDeviceComesAsOneRowInItsPlace();
    void aNewDeviceBringsItsGroups();
    void theLastDeviceTakesItsGroupsAlong();
    void aRenamedDeviceKeepsItsRow();
    void anOfflineDeviceIsDimWithATip();
    void namesAreNotTakenForMarkUp();
    void aDeviceMovesToAnotherGroupWithItsTicks();
    void channelsComeAndGoOneByOne();
    void aDeviceThatChangesItsTypeComesAndGoes();
    void renamedGroupsKeepTheirRows();
    void regroupedGroupsAreRebuiltWithTheirTicks();
    void randomChangesLeadToTheTreeOfAFreshModel();

    void aRemovalIsToldOnceAfterTheRowsAreGone();
    void aDeviceThatWasNeverOfferedIsNotTold();
    void aRemovalBeforeTheTreeIsBuiltIsTold();
    void aRemovalWhileTheListsChangeIsTold();
    void aModelMayBeDeletedWhileItTells();

    void checkBoxesShowOnlyWhenEnabled();
    void statesFollowParentAndChildren();
    void settingAnItemByHandBringsItsParentsIntoLine();
    void itemsThatAreRightAreNotTouched();
    void acceptedItemsOnlyAreTicked();
    void ticksFollowWhatComesAndGoes();
    void randomTicksAgreeWithAPlainCount();
    void foreignAndNullItemsAreIgnored();
};

void tst_group_tree_model::theTreeHoldsGroupsThenDevicesThenChannels()
{
    const Tree tree(Sample());
    QCOMPARE(tree.Text(), QStringLiteral("Main\n"
                                         "  Floor\n"
                                         "    North\n"
                                         "      Contact\n"
                                         "      Lobby door\n"
                                         "      Back door\n"
                                         "      Siren\n"
                                         "Annex\n"
                                         "  Host\n"
                                         "    Window\n"
                                         "    Lamp\n"
                                         "South\n"
                                         "  Garage door"));
}

void tst_group_tree_model::modeOnePutsDoorsFirst()
{
    SiteDeviceManager manager(Sample());
    ACSGroupTreeModel model(&manager, 1);
    model.EnsureBuilt();
    QCOMPARE(model.GetMode(), 1);
    QStringList names;
    const QStandardItem* pNorth = model.FindNode(100, NodeKindDevice);
    for (int i = 0; i < pNorth->rowCount(); ++i)
        names << pNorth->child(i)->text();
    QCOMPARE(names.join(QLatin1Char(',')), QStringLiteral("Lobby door,Back door,Contact,Siren"));
}

void tst_group_tree_model::everyNodeCarriesItsRoles()
{
    const Tree tree(Sample());
    const QStandardItem* pGroup = tree.Node(2, 1);
    QCOMPARE(pGroup->data(1057).toLongLong(), 2LL);
    QCOMPARE(pGroup->data(1058).toInt(), 1);
    QVERIFY(!pGroup->data(1060).isValid());
    const QStandardItem* pDevice = tree.Node(100, 2);
    QCOMPARE(pDevice->data(1057).userType(), int(QMetaType::LongLong));
    QCOMPARE(pDevice->data(1057).toLongLong(), 100LL);
    QCOMPARE(pDevice->data(1058).toInt(), 2);
    QVERIFY(!pDevice->data(1060).isValid());
    const QStandardItem* pOutput = tree.Node(104, 3);
    QCOMPARE(pOutput->data(1057).toLongLong(), 104LL);
    QCOMPARE(pOutput->data(1058).toInt(), 3);
    QCOMPARE(pOutput->data(1060).toInt(), 4);
    QCOMPARE(pOutput->index().data(1057).toLongLong(), 104LL); // by index as by item
    QVERIFY(!tree.Node(104, 2));
    QVERIFY(!tree.Node(100, 0));
    QVERIFY(!tree.Node(100, 4));
    QVERIFY(!(pOutput->flags() & Qt::ItemIsEditable));
}

void tst_group_tree_model::iconsAreShared()
{
    const Tree tree(Sample());
    const auto key = [&tree](int64_t iId, int iKind) { return tree.Node(iId, iKind)->icon().cacheKey(); };
    QCOMPARE(key(102, 3), key(301, 3));
    QCOMPARE(key(100, 2), key(200, 2));
    QSet<qint64> keys{key(1, 1), key(100, 2), key(102, 3), key(101, 3), key(104, 3)};
    QCOMPARE(keys.size(), 5);
}

void tst_group_tree_model::groupsWithoutAnOfferedDeviceAreNotShown()
{
    const Tree tree(Sample(), Doors());
    QCOMPARE(tree.Text(), QStringLiteral("Main\n  Floor\n    North\n      Lobby door\n      Back door\n"
                                         "South\n  Garage door"));
    QVERIFY(!tree.Node(3, NodeKindGroup));
    QVERIFY(!tree.Node(101, NodeKindChannel));
}

void tst_group_tree_model::aBlackListBeatsAWhiteList()
{
    NodeFilter filter;
    filter.deviceWhiteList = {12, 15};
    filter.deviceBlackList = {12};
    filter.channelWhiteList = {3, 4};
    filter.channelBlackList = {4};
    const Tree tree(Sample(), filter);
    QCOMPARE(tree.Text(), QStringLiteral("Annex\n  Host\n    Window"));
}

void tst_group_tree_model::everyTypeAndKindIsOfferedOrNot()
{
    Site site;
    for (int32_t iType = 0; iType <= 18; ++iType) {
        QVector<ChannelInfo> channels;
        for (int32_t iKind = 0; iKind <= 6; ++iKind)
            channels << Channel(1000 + iType * 10 + iKind, iKind, 1, QStringLiteral("k%1").arg(iKind));
        site.devices << Device(100 + iType, QStringLiteral("t%1").arg(iType), iType, -1, channels);
    }
    NodeFilter filter;
    filter.deviceBlackList = {16};
    filter.channelWhiteList = {4};
    filter.channelBlackList = {0, 1, 2, 3, 5, 6};
    const Tree tree(site, filter);
    for (int32_t iType = 0; iType <= 18; ++iType) {
        QCOMPARE(tree.Node(100 + iType, NodeKindDevice) != nullptr, iType != 16);
        for (int32_t iKind = 0; iKind <= 6; ++iKind) {
            QCOMPARE(tree.Node(1000 + iType * 10 + iKind, NodeKindChannel) != nullptr,
                     iType != 16 && iKind == 4);
        }
    }
}

void tst_group_tree_model::hiddenChannelsLeaveTheDevices()
{
    NodeFilter filter;
    filter.bHideChannels = true;
    filter.bHideEmaps = true;
    const Tree tree(Sample(), filter);
    QCOMPARE(tree.Text(), QStringLiteral("Main\n  Floor\n    North\nAnnex\n  Host\nSouth"));
}

void tst_group_tree_model::aRowOfFiltersCostsOneRebuild()
{
    Tree tree(Sample());
    const QSignalSpy resets(&tree.model, &QAbstractItemModel::modelReset);
    const QSignalSpy updates(&tree.model, &GroupTreeModel::TreeUpdated);
    NodeFilter filter;
    for (int32_t iType = 0; iType <= 18; ++iType) {
        filter.deviceBlackList.insert(iType);
        tree.model.SetNodeFilter(filter);
    }
    QCOMPARE(resets.count(), 0);
    tree.model.EnsureBuilt();
    QCOMPARE(tree.model.rowCount(), 0);
    QCOMPARE(resets.count(), 1);
    tree.model.EnsureBuilt();
    tree.model.SetNodeFilter(filter); // the same again
    QCoreApplication::sendPostedEvents();
    QCOMPARE(resets.count(), 1);
    QCOMPARE(updates.count(), 1);
}

void tst_group_tree_model::theTreeIsBuiltWhenControlReturnsToTheEventLoop()
{
    SiteDeviceManager manager(Sample());
    GroupTreeModel model(&manager, 0);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QCOMPARE(model.rowCount(), 0);
    QTRY_COMPARE(resets.count(), 1);
    QCOMPARE(model.rowCount(), 3);
}

void tst_group_tree_model::aRebuildKeepsTheTicks()
{
    Tree tree(Sample());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(102, 3), true);
    tree.model.SetChecked(tree.Node(300, 2), true);
    tree.model.SetNodeFilter(Doors());
    tree.model.EnsureBuilt();
    QCOMPARE(tree.Text(), QStringLiteral("[-] Main\n  [-] Floor\n    [-] North\n      [x] Lobby door\n"
                                         "      [ ] Back door\n[x] South\n  [x] Garage door"));
}

void tst_group_tree_model::aNullManagerGivesAnEmptyTree()
{
    GroupTreeModel model(nullptr, 1);
    const QAbstractItemModelTester tester(&model, Strict);
    model.SetNodeFilter(Doors());
    model.EnsureBuilt();
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.FindNode(1, NodeKindDevice));
}

void tst_group_tree_model::circlesOfGroupsAreCut()
{
    Site site;
    site.devices << Device(10, QStringLiteral("in a"), 12, 1) << Device(20, QStringLiteral("in c"), 12, 3)
                 << Device(30, QStringLiteral("in none"), 12, 77);
    CircularHost host(site);
    GroupTreeModel model(&host, 0);
    model.EnsureBuilt();
    QCOMPARE(TreeText(model), QStringLiteral("a\n  in a\nc\n  in c\nin none"));
}

void tst_group_tree_model::aNewDeviceComesAsOneRowInItsPlace()
{
    Tree tree(Sample());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(300, 2), true);
    const QPersistentModelIndex south = tree.Node(300, 2)->index();
    const QSignalSpy resets(&tree.model, &QAbstractItemModel::modelReset);
    const QSignalSpy removals(&tree.model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy insertions(&tree.model, &QAbstractItemModel::rowsInserted);
    QVERIFY(tree.manager.AddDevice(
        Device(400, QStringLiteral("West"), 12, 2, {Channel(401, 6, 1, QStringLiteral("Gate"))})));
    QCOMPARE(insertions.count(), 1);
    QCOMPARE(insertions[0][0].toModelIndex(), tree.Node(2, 1)->index());
    QCOMPARE(insertions[0][1].toInt(), 1);
    QCOMPARE(removals.count() + resets.count(), 0);
    QCOMPARE(tree.Node(400, 2)->parent(), tree.Node(2, 1));
    QCOMPARE(tree.Node(401, 3)->parent(), tree.Node(400, 2));
    QVERIFY(south.isValid());
    QCOMPARE(tree.Node(300, 2)->checkState(), Qt::Checked);
}

void tst_group_tree_model::aNewDeviceBringsItsGroups()
{
    Site site = Sample();
    site.groups << Group(5, QStringLiteral("Roof"), 4);
    Tree tree(site);
    const QSignalSpy insertions(&tree.model, &QAbstractItemModel::rowsInserted);
    QVERIFY(tree.manager.AddDevice(Device(400, QStringLiteral("West"), 12, 5)));
    QCOMPARE(insertions.count(), 1); // no moment in which an empty group is seen
    QVERIFY(tree.Text().contains(QStringLiteral("Empty\n  Roof\n    West\nSouth")));
}

void tst_group_tree_model::theLastDeviceTakesItsGroupsAlong()
{
    Tree tree(Sample());
    const QSignalSpy removals(&tree.model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(tree.manager.RemoveDevice(100));
    QCOMPARE(removals.count(), 1);
    QVERIFY(!tree.Node(1, 1) && !tree.Node(2, 1) && !tree.Node(100, 2) && !tree.Node(102, 3));
    QVERIFY(tree.Text().startsWith(QStringLiteral("Annex\n")));
}

void tst_group_tree_model::aRenamedDeviceKeepsItsRow()
{
    Tree tree(Sample());
    const QSignalSpy changes(&tree.model, &QAbstractItemModel::dataChanged);
    const QSignalSpy moves(&tree.model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(tree.manager.RenameDevice(100, QStringLiteral("Nord")));
    QCOMPARE(tree.Node(100, 2)->text(), QStringLiteral("Nord"));
    QCOMPARE(moves.count(), 0);
    QCOMPARE(changes.count(), 1);
    QVERIFY(changes[0][2].value<QVector<int>>().contains(Qt::DisplayRole));
}

void tst_group_tree_model::anOfflineDeviceIsDimWithATip()
{
    Tree tree(Sample());
    const QBrush dim(QColor(1, 2, 3));
    tree.model.SetDimBrush(dim);
    const QStandardItem* pNorth = tree.Node(100, 2);
    QVERIFY(!pNorth->data(Qt::ForegroundRole).isValid());
    const qint64 iOnlineIcon = pNorth->icon().cacheKey();
    tree.manager.SetDeviceOnline(100, false);
    QCOMPARE(pNorth->foreground(), dim);
    QVERIFY(pNorth->toolTip().contains(QStringLiteral("offline")));
    QVERIFY(pNorth->icon().cacheKey() != iOnlineIcon);
    QVERIFY(!tree.Node(102, 3)->data(Qt::ForegroundRole).isValid());
    tree.manager.SetDeviceOnline(100, true);
    QVERIFY(!pNorth->data(Qt::ForegroundRole).isValid());
    QCOMPARE(pNorth->icon().cacheKey(), iOnlineIcon);
    tree.manager.SetDeviceEnabled(100, false);
    QCOMPARE(pNorth->foreground(), dim);
    QVERIFY(pNorth->toolTip().contains(QStringLiteral("switched off")));
}

void tst_group_tree_model::namesAreNotTakenForMarkUp()
{
    Tree tree(Sample());
    QVERIFY(tree.manager.RenameDevice(100, QStringLiteral("<img src=x>")));
    QVERIFY(!tree.Node(100, 2)->toolTip().contains(QStringLiteral("<img")));
    QVERIFY(tree.Node(100, 2)->toolTip().contains(QStringLiteral("&lt;img src=x&gt;")));
}

void tst_group_tree_model::aDeviceMovesToAnotherGroupWithItsTicks()
{
    Tree tree(Sample());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(102, 3), true);
    QStandardItem* pNorth = tree.Node(100, 2);
    const QSignalSpy resets(&tree.model, &QAbstractItemModel::modelReset);
    Site site = Sample();
    site.devices[0].iGroupId = 3;
    tree.manager.ApplySite(site);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(tree.Node(100, 2), pNorth);
    QCOMPARE(tree.Text(), QStringLiteral("[-] Annex\n"
                                         "  [-] North\n"
                                         "    [ ] Contact\n"
                                         "    [x] Lobby door\n"
                                         "    [ ] Back door\n"
                                         "    [ ] Siren\n"
                                         "  [ ] Host\n"
                                         "    [ ] Window\n"
                                         "    [ ] Lamp\n"
                                         "[ ] South\n"
                                         "  [ ] Garage door"));
}

void tst_group_tree_model::channelsComeAndGoOneByOne()
{
    Tree tree(Sample());
    const QSignalSpy removals(&tree.model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy insertions(&tree.model, &QAbstractItemModel::rowsInserted);
    const QStandardItem* pBack = tree.Node(103, 3);
    Site site = Sample();
    site.devices[0].channels.removeFirst();
    site.devices[0].channels.insert(1, Channel(105, 6, 3, QStringLiteral("Side door")));
    site.devices[0].channels[0].strName = QStringLiteral("Front door");
    tree.manager.ApplySite(site);
    QCOMPARE(removals.count(), 1);
    QCOMPARE(insertions.count(), 1);
    QCOMPARE(tree.Node(103, 3), pBack);
    QCOMPARE(tree.Text(), tree.FreshText());
    QVERIFY(tree.Text().contains(QStringLiteral("Front door\n      Side door\n      Back door")));
}

void tst_group_tree_model::aDeviceThatChangesItsTypeComesAndGoes()
{
    Tree tree(Sample(), Doors());
    const QSignalSpy removed(&tree.model, &GroupTreeModel::DeviceRemoved);
    Site site = Sample();
    site.devices[2].iDeviceType = 11;
    tree.manager.ApplySite(site);
    QVERIFY(!tree.Node(300, 2));
    QCOMPARE(removed.count(), 0); // still on the site
    site.devices[2].iDeviceType = 12;
    tree.manager.ApplySite(site);
    QVERIFY(tree.Node(300, 2));
    QCOMPARE(tree.Text(), tree.FreshText());
}

void tst_group_tree_model::renamedGroupsKeepTheirRows()
{
    Tree tree(Sample());
    const QSignalSpy resets(&tree.model, &QAbstractItemModel::modelReset);
    Site site = Sample();
    site.groups[1].strName = QStringLiteral("First floor");
    site.groups.append(Group(9, QStringLiteral("New and empty")));
    tree.manager.ApplySite(site);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(tree.Node(2, 1)->text(), QStringLiteral("First floor"));
    QVERIFY(tree.manager.AddDevice(Device(900, QStringLiteral("in it"), 12, 9)));
    QCOMPARE(tree.Text(), tree.FreshText());
}

void tst_group_tree_model::regroupedGroupsAreRebuiltWithTheirTicks()
{
    Tree tree(Sample());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(201, 3), true);
    Site site = Sample();
    site.groups[2].iParentId = 1;
    tree.manager.ApplySite(site);
    QCOMPARE(tree.Node(3, 1)->parent(), tree.Node(1, 1));
    QCOMPARE(tree.Node(201, 3)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::PartiallyChecked);
}

static Site RandomSite(QRandomGenerator& random)
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

void tst_group_tree_model::randomChangesLeadToTheTreeOfAFreshModel()
{
    const quint32 iSeed = QRandomGenerator::global()->generate();
    QRandomGenerator random(iSeed);
    Tree tree(RandomSite(random), Doors());
    for (int i = 0; i < 300; ++i) {
        tree.manager.ApplySite(RandomSite(random));
        QVERIFY2(tree.Text() == tree.FreshText(),
                 qPrintable(QStringLiteral("seed %1 round %2\n%3\nwanted\n%4")
                                .arg(iSeed)
                                .arg(i)
                                .arg(tree.Text(), tree.FreshText())));
    }
}

void tst_group_tree_model::aRemovalIsToldOnceAfterTheRowsAreGone()
{
    Tree tree(Sample());
    QVector<qlonglong> told;
    connect(&tree.model, &GroupTreeModel::DeviceRemoved, this, [&](int64_t iId) {
        QVERIFY(!tree.Node(iId, NodeKindDevice));
        QVERIFY(!tree.Text().contains(QStringLiteral("South")));
        told << iId;
    });
    QVERIFY(tree.manager.RemoveDevice(300));
    QVERIFY(!tree.manager.RemoveDevice(300));
    QCOMPARE(told, QVector<qlonglong>{300});
}

void tst_group_tree_model::aDeviceThatWasNeverOfferedIsNotTold()
{
    Tree tree(Sample(), Doors());
    const QSignalSpy removed(&tree.model, &GroupTreeModel::DeviceRemoved);
    QVERIFY(tree.manager.RemoveDevice(200));
    QCOMPARE(removed.count(), 0);
    QVERIFY(tree.manager.RemoveDevice(100));
    QCOMPARE(removed.count(), 1);
}

void tst_group_tree_model::aRemovalBeforeTheTreeIsBuiltIsTold()
{
    SiteDeviceManager manager(Sample());
    GroupTreeModel model(&manager, 0);
    model.SetNodeFilter(Doors());
    const QSignalSpy removed(&model, &GroupTreeModel::DeviceRemoved);
    QVERIFY(manager.RemoveDevice(200));
    QVERIFY(manager.RemoveDevice(100));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(TreeText(model), QStringLiteral("South\n  Garage door"));
}

void tst_group_tree_model::aRemovalWhileTheListsChangeIsTold()
{
    Tree tree(Sample());
    const QSignalSpy removed(&tree.model, &GroupTreeModel::DeviceRemoved);
    tree.model.SetNodeFilter(Doors()); // stale now, and 200 was shown until here
    QVERIFY(tree.manager.RemoveDevice(200));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(tree.Text(), tree.FreshText());
}

void tst_group_tree_model::aModelMayBeDeletedWhileItTells()
{
    SiteDeviceManager manager(Sample());
    auto model = std::make_unique<GroupTreeModel>(&manager, 0);
    GroupTreeModel other(&manager, 0);
    model->EnsureBuilt();
    other.EnsureBuilt();
    const QSignalSpy removed(&other, &GroupTreeModel::DeviceRemoved);
    connect(model.get(), &GroupTreeModel::TreeUpdated, this, [&model] { model.reset(); });
    QVERIFY(manager.RemoveDevice(300));
    QVERIFY(!model);
    QCOMPARE(removed.count(), 1);
}

void tst_group_tree_model::checkBoxesShowOnlyWhenEnabled()
{
    Tree tree(Sample());
    QStandardItem* pNorth = tree.Node(100, 2);
    QVERIFY(!pNorth->data(Qt::CheckStateRole).isValid());
    QVERIFY(!pNorth->isCheckable());
    tree.model.EnableCheckBox(true);
    QVERIFY(tree.model.IsCheckBoxEnabled());
    QVERIFY(pNorth->data(Qt::CheckStateRole).isValid());
    QVERIFY(pNorth->isCheckable());
}

void tst_group_tree_model::statesFollowParentAndChildren()
{
    Tree tree(Sample(), Doors());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(102, 3), true);
    QCOMPARE(tree.Text(), QStringLiteral("[-] Main\n  [-] Floor\n    [-] North\n      [x] Lobby door\n"
                                         "      [ ] Back door\n[ ] South\n  [ ] Garage door"));
    tree.model.SetChecked(tree.Node(103, 3), true);
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Checked);
    tree.model.SetChecked(tree.Node(2, 1), false);
    QCOMPARE(tree.Text(), QStringLiteral("[ ] Main\n  [ ] Floor\n    [ ] North\n      [ ] Lobby door\n"
                                         "      [ ] Back door\n[ ] South\n  [ ] Garage door"));
    tree.model.SetChecked(tree.Node(1, 1), true);
    QVERIFY(tree.Text().startsWith(QStringLiteral("[x] Main\n  [x] Floor\n    [x] North\n      [x] Lobby")));
}

void tst_group_tree_model::settingAnItemByHandBringsItsParentsIntoLine()
{
    Tree tree(Sample(), Doors());
    tree.model.EnableCheckBox(true);
    tree.Node(102, 3)->setCheckState(Qt::Checked);
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::PartiallyChecked);
    QVERIFY(tree.model.setData(tree.Node(103, 3)->index(), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Checked);
    tree.Node(100, 2)->setCheckState(Qt::PartiallyChecked); // follows from the children only
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::Checked);
    tree.Node(100, 2)->setText(QStringLiteral("nobody renames a node"));
    QCOMPARE(tree.Node(100, 2)->text(), QStringLiteral("North"));
}

void tst_group_tree_model::itemsThatAreRightAreNotTouched()
{
    Tree tree(Sample(), Doors());
    tree.model.EnableCheckBox(true);
    const QSignalSpy changes(&tree.model, &QAbstractItemModel::dataChanged);
    tree.model.SetChecked(tree.Node(1, 1), false);
    tree.Node(102, 3)->setCheckState(Qt::Unchecked);
    QCOMPARE(changes.count(), 0);
    tree.model.SetChecked(tree.Node(100, 2), true);
    // One signal for the two doors, one each for device, floor and building.
    QCOMPARE(changes.count(), 4);
    QCOMPARE(changes[0][0].toModelIndex(), tree.Node(102, 3)->index());
    QCOMPARE(changes[0][1].toModelIndex(), tree.Node(103, 3)->index());
    QCOMPARE(changes[0][2].value<QVector<int>>(), QVector<int>{Qt::CheckStateRole});
    tree.model.SetChecked(tree.Node(1, 1), true);
    QCOMPARE(changes.count(), 4);
}

void tst_group_tree_model::acceptedItemsOnlyAreTicked()
{
    Tree tree(Sample());
    tree.model.EnableCheckBox(true);
    const auto doorsOnly = [](const QModelIndex& index) {
        return index.data(NodeKindRole).toInt() != NodeKindChannel ||
               index.data(ChannelKindRole).toInt() == 6;
    };
    tree.model.SetChecked(tree.Node(1, 1), true, doorsOnly);
    QCOMPARE(tree.Node(102, 3)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(101, 3)->checkState(), Qt::Unchecked);
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::PartiallyChecked);
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::PartiallyChecked);
    tree.model.SetChecked(tree.Node(1, 1), false, doorsOnly);
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Unchecked);
}

void tst_group_tree_model::ticksFollowWhatComesAndGoes()
{
    Tree tree(Sample(), Doors());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(100, 2), true);
    Site site = Sample();
    site.devices[0].channels.append(Channel(105, 6, 9, QStringLiteral("New door")));
    tree.manager.ApplySite(site);
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::PartiallyChecked);
    tree.manager.ApplySite(Sample());
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Checked);
    site = Sample();
    site.devices[0].channels.clear(); // a device without rows below it keeps its tick
    tree.manager.ApplySite(site);
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::Checked);
    QVERIFY(tree.manager.AddDevice(Device(400, QStringLiteral("West"), 12, 1)));
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::PartiallyChecked);
    QVERIFY(tree.manager.RemoveDevice(400));
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Checked);
}

static Qt::CheckState PlainState(const QStandardItem* pItem, const QSet<const QStandardItem*>& ticked)
{
    if (!pItem->hasChildren())
        return ticked.contains(pItem) ? Qt::Checked : Qt::Unchecked;
    int iTicked = 0;
    int iUnticked = 0;
    for (int i = 0; i < pItem->rowCount(); ++i) {
        const Qt::CheckState state = PlainState(pItem->child(i), ticked);
        iTicked += state == Qt::Checked ? 1 : 0;
        iUnticked += state == Qt::Unchecked ? 1 : 0;
    }
    if (iTicked == pItem->rowCount())
        return Qt::Checked;
    return iUnticked == pItem->rowCount() ? Qt::Unchecked : Qt::PartiallyChecked;
}

static void Leaves(const QStandardItem* pItem, QVector<const QStandardItem*>& nodes,
                   QVector<const QStandardItem*>& leaves)
{
    nodes << pItem;
    if (!pItem->hasChildren())
        leaves << pItem;
    for (int i = 0; i < pItem->rowCount(); ++i)
        Leaves(pItem->child(i), nodes, leaves);
}

void tst_group_tree_model::randomTicksAgreeWithAPlainCount()
{
    const quint32 iSeed = QRandomGenerator::global()->generate();
    QRandomGenerator random(iSeed);
    Site site;
    while (site.devices.isEmpty())
        site = RandomSite(random);
    Tree tree(site);
    tree.model.EnableCheckBox(true);
    QVector<const QStandardItem*> nodes;
    QVector<const QStandardItem*> leaves;
    for (int i = 0; i < tree.model.rowCount(); ++i)
        Leaves(tree.model.item(i), nodes, leaves);
    QSet<const QStandardItem*> ticked;
    for (int iRound = 0; iRound < 500; ++iRound) {
        const QStandardItem* pNode = nodes[random.bounded(nodes.size())];
        const bool bTick = random.bounded(2) == 0;
        tree.model.SetChecked(const_cast<QStandardItem*>(pNode), bTick);
        QVector<const QStandardItem*> all;
        QVector<const QStandardItem*> below;
        Leaves(pNode, all, below);
        for (const QStandardItem* pLeaf : qAsConst(below)) {
            if (bTick) {
                ticked.insert(pLeaf);
            } else {
                ticked.remove(pLeaf);
            }
        }
        for (const QStandardItem* pAny : qAsConst(nodes)) {
            QVERIFY2(pAny->checkState() == PlainState(pAny, ticked),
                     qPrintable(QStringLiteral("seed %1 round %2").arg(iSeed).arg(iRound)));
        }
    }
}

void tst_group_tree_model::foreignAndNullItemsAreIgnored()
{
    Tree tree(Sample());
    tree.model.EnableCheckBox(true);
    const QString strBefore = tree.Text();
    tree.model.SetChecked(nullptr, true);
    QStandardItem foreign(QStringLiteral("x"));
    foreign.setCheckable(true);
    tree.model.SetChecked(&foreign, true);
    QCOMPARE(foreign.checkState(), Qt::Unchecked);
    tree.model.SetChecked(tree.model.invisibleRootItem(), true);
    QCOMPARE(tree.Text(), strBefore);
}

QTEST_MAIN(tst_group_tree_model)
#include "tst_group_tree_model.moc"
