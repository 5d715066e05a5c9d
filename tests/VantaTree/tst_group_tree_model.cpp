#include "platform/VantaModel/ACSGroupTreeModel.h"
#include "tests/VantaTree/CheckedTree.h"

#include <QIcon>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>

using namespace TreeSite;
using namespace VantaModel;

namespace {

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

/// The tree that a model makes of a site.
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
};

void tst_group_tree_model::theTreeHoldsGroupsThenDevicesThenChannels()
{
    const CheckedTree tree(Sample());
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
    const CheckedTree tree(Sample());
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
    const CheckedTree tree(Sample());
    const auto key = [&tree](int64_t iId, int iKind) { return tree.Node(iId, iKind)->icon().cacheKey(); };
    QCOMPARE(key(102, 3), key(301, 3));
    QCOMPARE(key(100, 2), key(200, 2));
    QSet<qint64> keys{key(1, 1), key(100, 2), key(102, 3), key(101, 3), key(104, 3)};
    QCOMPARE(keys.size(), 5);
}

void tst_group_tree_model::groupsWithoutAnOfferedDeviceAreNotShown()
{
    const CheckedTree tree(Sample(), Doors());
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
    const CheckedTree tree(Sample(), filter);
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
    const CheckedTree tree(site, filter);
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
    const CheckedTree tree(Sample(), filter);
    QCOMPARE(tree.Text(), QStringLiteral("Main\n  Floor\n    North\nAnnex\n  Host\nSouth"));
}

void tst_group_tree_model::aRowOfFiltersCostsOneRebuild()
{
    CheckedTree tree(Sample());
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
    CheckedTree tree(Sample());
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

QTEST_MAIN(tst_group_tree_model)
#include "tst_group_tree_model.moc"
