#include "Hand.h"

#include <QApplication>
#include <QLineEdit>
#include <QStyle>
#include <QTreeView>
#include <QWindow>
#include <QtTest>

namespace {

constexpr int NodeIdRole = 1057;
constexpr int NodeKindRole = 1058;

bool CanReach(const QWidget* pWidget, const QPoint& point)
{
    if (pWidget == nullptr || !pWidget->isVisible() || !pWidget->isEnabled() ||
        !pWidget->rect().contains(point)) {
        return false;
    }
    const QWidget* pWindow = pWidget->window();
    const QWidget* pModal = QApplication::activeModalWidget();
    const QWidget* pHit = pWindow->childAt(pWidget->mapTo(pWindow, point));
    return (pModal == nullptr || pModal == pWindow) &&
           (pHit == pWidget || pWidget == pWindow || pWidget->isAncestorOf(pHit));
}

QPoint InWindow(const QWidget* pWidget, const QPoint& point)
{
    return pWidget->mapTo(pWidget->window(), point);
}

QModelIndex FindBelow(const QAbstractItemModel& model, const QModelIndex& parent, qint64 iId, int iKind)
{
    for (int i = 0; i < model.rowCount(parent); ++i) {
        const QModelIndex index = model.index(i, 0, parent);
        if (index.data(NodeIdRole).toLongLong() == iId && index.data(NodeKindRole).toInt() == iKind) {
            return index;
        }
        const QModelIndex below = FindBelow(model, index, iId, iKind);
        if (below.isValid()) {
            return below;
        }
    }
    return {};
}

// Unfolding as a person does: a click on the row and the right arrow key.
bool Reveal(QTreeView* pTree, const QModelIndex& index)
{
    QList<QModelIndex> folded;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
        if (!pTree->isExpanded(above)) {
            folded.prepend(above);
        }
    }
    for (const QModelIndex& above : qAsConst(folded)) {
        pTree->scrollTo(above);
        if (!Hand::Click(pTree->viewport(), pTree->visualRect(above).center())) {
            return false;
        }
        QTest::keyClick(pTree, Qt::Key_Right);
        if (!pTree->isExpanded(above)) {
            return false;
        }
    }
    pTree->scrollTo(index);
    return !pTree->visualRect(index).isEmpty();
}

QPoint BoxCentre(const QTreeView& tree, const QModelIndex& index)
{
    QStyleOptionViewItem option;
    option.initFrom(&tree);
    option.widget = &tree;
    option.rect = tree.visualRect(index);
    option.index = index;
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    return tree.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &tree).center();
}

} // namespace

bool Hand::Click(QWidget* pWidget, const QPoint& point)
{
    if (!CanReach(pWidget, point)) {
        return false;
    }
    QTest::mouseClick(pWidget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      InWindow(pWidget, point));
    return true;
}

bool Hand::Click(QWidget* pWidget)
{
    return pWidget != nullptr && Click(pWidget, pWidget->rect().center());
}

bool Hand::Hover(QWidget* pWidget, const QPoint& point)
{
    if (!CanReach(pWidget, point)) {
        return false;
    }
    QTest::mouseMove(pWidget->window()->windowHandle(), InWindow(pWidget, point));
    return true;
}

bool Hand::Press(QWidget* pWidget, const QPoint& point)
{
    if (!CanReach(pWidget, point)) {
        return false;
    }
    QTest::mousePress(pWidget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      InWindow(pWidget, point));
    return true;
}

bool Hand::Release(QWidget* pWidget, const QPoint& point)
{
    QTest::mouseRelease(pWidget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        InWindow(pWidget, point));
    return true;
}

bool Hand::Type(QLineEdit* pEdit, const QString& strText)
{
    if (!Click(pEdit)) {
        return false;
    }
    QTest::keyClick(pEdit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(pEdit, Qt::Key_Delete);
    QTest::keyClicks(pEdit, strText);
    return true;
}

QModelIndex Hand::Find(const QTreeView& tree, qint64 iId, int iKind)
{
    return FindBelow(*tree.model(), QModelIndex(), iId, iKind);
}

bool Hand::ClickRow(QTreeView* pTree, qint64 iId, int iKind)
{
    const QModelIndex index = pTree == nullptr ? QModelIndex() : Find(*pTree, iId, iKind);
    return index.isValid() && Reveal(pTree, index) &&
           Click(pTree->viewport(), pTree->visualRect(index).center());
}

bool Hand::ClickBox(QTreeView* pTree, qint64 iId, int iKind)
{
    const QModelIndex index = pTree == nullptr ? QModelIndex() : Find(*pTree, iId, iKind);
    if (!index.isValid() || !Reveal(pTree, index)) {
        return false;
    }
    const int iBefore = index.data(Qt::CheckStateRole).toInt();
    return Click(pTree->viewport(), BoxCentre(*pTree, index)) &&
           index.data(Qt::CheckStateRole).toInt() != iBefore;
}

int Hand::CheckState(const QTreeView& tree, qint64 iId, int iKind)
{
    const QVariant state = Find(tree, iId, iKind).data(Qt::CheckStateRole);
    return state.isValid() ? state.toInt() : -1;
}
