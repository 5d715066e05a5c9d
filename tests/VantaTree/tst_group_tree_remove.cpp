#include "TreeSite.h"
#include "platform/LXGUI/LXMessageBox.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItem>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <functional>
#include <memory>

using namespace TreeSite;
using namespace VantaComponent;
using namespace VantaModel;

namespace {

struct Tree
{
    explicit Tree(SiteDeviceManager& host)
        : manager(host)
        , model(&host, 1)
        , ctrl(std::make_unique<GroupTreeCtrl>())
    {
        ctrl->SetDeviceManager(&manager);
        ctrl->SetModel(&model);
        ctrl->AddDeviceWhiteList(12);
        ctrl->AddChannelWhiteList(6);
        view = ctrl->findChild<QTreeView*>(QStringLiteral("treeDevices"));
        ctrl->resize(260, 500);
        ctrl->show();
        view->expandAll();
    }

    /// Right click, as a desktop that opens menus with the press delivers it.
    QMenu* MenuAt(int64_t iId, int iKind)
    {
        const QModelIndex row = static_cast<QAbstractProxyModel*>(view->model())
                                    ->mapFromSource(model.FindNode(iId, iKind)->index());
        const QPoint pos = view->visualRect(row).center();
        QTest::mousePress(view->viewport(), Qt::RightButton, Qt::NoModifier, pos);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, view->viewport()->mapToGlobal(pos));
        QCoreApplication::sendEvent(view->viewport(), &event);
        QTest::mouseRelease(view->viewport(), Qt::RightButton, Qt::NoModifier, pos);
        return ctrl->findChild<QMenu*>(QStringLiteral("menuDevice"));
    }

    SiteDeviceManager& manager;
    ACSGroupTreeModel model;
    std::unique_ptr<GroupTreeCtrl> ctrl;
    QTreeView* view;
};

/// Waits for the question and then acts on it.
class Answer : public QObject
{
public:
    explicit Answer(std::function<void(QDialog*)> act)
        : m_act(std::move(act))
    {
        m_timer.setInterval(5);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto* pBox = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!pBox)
                return;
            m_timer.stop();
            bAsked = true;
            m_act(pBox);
        });
        m_timer.start();
    }
    bool bAsked = false;

private:
    QTimer m_timer;
    std::function<void(QDialog*)> m_act;
};

void Refuse(QDialog* pBox)
{
    QTest::keyClick(pBox, Qt::Key_Escape);
}

void Accept(QDialog* pBox)
{
    const QList<QPushButton*> buttons = pBox->findChildren<QPushButton*>();
    for (QPushButton* pButton : buttons) {
        if (pButton->text().remove(QLatin1Char('&')) == QStringLiteral("Yes")) {
            pButton->click();
            return;
        }
    }
    QFAIL("the question has no button to accept with");
}

} // namespace

class tst_group_tree_remove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QCommon::SetMenuRights(QCommon::RightAdministrator); }

    void administratorsAreOfferedRemovalOnDeviceRows();
    void othersAreNotOfferedRemoval();
    void treesThatDoNotAskForItOfferNoRemoval();
    void aRefusedQuestionRemovesNothing();
    void anAcceptedQuestionRemovesTheDevice();
    void theRightClickOfTheMenuIsToldOnce();
    void theMenuKeyOpensTheMenuOfTheSelectedRow();
    void theTreeMayGoWhileTheQuestionWaits();
    void theDeviceMayGoWhileTheQuestionWaits();
    void everyRealRemovalIsToldOnceInEachTree();
    void aRemovalIsToldAfterTheSearch();
    void aDeviceThatOnlyLeavesTheListsIsNotTold();
};

void tst_group_tree_remove::administratorsAreOfferedRemovalOnDeviceRows()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    QMenu* pMenu = tree.MenuAt(100, NodeKindDevice);
    QVERIFY(pMenu);
    QCOMPARE(pMenu->actions().size(), 1);
    QCOMPARE(pMenu->actions().constFirst()->text(), QStringLiteral("Remove device"));
    pMenu->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!tree.MenuAt(102, NodeKindChannel));
    QVERIFY(!tree.MenuAt(1, NodeKindGroup));
}

void tst_group_tree_remove::othersAreNotOfferedRemoval()
{
    QCommon::SetMenuRights(QCommon::RightAll & ~QCommon::RightAdministrator);
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    QVERIFY(!tree.MenuAt(100, NodeKindDevice));
}

void tst_group_tree_remove::treesThatDoNotAskForItOfferNoRemoval()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    QVERIFY(!tree.MenuAt(100, NodeKindDevice));
}

void tst_group_tree_remove::aRefusedQuestionRemovesNothing()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    const QSignalSpy removed(tree.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice);
    Answer answer(Refuse);
    tree.MenuAt(100, NodeKindDevice)->actions().constFirst()->trigger();
    QTRY_VERIFY(answer.bAsked);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(removed.count(), 0);
    QCOMPARE(manager.GetDeviceIds().size(), 3);
}

