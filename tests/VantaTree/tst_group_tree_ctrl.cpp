#include "TreeSite.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaLogic/ITreeExpansion.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItem>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace TreeSite;
using namespace VantaComponent;
using namespace VantaModel;

namespace {

/// Remembers unfolding as a host does, for several trees.
class Memory : public VantaLogic::ITreeExpansion
{
public:
    bool IsExpanded(int32_t iKind, int64_t iId) const override { return set.contains({iKind, iId}); }
    void SetExpanded(int32_t iKind, int64_t iId, bool bExpanded) override
    {
        if (bExpanded) {
            set.insert({iKind, iId});
        } else {
            set.remove({iKind, iId});
        }
    }
    QSet<QPair<int32_t, int64_t>> set;
};

/// A control on the screen, operated like a person does.
class Tree : public QObject
{
public:
    explicit Tree(const Site& site = Sample(), bool bCheckBoxes = false, Memory* pMemory = nullptr)
        : manager(site)
        , model(std::make_unique<ACSGroupTreeModel>(&manager, 1))
        , ctrl(std::make_unique<GroupTreeCtrl>())
    {
        model->SetExpandInterface(pMemory);
        ctrl->SetDeviceManager(&manager);
        ctrl->SetModel(model.get());
        ctrl->SetDragDropMode(0);
        ctrl->HideNodeEmap(true);
        ctrl->EnableCheckBox(bCheckBoxes);
        view = ctrl->findChild<QTreeView*>(QStringLiteral("treeDevices"));
        search = ctrl->findChild<QLineEdit*>(QStringLiteral("edtSearch"));
        tester = new QAbstractItemModelTester(view->model(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest, this);
        connect(ctrl.get(), &GroupTreeCtrl::SignalClicked, this, [this](const QModelIndex& index, int iKind) {
            log << QStringLiteral("clicked %1/%2").arg(index.data().toString()).arg(iKind);
            foreign = foreign || index.model() != model.get();
        });
        connect(ctrl.get(), &GroupTreeCtrl::SignalChecked, this, [this](const QModelIndex& index, bool b) {
            log << QStringLiteral("%1 %2").arg(b ? QStringLiteral("ticked") : QStringLiteral("unticked"),
                                               index.data().toString());
            foreign = foreign || index.model() != model.get();
        });
        connect(ctrl.get(), &GroupTreeCtrl::SignalSearchChanged, this,
                [this] { log << QStringLiteral("search"); });
        ctrl->resize(260, 500);
        ctrl->show();
        if (!QTest::qWaitForWindowExposed(ctrl.get()))
            qFatal("the control does not show");
        view->setFocus();
        view->expandAll();
        log.clear();
    }

    QModelIndex Row(int64_t iId, int iKind) const
    {
        const QStandardItem* pItem = model->FindNode(iId, iKind);
        return pItem ? static_cast<QAbstractProxyModel*>(view->model())->mapFromSource(pItem->index())
                     : QModelIndex();
    }
    QStandardItem* Node(int64_t iId, int iKind) const { return model->FindNode(iId, iKind); }
    QPoint TextOf(int64_t iId, int iKind) const
    {
        const QRect rect = view->visualRect(Row(iId, iKind));
        return {rect.right() - 4, rect.center().y()};
    }
    QPoint BoxOf(int64_t iId, int iKind) const
    {
        const QRect rect = view->visualRect(Row(iId, iKind));
        return {rect.left() + 10, rect.center().y()};
    }
    QPoint ArrowOf(int64_t iId, int iKind) const
    {
        const QRect rect = view->visualRect(Row(iId, iKind));
        return {rect.left() - view->indentation() / 2, rect.center().y()};
    }
    void Click(const QPoint& pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view->viewport(), button, Qt::NoModifier, pos);
    }
    void Key(Qt::Key key) { QTest::keyClick(view, key); }
    void Search(const QString& strText)
    {
        search->clear();
        QTest::keyClicks(search, strText);
    }
    QString Selected() const
    {
        const QStandardItem* pItem = ctrl->GetSelectedItem();
        return pItem ? pItem->text() : QString();
    }
    /// The texts that the view paints as selected.
    QString Painted() const
    {
        QStringList texts;
        const QModelIndexList rows = view->selectionModel()->selectedIndexes();
        for (const QModelIndex& index : rows)
            texts << index.data().toString();
        return texts.join(QLatin1Char(','));
    }
    QString TakeLog()
    {
        QString strLog = log.join(QStringLiteral("; "));
        log.clear();
        return strLog;
    }

