#include "tests/VantaTree/ShownTree.h"

#include <QSignalSpy>
#include <QtTest>

using namespace TreeSite;
using namespace VantaComponent;
using namespace VantaModel;

/// The tree as a person clicks, walks and unfolds it.
class tst_group_tree_ctrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSelectsAndTellsOnce();
    void anotherClickOnTheSameRowIsToldAgain();
    void aClickOnTheArrowFoldsAndSelectsNothing();
    void aClickBesideTheRowsChangesNothing();
    void aDoubleClickIsToldOnce();
    void draggingDoesNotWalkTheSelection();
    void otherButtonsAndModifiersDoNotUnselect();
    void aRightClickSelectsAndTellsOnce();
    void arrowKeysTellOncePerRow();
    void typingAheadTellsOnce();
    void theFirstRowCanBeReachedByKey();
    void theDownKeyLeadsFromTheSearchIntoTheTree();
    void theDownKeyLeadsFromTheSearchToTheSelectedRow();
    void aChangeByProgramTellsNothing();
    void indexesGivenOutBelongToTheModel();
    void aRowHiddenByTheSearchComesBackSelected();
    void aRowThatVanishesIsUnselectedAndNoNeighbourSelected();
    void aHiddenRowThatVanishesStaysUnselected();
    void theSelectionStaysWhenOthersComeAndGo();
    void theSelectionSurvivesMoveAndRebuild();
    void listsGivenBeforeTheModelHold();
    void unfoldingIsKeptInTheHostsMemory();
    void unfoldingIsKeptWithoutAMemory();
    void theControlOutlivesItsModel();
    void theControlMayBeDeletedByItsOwnSignal();
    void aRowThatGoesBetweenPressAndReleaseIsNotTold();
    void namesAreThereForScreenReaders();
    void aNullModelLeavesTheTreeEmpty();
};

void tst_group_tree_ctrl::aClickSelectsAndTellsOnce()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Lobby door/3"));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
    tree.Click(tree.TextOf(100, 2));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked North/2"));
    tree.Click(tree.TextOf(1, 1));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Main/1"));
}

void tst_group_tree_ctrl::anotherClickOnTheSameRowIsToldAgain()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.Click(tree.TextOf(102, 3) - QPoint(20, 0));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Lobby door/3; clicked Lobby door/3"));
}

void tst_group_tree_ctrl::aClickOnTheArrowFoldsAndSelectsNothing()
{
    ShownTree tree;
    tree.Click(tree.TextOf(300, 2));
    tree.TakeLog();
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
    tree.Click(tree.ArrowOf(100, 2));
    QVERIFY(!tree.view->isExpanded(tree.Row(100, 2)));
    QCOMPARE(tree.TakeLog(), QString());
    QCOMPARE(tree.Selected(), QStringLiteral("South"));
    // Folding hides no row from the selection: it is still the selected one.
    tree.Click(tree.ArrowOf(100, 2));
    tree.Click(tree.TextOf(102, 3));
    tree.Click(tree.ArrowOf(100, 2));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
}

void tst_group_tree_ctrl::aClickBesideTheRowsChangesNothing()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.TakeLog();
    tree.Click(QPoint(50, tree.view->viewport()->height() - 3));
    tree.Click(QPoint(50, tree.view->viewport()->height() - 3), Qt::RightButton);
    QCOMPARE(tree.TakeLog(), QString());
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
}

void tst_group_tree_ctrl::aDoubleClickIsToldOnce()
{
    ShownTree tree;
    tree.Click(tree.TextOf(300, 2));
    QTest::mouseDClick(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(300, 2));
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(300, 2));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked South/2"));
    QVERIFY(!tree.view->isExpanded(tree.Row(300, 2))); // it folds
}

void tst_group_tree_ctrl::draggingDoesNotWalkTheSelection()
{
    ShownTree tree;
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(102, 3));
    const QPoint to = tree.TextOf(300, 2);
    QMouseEvent move(QEvent::MouseMove, to, tree.view->viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree.view->viewport(), &move);
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, to);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Lobby door/3"));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
}

void tst_group_tree_ctrl::otherButtonsAndModifiersDoNotUnselect()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    QTest::mouseClick(tree.view->viewport(), Qt::LeftButton, Qt::ControlModifier, tree.TextOf(102, 3));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
    tree.TakeLog();
    tree.Click(tree.TextOf(300, 2), Qt::MiddleButton);
    QCOMPARE(tree.TakeLog(), QString());
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
}

