#pragma once

#include <QStyledItemDelegate>

namespace VantaComponent {

/// Paints the nodes of a device tree. Check boxes are the control's business: a click must select and cascade
/// before anybody is told, so the delegate never toggles one itself.
class NodeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit NodeDelegate(QObject* parent = nullptr);
    ~NodeDelegate() override;

    /// Where the check box of a row is painted; empty for a row without one. `option` holds the row's place.
    QRect CheckBoxRect(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};

} // namespace VantaComponent