    SiteDeviceManager manager;
    std::unique_ptr<ACSGroupTreeModel> model;
    std::unique_ptr<GroupTreeCtrl> ctrl;
    QTreeView* view = nullptr;
    QLineEdit* search = nullptr;
    QAbstractItemModelTester* tester = nullptr;
    QStringList log;
    bool foreign = false; ///< an index of another model was given out
};

QString Names(const QVector<QStandardItem*>& items)
{
    QStringList names;
    for (const QStandardItem* pItem : items)
        names << pItem->text();
    return names.join(QLatin1Char(','));
}

} // namespace

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
    void aClickOnACheckBoxSelectsCascadesAndTellsInOrder();
    void pressingABoxAndReleasingElsewhereDoesNotTick();
    void twoQuickClicksOnABoxAreTwoClicks();
    void spaceTogglesLikeAClick();
    void withoutCheckBoxesSpaceTicksNothing();
    void aCascadeUnderASearchTouchesVisibleRowsOnly();
    void itemsUnderAnIndexIncludeTheIndexItself();
    void allItemsIncludeThoseThatTheSearchHides();
    void updateSelectedStateAcceptsNull();
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
    Tree tree;
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
    Tree tree;
    tree.Click(tree.TextOf(102, 3));
    tree.Click(tree.TextOf(102, 3) - QPoint(20, 0));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Lobby door/3; clicked Lobby door/3"));
}

void tst_group_tree_ctrl::aClickOnTheArrowFoldsAndSelectsNothing()
{
    Tree tree;
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
    Tree tree;
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
    Tree tree;
    tree.Click(tree.TextOf(300, 2));
    QTest::mouseDClick(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(300, 2));
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(300, 2));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked South/2"));
    QVERIFY(!tree.view->isExpanded(tree.Row(300, 2))); // it folds
}

void tst_group_tree_ctrl::draggingDoesNotWalkTheSelection()
{
    Tree tree;
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
    Tree tree;
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
    Tree tree;
    tree.Click(tree.TextOf(300, 2), Qt::RightButton);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked South/2"));
    QCOMPARE(tree.Selected(), QStringLiteral("South"));
    QVERIFY(!QApplication::activePopupWidget()); // no menu unless it was asked for
}

