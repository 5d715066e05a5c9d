#pragma once

#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"
#include "tests/VantaTree/ExpansionMemory.h"
#include "tests/VantaTree/TreeSite.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QLineEdit>
#include <QStandardItem>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace TreeSite {

using namespace VantaComponent;
using namespace VantaModel;

/// A control on the screen, operated like a person does.
class ShownTree : public QObject
{
public:
    explicit ShownTree(const Site& site = Sample(), bool bCheckBoxes = false,
                       ExpansionMemory* pMemory = nullptr)
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

inline QString Names(const QVector<QStandardItem*>& items)
{
    QStringList names;
    for (const QStandardItem* pItem : items)
        names << pItem->text();
    return names.join(QLatin1Char(','));
}

} // namespace TreeSite
