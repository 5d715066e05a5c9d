#include "tests/VantaTree/CheckedTree.h"

#include <QSet>
#include <QSignalSpy>
#include <QtTest>

using namespace TreeSite;
using namespace VantaModel;

/// The check boxes of the tree.
class tst_group_tree_ticks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkBoxesShowOnlyWhenEnabled();
    void statesFollowParentAndChildren();
    void settingAnItemByHandBringsItsParentsIntoLine();
    void itemsThatAreRightAreNotTouched();
    void acceptedItemsOnlyAreTicked();
    void ticksFollowWhatComesAndGoes();
    void randomTicksAgreeWithAPlainCount();
    void foreignAndNullItemsAreIgnored();
};

void tst_group_tree_ticks::checkBoxesShowOnlyWhenEnabled()
{
    CheckedTree tree(Sample());
    QStandardItem* pNorth = tree.Node(100, 2);
    QVERIFY(!pNorth->data(Qt::CheckStateRole).isValid());
    QVERIFY(!pNorth->isCheckable());
    tree.model.EnableCheckBox(true);
    QVERIFY(tree.model.IsCheckBoxEnabled());
    QVERIFY(pNorth->data(Qt::CheckStateRole).isValid());
    QVERIFY(pNorth->isCheckable());
}

void tst_group_tree_ticks::statesFollowParentAndChildren()
{
    CheckedTree tree(Sample(), Doors());
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

void tst_group_tree_ticks::settingAnItemByHandBringsItsParentsIntoLine()
{
    CheckedTree tree(Sample(), Doors());
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

void tst_group_tree_ticks::itemsThatAreRightAreNotTouched()
{
    CheckedTree tree(Sample(), Doors());
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

void tst_group_tree_ticks::acceptedItemsOnlyAreTicked()
{
    CheckedTree tree(Sample());
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

void tst_group_tree_ticks::ticksFollowWhatComesAndGoes()
{
    CheckedTree tree(Sample(), Doors());
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

void tst_group_tree_ticks::randomTicksAgreeWithAPlainCount()
{
    const quint32 iSeed = QRandomGenerator::global()->generate();
    QRandomGenerator random(iSeed);
    Site site;
    while (site.devices.isEmpty())
        site = RandomSite(random);
    CheckedTree tree(site);
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

void tst_group_tree_ticks::foreignAndNullItemsAreIgnored()
{
    CheckedTree tree(Sample());
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

QTEST_MAIN(tst_group_tree_ticks)
#include "tst_group_tree_ticks.moc"
