#pragma once

#include "scheme_editor/EventSourceLookup.h"

#include <functional>

class QTreeWidget;
class QTreeWidgetItem;

/// The tree of a device's alarm inputs on the scheme page: one top-level item for the device, an item for
/// each input below it with its key in Qt::UserRole and a mark in column 1.
namespace AlarmInputTree {

constexpr int MarkColumnWidth = 28; ///< pixels

/// One-time settings of the view.
void Prepare(QTreeWidget& tree);
/// Columns for the viewport's present width.
void FitColumns(QTreeWidget& tree);
/// Shows other inputs, the first one current, without a signal; false when there are none and the tree is
/// empty.
bool Fill(QTreeWidget& tree, const EventSourceLookup::AlarmInputs& inputs);
/// Empties the tree without a signal.
void Clear(QTreeWidget& tree);

/// Makes the input of a key the current one, as a click on it does.
void GoTo(QTreeWidget& tree, const QString& strKey);
/// Key of an item; a null text for no item and for items without one.
QString KeyOf(const QTreeWidgetItem* pItem);
/// Shows the mark of every input whose key is accepted and hides the others.
void RefreshMarks(QTreeWidget& tree, const std::function<bool(const QString& strKey)>& accept);

} // namespace AlarmInputTree