void tst_group_tree_remove::anAcceptedQuestionRemovesTheDevice()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    QSignalSpy removed(tree.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice);
    Answer answer(Accept);
    tree.MenuAt(100, NodeKindDevice)->actions().constFirst()->trigger();
    QTRY_COMPARE(removed.count(), 1);
    QCOMPARE(removed[0][0].value<int64_t>(), int64_t(100));
    QVERIFY(!tree.model.FindNode(100, NodeKindDevice));
    QCOMPARE(manager.GetDeviceType(100), -1);
}

void tst_group_tree_remove::theRightClickOfTheMenuIsToldOnce()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    const QSignalSpy clicked(tree.ctrl.get(), &GroupTreeCtrl::SignalClicked);
    QMenu* pMenu = tree.MenuAt(100, NodeKindDevice);
    QVERIFY(pMenu);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(tree.ctrl->GetSelectedItem()->text(), QStringLiteral("North"));
}

void tst_group_tree_remove::theMenuKeyOpensTheMenuOfTheSelectedRow()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    QVERIFY(tree.ctrl->SelectNode(300, NodeKindDevice));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
    QCoreApplication::sendEvent(tree.view->viewport(), &event);
    QVERIFY(tree.ctrl->findChild<QMenu*>(QStringLiteral("menuDevice")));
}

void tst_group_tree_remove::theTreeMayGoWhileTheQuestionWaits()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    QPointer<GroupTreeCtrl> guard(tree.ctrl.get());
    Answer answer([&tree](QDialog* pBox) {
        tree.ctrl.release()->deleteLater();
        pBox->reject();
    });
    tree.MenuAt(100, NodeKindDevice)->actions().constFirst()->trigger();
    QTRY_VERIFY(answer.bAsked);
    QTRY_VERIFY(!guard);
    QCOMPARE(manager.GetDeviceIds().size(), 3);
}

void tst_group_tree_remove::theDeviceMayGoWhileTheQuestionWaits()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->EnableRemoveDevice(true);
    QSignalSpy removed(tree.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice);
    Answer answer([&manager](QDialog* pBox) {
        manager.RemoveDevice(100);
        Accept(pBox);
    });
    tree.MenuAt(100, NodeKindDevice)->actions().constFirst()->trigger();
    QTRY_VERIFY(answer.bAsked);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(removed.count(), 1);
}

void tst_group_tree_remove::everyRealRemovalIsToldOnceInEachTree()
{
    SiteDeviceManager manager(Sample());
    Tree first(manager);
    Tree second(manager);
    QSignalSpy inFirst(first.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice);
    QSignalSpy inSecond(second.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice);
    connect(first.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice, this, [&first](int64_t iId) {
        QVERIFY(!first.model.FindNode(iId, NodeKindDevice)); // the rows are gone by now
        QVERIFY(!TreeText(*first.view->model()).contains(QStringLiteral("Lobby")));
    });
    QVERIFY(manager.RemoveDevice(100));
    QCOMPARE(inFirst.count(), 1);
    QCOMPARE(inSecond.count(), 1);
    Site site = manager.GetSite();
    site.devices.clear();
    manager.ApplySite(site); // another cause; the alarm host is in neither tree
    QCOMPARE(inFirst.count(), 2);
    QCOMPARE(inFirst[1][0].value<int64_t>(), int64_t(300));
    QCOMPARE(inSecond.count(), 2);
}

void tst_group_tree_remove::aRemovalIsToldAfterTheSearch()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    tree.ctrl->findChild<QLineEdit*>(QStringLiteral("edtSearch"))->setText(QStringLiteral("door"));
    QStringList log;
    connect(tree.ctrl.get(), &GroupTreeCtrl::SignalSearchChanged, this,
            [&log] { log << QStringLiteral("search"); });
    connect(tree.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice, this,
            [&log](int64_t iId) { log << QStringLiteral("removed %1").arg(iId); });
    QVERIFY(manager.RemoveDevice(100));
    QCOMPARE(log.join(QStringLiteral("; ")), QStringLiteral("search; removed 100"));
}

void tst_group_tree_remove::aDeviceThatOnlyLeavesTheListsIsNotTold()
{
    SiteDeviceManager manager(Sample());
    Tree tree(manager);
    const QSignalSpy removed(tree.ctrl.get(), &GroupTreeCtrl::SignalRemoveDevice);
    tree.ctrl->AddDeviceBlackList(12);
    tree.model.EnsureBuilt();
    QCOMPARE(tree.model.rowCount(), 0);
    QCOMPARE(removed.count(), 0);
}

QTEST_MAIN(tst_group_tree_remove)
#include "tst_group_tree_remove.moc"