void tst_group_tree_ctrl::aRightClickSelectsAndTellsOnce()
{
    ShownTree tree;
    tree.Click(tree.TextOf(300, 2), Qt::RightButton);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked South/2"));
    QCOMPARE(tree.Selected(), QStringLiteral("South"));
    QVERIFY(!QApplication::activePopupWidget()); // no menu unless it was asked for
}

void tst_group_tree_ctrl::arrowKeysTellOncePerRow()
{
    ShownTree tree;
    tree.Click(tree.TextOf(100, 2));
    tree.TakeLog();
    tree.Key(Qt::Key_Down);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Lobby door/3"));
    tree.Key(Qt::Key_Down);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Back door/3"));
    tree.Key(Qt::Key_Left); // to the device
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked North/2"));
    tree.Key(Qt::Key_Left); // folds it
    QCOMPARE(tree.TakeLog(), QString());
    tree.Key(Qt::Key_Right); // unfolds it
    QCOMPARE(tree.TakeLog(), QString());
    tree.Key(Qt::Key_Right); // to its first door
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Lobby door/3"));
    tree.Key(Qt::Key_End);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Garage door/3"));
    tree.Key(Qt::Key_Down); // nowhere to go
    QCOMPARE(tree.TakeLog(), QString());
    QCOMPARE(tree.Selected(), QStringLiteral("Garage door"));
}

void tst_group_tree_ctrl::typingAheadTellsOnce()
{
    ShownTree tree;
    tree.Click(tree.TextOf(100, 2));
    tree.TakeLog();
    QTest::keyClick(tree.view, Qt::Key_G);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Garage door/3"));
    QCOMPARE(tree.Selected(), QStringLiteral("Garage door"));
    QTest::keyClick(tree.view, Qt::Key_A);
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::theFirstRowCanBeReachedByKey()
{
    ShownTree tree;
    tree.search->setFocus();
    tree.view->setFocus();
    QCOMPARE(tree.Selected(), QString()); // the focus alone selects nothing
    tree.Key(Qt::Key_Down);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Main/1"));
    tree.Key(Qt::Key_Down);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Floor/1"));
}

void tst_group_tree_ctrl::theDownKeyLeadsFromTheSearchIntoTheTree()
{
    ShownTree tree;
    tree.search->setFocus();
    QTest::keyClicks(tree.search, QStringLiteral("gar"));
    tree.TakeLog();

    QTest::keyClick(tree.search, Qt::Key_Down);

    QVERIFY(tree.view->hasFocus());
    const QString strFirst = tree.view->model()->index(0, 0).data().toString();
    QVERIFY(!strFirst.isEmpty());
    QCOMPARE(tree.Selected(), strFirst);
    QCOMPARE(tree.search->text(), QStringLiteral("gar"));
}

void tst_group_tree_ctrl::theDownKeyLeadsFromTheSearchToTheSelectedRow()
{
    ShownTree tree;
    tree.Click(tree.TextOf(100, 2));
    const QString strSelected = tree.Selected();
    tree.TakeLog();
    tree.search->setFocus();

    QTest::keyClick(tree.search, Qt::Key_Down);

    QVERIFY(tree.view->hasFocus());
    QCOMPARE(tree.Selected(), strSelected);
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::aChangeByProgramTellsNothing()
{
    ShownTree tree;
    QVERIFY(tree.ctrl->SelectNode(102, NodeKindChannel));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
    QVERIFY(!tree.ctrl->SelectNode(102, NodeKindDevice));
    QVERIFY(!tree.ctrl->SelectNode(999, NodeKindChannel));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    tree.ctrl->UpdateSelectedState(tree.Node(102, 3), true);
    QCOMPARE(tree.TakeLog(), QString());
    tree.Search(QStringLiteral("garage"));
    tree.TakeLog();
    QVERIFY(!tree.ctrl->SelectNode(103, NodeKindChannel)); // the tree does not show it
    QVERIFY(tree.ctrl->SelectNode(301, NodeKindChannel));
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::indexesGivenOutBelongToTheModel()
{
    ShownTree tree(Sample(), true);
    tree.Search(QStringLiteral("door"));
    tree.Click(tree.BoxOf(103, 3));
    tree.Key(Qt::Key_Up);
    QCOMPARE(tree.log.count(QStringLiteral("clicked Back door/3")), 1);
    QVERIFY(!tree.foreign);
    QCOMPARE(tree.ctrl->GetSelectedItem()->model(), tree.model.get());
}

void tst_group_tree_ctrl::aRowHiddenByTheSearchComesBackSelected()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.TakeLog();
    QTest::keyClicks(tree.search, QStringLiteral("ga"));
    QCOMPARE(tree.TakeLog(), QStringLiteral("search; search"));
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.Painted(), QString());
    tree.search->clear();
    QCOMPARE(tree.TakeLog(), QStringLiteral("search"));
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
}

void tst_group_tree_ctrl::aRowThatVanishesIsUnselectedAndNoNeighbourSelected()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.TakeLog();
    Site site = Sample();
    site.devices[0].channels.removeAt(1);
    tree.manager.ApplySite(site);
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.Painted(), QString());
    tree.Click(tree.TextOf(103, 3));
    tree.TakeLog();
    tree.manager.RemoveDevice(100); // the selected door goes with its device and its groups
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.Painted(), QString());
    QCOMPARE(tree.TakeLog(), QString());
    tree.manager.ApplySite(Sample()); // the same id once more is another row
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.Painted(), QString());
}

