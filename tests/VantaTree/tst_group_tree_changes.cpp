#include "tests/VantaTree/CheckedTree.h"

#include <QIcon>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace TreeSite;
using namespace VantaModel;

/// How the tree follows a site that changes.
class tst_group_tree_changes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_group_tree_changes::aNewDeviceComesAsOneRowInItsPlace()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_changes::aNewDeviceBringsItsGroups()
{
    Site site = Sample();
    site.groups << Group(5, QStringLiteral("Roof"), 4);
    CheckedTree tree(site);
    const QSignalSpy insertions(&tree.model, &QAbstractItemModel::rowsInserted);
    QVERIFY(tree.manager.AddDevice(Device(400, QStringLiteral("West"), 12, 5)));
    QCOMPARE(insertions.count(), 1); // no moment in which an empty group is seen
    QVERIFY(tree.Text().contains(QStringLiteral("Empty\n  Roof\n    West\nSouth")));
}

void tst_group_tree_changes::theLastDeviceTakesItsGroupsAlong()
{
    CheckedTree tree(Sample());
    const QSignalSpy removals(&tree.model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(tree.manager.RemoveDevice(100));
    QCOMPARE(removals.count(), 1);
    QVERIFY(!tree.Node(1, 1) && !tree.Node(2, 1) && !tree.Node(100, 2) && !tree.Node(102, 3));
    QVERIFY(tree.Text().startsWith(QStringLiteral("Annex\n")));
}

void tst_group_tree_changes::aRenamedDeviceKeepsItsRow()
{
    CheckedTree tree(Sample());
    const QSignalSpy changes(&tree.model, &QAbstractItemModel::dataChanged);
    const QSignalSpy moves(&tree.model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(tree.manager.RenameDevice(100, QStringLiteral("Nord")));
    QCOMPARE(tree.Node(100, 2)->text(), QStringLiteral("Nord"));
    QCOMPARE(moves.count(), 0);
    QCOMPARE(changes.count(), 1);
    QVERIFY(changes[0][2].value<QVector<int>>().contains(Qt::DisplayRole));
}

void tst_group_tree_changes::anOfflineDeviceIsDimWithATip()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_changes::namesAreNotTakenForMarkUp()
{
    CheckedTree tree(Sample());
    QVERIFY(tree.manager.RenameDevice(100, QStringLiteral("<img src=x>")));
    QVERIFY(!tree.Node(100, 2)->toolTip().contains(QStringLiteral("<img")));
    QVERIFY(tree.Node(100, 2)->toolTip().contains(QStringLiteral("&lt;img src=x&gt;")));
}

void tst_group_tree_changes::aDeviceMovesToAnotherGroupWithItsTicks()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_changes::channelsComeAndGoOneByOne()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_changes::aDeviceThatChangesItsTypeComesAndGoes()
{
    CheckedTree tree(Sample(), Doors());
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

void tst_group_tree_changes::renamedGroupsKeepTheirRows()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_changes::regroupedGroupsAreRebuiltWithTheirTicks()
{
    CheckedTree tree(Sample());
    tree.model.EnableCheckBox(true);
    tree.model.SetChecked(tree.Node(201, 3), true);
    Site site = Sample();
    site.groups[2].iParentId = 1;
    tree.manager.ApplySite(site);
    QCOMPARE(tree.Node(3, 1)->parent(), tree.Node(1, 1));
    QCOMPARE(tree.Node(201, 3)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::PartiallyChecked);
}

void tst_group_tree_changes::randomChangesLeadToTheTreeOfAFreshModel()
{
    const quint32 iSeed = QRandomGenerator::global()->generate();
    QRandomGenerator random(iSeed);
    CheckedTree tree(RandomSite(random), Doors());
    for (int i = 0; i < 300; ++i) {
        tree.manager.ApplySite(RandomSite(random));
        QVERIFY2(tree.Text() == tree.FreshText(),
                 qPrintable(QStringLiteral("seed %1 round %2\n%3\nwanted\n%4")
                                .arg(iSeed)
                                .arg(i)
                                .arg(tree.Text(), tree.FreshText())));
    }
}

void tst_group_tree_changes::aRemovalIsToldOnceAfterTheRowsAreGone()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_changes::aDeviceThatWasNeverOfferedIsNotTold()
{
    CheckedTree tree(Sample(), Doors());
    const QSignalSpy removed(&tree.model, &GroupTreeModel::DeviceRemoved);
    QVERIFY(tree.manager.RemoveDevice(200));
    QCOMPARE(removed.count(), 0);
    QVERIFY(tree.manager.RemoveDevice(100));
    QCOMPARE(removed.count(), 1);
}

void tst_group_tree_changes::aRemovalBeforeTheTreeIsBuiltIsTold()
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

void tst_group_tree_changes::aRemovalWhileTheListsChangeIsTold()
{
    CheckedTree tree(Sample());
    const QSignalSpy removed(&tree.model, &GroupTreeModel::DeviceRemoved);
    tree.model.SetNodeFilter(Doors()); // stale now, and 200 was shown until here
    QVERIFY(tree.manager.RemoveDevice(200));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(tree.Text(), tree.FreshText());
}

void tst_group_tree_changes::aModelMayBeDeletedWhileItTells()
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

QTEST_MAIN(tst_group_tree_changes)
#include "tst_group_tree_changes.moc"