void tst_group_tree_ctrl::arrowKeysTellOncePerRow()
{
    Tree tree;
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
    Tree tree;
    tree.Click(tree.TextOf(100, 2));
    tree.TakeLog();
    QTest::keyClick(tree.view, Qt::Key_G);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Garage door/3"));
    QCOMPARE(tree.Selected(), QStringLiteral("Garage door"));
    QTest::keyClick(tree.view, Qt::Key_A);
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::theDownKeyLeadsFromTheSearchIntoTheTree()
{
    Tree tree;
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
    Tree tree;
    tree.Click(tree.TextOf(100, 2));
    const QString strSelected = tree.Selected();
    tree.TakeLog();
    tree.search->setFocus();

    QTest::keyClick(tree.search, Qt::Key_Down);

    QVERIFY(tree.view->hasFocus());
    QCOMPARE(tree.Selected(), strSelected);
    QCOMPARE(tree.TakeLog(), QString());
}

void tst_group_tree_ctrl::theFirstRowCanBeReachedByKey()
{
    Tree tree;
    tree.search->setFocus();
    tree.view->setFocus();
    QCOMPARE(tree.Selected(), QString()); // the focus alone selects nothing
    tree.Key(Qt::Key_Down);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Main/1"));
    tree.Key(Qt::Key_Down);
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Floor/1"));
}

void tst_group_tree_ctrl::aChangeByProgramTellsNothing()
{
    Tree tree;
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
    Tree tree(Sample(), true);
    tree.Search(QStringLiteral("door"));
    tree.Click(tree.BoxOf(103, 3));
    tree.Key(Qt::Key_Up);
    QCOMPARE(tree.log.count(QStringLiteral("clicked Back door/3")), 1);
    QVERIFY(!tree.foreign);
    QCOMPARE(tree.ctrl->GetSelectedItem()->model(), tree.model.get());
}

void tst_group_tree_ctrl::aRowHiddenByTheSearchComesBackSelected()
{
    Tree tree;
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
    Tree tree;
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
    Tree tree;
    tree.Click(tree.TextOf(301, 3));
    tree.Search(QStringLiteral("lobby"));
    tree.manager.RemoveDevice(300);
    tree.search->clear();
    QCOMPARE(tree.Selected(), QString());
    QCOMPARE(tree.Painted(), QString());
}

void tst_group_tree_ctrl::theSelectionStaysWhenOthersComeAndGo()
{
    Tree tree;
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
    Tree tree;
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

void tst_group_tree_ctrl::aClickOnACheckBoxSelectsCascadesAndTellsInOrder()
{
    Tree tree(Sample(), true);
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

void tst_group_tree_ctrl::pressingABoxAndReleasingElsewhereDoesNotTick()
{
    Tree tree(Sample(), true);
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.BoxOf(100, 2));
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked North/2"));
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.TextOf(103, 3));
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Back door/3"));
    QCOMPARE(tree.Node(1, 1)->checkState(), Qt::Unchecked);
}

void tst_group_tree_ctrl::twoQuickClicksOnABoxAreTwoClicks()
{
    Tree tree(Sample(), true);
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

void tst_group_tree_ctrl::spaceTogglesLikeAClick()
{
    Tree tree(Sample(), true);
    tree.Click(tree.TextOf(103, 3));
    tree.TakeLog();
    tree.Key(Qt::Key_Space);
    QCOMPARE(tree.TakeLog(), QStringLiteral("ticked Back door; clicked Back door/3"));
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Checked);
    tree.Key(Qt::Key_Space);
    QCOMPARE(tree.TakeLog(), QStringLiteral("unticked Back door; clicked Back door/3"));
}

void tst_group_tree_ctrl::withoutCheckBoxesSpaceTicksNothing()
{
    Tree tree;
    tree.Click(tree.TextOf(103, 3));
    tree.TakeLog();
    tree.Key(Qt::Key_Space);
    tree.Click(tree.BoxOf(103, 3));
    QCOMPARE(tree.TakeLog(), QStringLiteral("clicked Back door/3"));
    tree.ctrl->EnableCheckBox(true);
    QCOMPARE(tree.Node(103, 3)->checkState(), Qt::Unchecked);
}

void tst_group_tree_ctrl::aCascadeUnderASearchTouchesVisibleRowsOnly()
{
    Tree tree(Sample(), true);
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

void tst_group_tree_ctrl::itemsUnderAnIndexIncludeTheIndexItself()
{
    Tree tree(Sample(), true);
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

void tst_group_tree_ctrl::allItemsIncludeThoseThatTheSearchHides()
{
    Tree tree(Sample(), true);
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

void tst_group_tree_ctrl::updateSelectedStateAcceptsNull()
{
    Tree tree(Sample(), true);
    tree.ctrl->UpdateSelectedState(tree.ctrl->GetSelectedItem(), true);
    QVector<QStandardItem*> items;
    tree.ctrl->GetAllCheckedItem(items);
    QVERIFY(items.isEmpty());
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
    Memory memory;
    memory.set = {{1, 1}, {1, 2}, {2, 100}};
    Tree tree(Sample(), false, &memory);
    tree.view->collapseAll();
    memory.set = {{1, 1}, {1, 2}, {2, 100}};
    Tree second(Sample(), false, &memory);
    GroupTreeCtrl third;
    ACSGroupTreeModel model(&tree.manager, 1);
    model.SetExpandInterface(&memory);
    memory.set = {{1, 1}, {2, 300}};
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
    QCOMPARE(memory.set, (QSet<QPair<int32_t, int64_t>>{{1, 1}, {1, 3}}));
    // A search unfolds for itself and leaves the memory alone.
    third.findChild<QLineEdit*>(QStringLiteral("edtSearch"))->setText(QStringLiteral("lobby"));
    QVERIFY(isUnfolded(2, 1));
    QVERIFY(isUnfolded(100, 2));
    QCOMPARE(memory.set, (QSet<QPair<int32_t, int64_t>>{{1, 1}, {1, 3}}));
    third.findChild<QLineEdit*>(QStringLiteral("edtSearch"))->clear();
    QVERIFY(!isUnfolded(2, 1));
    QVERIFY(isUnfolded(3, 1));
}

void tst_group_tree_ctrl::unfoldingIsKeptWithoutAMemory()
{
    Tree tree;
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
    Tree tree;
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
    Tree tree(Sample(), true);
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
    Tree tree(Sample(), true);
    const QPoint box = tree.BoxOf(300, 2);
    QTest::mousePress(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    tree.manager.RemoveDevice(300);
    QTest::mouseRelease(tree.view->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    QCOMPARE(tree.TakeLog(), QString());
    QCOMPARE(tree.Selected(), QString());
}

void tst_group_tree_ctrl::namesAreThereForScreenReaders()
{
    const Tree tree;
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