void tst_group_tree_ctrl::aHiddenRowThatVanishesStaysUnselected()
{
    ShownTree tree;
    tree.Click(tree.TextOf(301, 3));
    tree.Search(QStringLiteral("lobby"));
    tree.manager.RemoveDevice(300);
    tree.search->clear();
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.Painted(), QString());
}

void tst_group_tree_ctrl::theSelectionStaysWhenOthersComeAndGo()
{
    ShownTree tree;
    tree.Click(tree.TextOf(301, 3));
    tree.TakeLog();
    tree.manager.RemoveDevice(100);
    QVERIFY(tree.manager.AddDevice(Device(90, QStringLiteral("New"), 12, 2)));
    tree.manager.RenameDevice(300, QStringLiteral("Sud"));
    QCOMPARE(tree.Selected(), QStringLiteral("Garage door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Garage door"));
    QVERIFY(tree.view->isExpanded(tree.Row(300, 2)));
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::theSelectionSurvivesMoveAndRebuild()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.TakeLog();
    Site site = Sample();
    site.devices[0].iGroupId = 3;
    tree.manager.ApplySite(site);
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
    tree.ctrl->AddDeviceWhiteList(12);
    QCOMPARE(tree.Selected(), QStringLiteral("Lobby door"));
    QCOMPARE(tree.Painted(), QStringLiteral("Lobby door"));
    QVERIFY(!tree.Node(200, 2));
    tree.ctrl->AddChannelBlackList(6);
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::listsGivenBeforeTheModelHold()
{
    SiteDeviceManager manager(Sample());
    ACSGroupTreeModel model(&manager, 0);
    GroupTreeCtrl ctrl;
    ctrl.AddDeviceWhiteList(15);
    ctrl.AddDeviceWhiteList(12);
    ctrl.AddDeviceBlackList(12);
    ctrl.HideNodeChannel(true);
    ctrl.EnableCheckBox(true);
    ctrl.SetModel(&model);
    QVector<QStandardItem*> items;
    ctrl.GetAllUnCheckedItem(items); // builds the tree at once
    QCOMPARE(Names(items), QStringLiteral("Annex,Host"));
    QVERIFY(model.IsCheckBoxEnabled());
}

void tst_group_tree_ctrl::unfoldingIsKeptInTheHostsMemory()
{
    ExpansionMemory memory;
    memory.unfolded = {{1, 1}, {1, 2}, {2, 100}};
    ShownTree tree(Sample(), false, &memory);
    tree.view->collapseAll();
    memory.unfolded = {{1, 1}, {1, 2}, {2, 100}};
    ShownTree second(Sample(), false, &memory);
    GroupTreeCtrl third;
    ACSGroupTreeModel model(&tree.manager, 1);
    model.SetExpandInterface(&memory);
    memory.unfolded = {{1, 1}, {2, 300}};
    third.SetModel(&model);
    third.show();
    auto* pView = third.findChild<QTreeView*>(QStringLiteral("treeDevices"));
    const auto* pRows = static_cast<QAbstractProxyModel*>(pView->model());
    const auto isUnfolded = [&](int64_t iId, int iKind) {
        return pView->isExpanded(pRows->mapFromSource(model.FindNode(iId, iKind)->index()));
    };
    QVERIFY(isUnfolded(1, 1));
    QVERIFY(!isUnfolded(2, 1));
    QVERIFY(isUnfolded(300, 2));
    pView->setExpanded(pRows->mapFromSource(model.FindNode(300, 2)->index()), false);
    pView->setExpanded(pRows->mapFromSource(model.FindNode(3, 1)->index()), true);
    QCOMPARE(memory.unfolded, (QSet<QPair<int32_t, int64_t>>{{1, 1}, {1, 3}}));
    // A search unfolds for itself and leaves the memory alone.
    third.findChild<QLineEdit*>(QStringLiteral("edtSearch"))->setText(QStringLiteral("lobby"));
    QVERIFY(isUnfolded(2, 1));
    QVERIFY(isUnfolded(100, 2));
    QCOMPARE(memory.unfolded, (QSet<QPair<int32_t, int64_t>>{{1, 1}, {1, 3}}));
    third.findChild<QLineEdit*>(QStringLiteral("edtSearch"))->clear();
    QVERIFY(!isUnfolded(2, 1));
    QVERIFY(isUnfolded(3, 1));
}

void tst_group_tree_ctrl::unfoldingIsKeptWithoutAMemory()
{
    ShownTree tree;
    tree.Click(tree.ArrowOf(2, 1));
    tree.Search(QStringLiteral("back"));
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
    tree.search->clear();
    QVERIFY(!tree.view->isExpanded(tree.Row(2, 1)));
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
    tree.ctrl->AddChannelBlackList(3);
    tree.model->EnsureBuilt();
    QVERIFY(!tree.view->isExpanded(tree.Row(2, 1)));
    QVERIFY(tree.view->isExpanded(tree.Row(300, 2)));
}

void tst_group_tree_ctrl::theControlOutlivesItsModel()
{
    ShownTree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.Search(QStringLiteral("door"));
    tree.model.reset();
    QVERIFY(!tree.ctrl->GetSelectedItem());
    QVector<QStandardItem*> items;
    tree.ctrl->GetAllCheckedItem(items);
    QVERIFY(items.isEmpty());
    QCOMPARE(tree.view->model()->rowCount(), 0);
    tree.search->clear();
    tree.manager.RemoveDevice(100);
    QVERIFY(!tree.ctrl->SelectNode(300, NodeKindDevice));
    tree.view->viewport()->repaint();
}

void tst_group_tree_ctrl::theControlMayBeDeletedByItsOwnSignal()
{
    ShownTree tree(Sample(), true);
    QPointer<GroupTreeCtrl> guard(tree.ctrl.get());
    connect(tree.ctrl.get(), &GroupTreeCtrl::SignalClicked, &tree,
            [&tree] { tree.ctrl.release()->deleteLater(); });
    tree.Click(tree.BoxOf(100, 2));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!guard);
    QCOMPARE(tree.TakeLog(), QStringLiteral("ticked North; clicked North/2"));
}

