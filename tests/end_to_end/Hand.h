#pragma once

#include <QModelIndex>
#include <QPoint>
#include <QString>

class QLineEdit;
class QTreeView;
class QWidget;

/// What a hand does with mouse and keys. Mouse events go to the window and find their widget by themselves,
/// so that one that is hidden, disabled, covered or behind a modal dialog is not reached: the answer is false
/// then.
namespace Hand {

constexpr int KindGroup = 1;
constexpr int KindDevice = 2;
constexpr int KindChannel = 3;

bool Click(QWidget* pWidget, const QPoint& point); ///< the point lies in the widget
bool Click(QWidget* pWidget);                      ///< in its middle
bool Hover(QWidget* pWidget, const QPoint& point); ///< also a drag while the button is held
bool Press(QWidget* pWidget, const QPoint& point);
bool Release(QWidget* pWidget, const QPoint& point); ///< wherever the pointer is by now
bool Type(QLineEdit* pEdit, const QString& strText); ///< in place of what it holds

/// The row of a node; invalid when the tree does not offer it.
QModelIndex Find(const QTreeView& tree, qint64 iId, int iKind);
/// Unfolds what is above the row and clicks it, beside its check box.
bool ClickRow(QTreeView* pTree, qint64 iId, int iKind);
/// The same on the check box; false unless that changed its state.
bool ClickBox(QTreeView* pTree, qint64 iId, int iKind);
/// The check state of a node, -1 when the tree does not offer it.
int CheckState(const QTreeView& tree, qint64 iId, int iKind);

} // namespace Hand
