#include "tests/VantaTree/ShownTree.h"

#include <QtTest>

using namespace TreeSite;
using namespace VantaComponent;
using namespace VantaModel;

/// The check boxes of the tree on the screen, and the items that are read from it.
class tst_group_tree_boxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOnACheckBoxSelectsCascadesAndTellsInOrder();
    void pressingABoxAndReleasingElsewhereDoesNotTick();
    void twoQuickClicksOnABoxAreTwoClicks();
    void spaceTogglesLikeAClick();
    void withoutCheckBoxesSpaceTicksNothing();
    void aCascadeUnderASearchTouchesVisibleRowsOnly();
    void itemsUnderAnIndexIncludeTheIndexItself();
    void allItemsIncludeThoseThatTheSearchHides();
    void updateSelectedStateAcceptsNull();
};

void tst_group_tree_boxes::aClickOnACheckBoxSelectsCascadesAndTellsInOrder()
{
    ShownTree tree(Sample(), true);
    QString strDuring;
    connect(tree.ctrl.get(), &GroupTreeCtrl::SignalChecked, this, [&] {
        strDuring = tree.Selected() + QLatin1Char(' ') + QString::number(tree.Node(103, 3)->checkState()) +
                    QString::number(tree.Node(1, 1)->checkState());
    });
    tree.Click(tree.BoxOf(100, 2));
    QCOMPARE(tree.TakeLog(), QStringLiteral("ticked North; clicked North/2"));
    QCOMPARE(strDuring, QStringLiteral("North 22")); // all of it had happened before anybody was told
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
    tree.Click(tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("unticked Back door; clicked Back door/3"));
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::PartiallyChecked);
    tree.Click(tree.BoxOf(100, 2)); // partly ticked becomes ticked
    QCOMPARE(tree.TakeLog(), QStringLiteral("ticked North; clicked North/2"));
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Checked);
    tree.Click(tree.TextOf(103, 3)); // beside the box nothing is ticked
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Back door/3"));
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Checked);
}

void tst_group_tree_boxes::pressingABoxAndReleasingElsewhereDoesNotTick()
{
    ShownTree tree(Sample(), true);
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.BoxOf(100, 2));
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked North/2"));
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(103, 3));
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Back door/3"));
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Unchecked);
}

void tst_group_tree_boxes::twoQuickClicksOnABoxAreTwoClicks()
{
    ShownTree tree(Sample(), true);
    const QPoint box = tree.BoxOf(100, 2);
    QTest::mouseClick(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    QMouseEvent second(QEvent::MouseButtonDblClick, box, tree.view->viewport()->mapToGlobal(box),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree.view->viewport(), &second);
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    QCOMPARE(tree.TakeLog(),
             QStringLiteral("ticked North; clicked North/2; unticked North; clicked North/2"));
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
}

void tst_group_tree_boxes::spaceTogglesLikeAClick()
{
    ShownTree tree(Sample(), true);
    tree.Click(tree.TextOf(103, 3));
    tree.TakeLog();
    tree.Key(Qt::Key_Space);
    QCOMPARE(tree.TakeLog(), QStringLiteral("ticked Back door; clicked Back door/3"));
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Checked);
    tree.Key(Qt::Key_Space);
    QCOMPARE(tree.TakeLog(), QStringLiteral("unticked Back door; clicked Back door/3"));
}

void tst_group_tree_boxes::withoutCheckBoxesSpaceTicksNothing()
{
    ShownTree tree;
    tree.Click(tree.TextOf(103, 3));
    tree.TakeLog();
    tree.Key(Qt::Key_Space);
    tree.Click(tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Back door/3"));
    tree.ctrl->EnableCheckBox(true);
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Unchecked);
}

void tst_group_tree_boxes::aCascadeUnderASearchTouchesVisibleRowsOnly()
{
    ShownTree tree(Sample(), true);
    tree.Search(QStringLiteral("door"));
    tree.TakeLog();
    tree.Click(tree.BoxOf(100, 2));
    QCOMPARE(tree.TakeLog(), QStringLiteral("ticked North; clicked North/2"));
    QCOMPARE(tree.Node(102, 3)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Checked);
    QCOMPARE(tree.Node(101, 3)->checkState(), Qt::Unchecked);
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::PartiallyChecked);
    QVector<QStandardItem*> items;
    tree.ctrl->GetUnCheckedItem(tree.Node(100, 2)->index(), items);
    QCOMPARE(Names(items), QStringLiteral("North")); // hidden rows stay out, partly ticked is not ticked
    tree.Click(tree.BoxOf(100, 2));                  // everything shown is ticked, so this unticks
    QCOMPARE(tree.TakeLog(), QStringLiteral("unticked North; clicked North/2"));
    QCOMPARE(tree.Node(100, 2)->checkState(), Qt::Unchecked);
    tree.ctrl->UpdateSelectedState(tree.Node(100, 2), true);
    QCOMPARE(tree.Node(104, 3)->checkState(), Qt::Unchecked);
    QCOMPARE(tree.Node(102, 3)->checkState(), Qt::Checked);
}

void tst_group_tree_boxes::itemsUnderAnIndexIncludeTheIndexItself()
{
    ShownTree tree(Sample(), true);
    tree.ctrl->UpdateSelectedState(tree.Node(102, 3), true);
    QVector<QStandardItem*> items;
    tree.ctrl->GetCheckedItem(tree.Node(102, 3)->index(), items);
    QCOMPARE(Names(items), QStringLiteral("Lobby door"));
    tree.ctrl->GetUnCheckedItem(tree.Node(2, 1)->index(), items); // appends
    QCOMPARE(Names(items), QStringLiteral("Lobby door,Floor,North,Back door,Contact,Siren"));
    items.clear();
    tree.ctrl->UpdateSelectedState(tree.Node(1, 1), true);
    tree.ctrl->GetCheckedItem(tree.Node(1, 1)->index(), items);
    QCOMPARE(Names(items), QStringLiteral("Main,Floor,North,Lobby door,Back door,Contact,Siren"));
    items.clear();
    tree.ctrl->GetCheckedItem(QModelIndex(), items);
    tree.ctrl->GetCheckedItem(tree.Row(1, 1), items); // an index of another model
    QVERIFY(items.isEmpty());
}

void tst_group_tree_boxes::allItemsIncludeThoseThatTheSearchHides()
{
    ShownTree tree(Sample(), true);
    tree.ctrl->UpdateSelectedState(tree.Node(300, 2), true);
    tree.Search(QStringLiteral("siren"));
    QVector<QStandardItem*> items;
    tree.ctrl->GetAllCheckedItem(items);
    QCOMPARE(Names(items), QStringLiteral("South,Garage door"));
    items.clear();
    tree.ctrl->GetAllUnCheckedItem(items);
    QCOMPARE(Names(items), QStringLiteral("Main,Floor,North,Lobby door,Back door,Contact,Siren,"
                                          "Annex,Host,Window,Lamp"));
}

void tst_group_tree_boxes::updateSelectedStateAcceptsNull()
{
    ShownTree tree(Sample(), true);
    tree.ctrl->UpdateSelectedState(tree.ctrl->GetSelectedItem(), true);
    QVector<QStandardItem*> items;
    tree.ctrl->GetAllCheckedItem(items);
    QVERIFY(items.isEmpty());
}

QTEST_MAIN(tst_group_tree_boxes)
#include "tst_group_tree_boxes.moc"