void tst_group_tree_ctrl::aRowThatGoesBetweenPressAndReleaseIsNotTold()
{
    ShownTree tree(Sample(), true);
    const QPoint box = tree.BoxOf(300, 2);
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    tree.manager.RemoveDevice(300);
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    QCOMPARE(tree.TakeLog(), QString());
    QCOMPARE(tree.Selected(), QString());
}

void tst_group_tree_ctrl::namesAreThereForScreenReaders()
{
    const ShownTree tree;
    QCOMPARE(tree.search->accessibleName(), QStringLiteral("Search devices"));
    QCOMPARE(tree.view->accessibleName(), QStringLiteral("Device tree"));
    QVERIFY(tree.search->isClearButtonEnabled());
    QVERIFY(tree.view->isHeaderHidden());
    QVERIFY(tree.view->uniformRowHeights());
}

void tst_group_tree_ctrl::aNullModelLeavesTheTreeEmpty()
{
    GroupTreeCtrl ctrl;
    ctrl.SetDeviceManager(nullptr);
    ctrl.SetModel(nullptr);
    ctrl.AddDeviceWhiteList(12);
    ctrl.SetDragDropMode(99);
    ctrl.show();
    QVERIFY(!ctrl.GetSelectedItem());
    QVERIFY(!ctrl.SelectNode(1, 2));
    QSignalSpy spy(&ctrl, &GroupTreeCtrl::SignalSearchChanged);
    ctrl.findChild<QLineEdit*>()->setText(QStringLiteral("x"));
    QCOMPARE(spy.count(), 1);
    QVector<QStandardItem*> items;
    ctrl.GetAllUnCheckedItem(items);
    QVERIFY(items.isEmpty());
    QVERIFY(QMetaType::type("int64_t") != QMetaType::UnknownType);
}

QTEST_MAIN(tst_group_tree_ctrl)
#include "tst_group_tree_ctrl.moc"
