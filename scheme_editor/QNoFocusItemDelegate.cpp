#include "scheme_editor/QNoFocusItemDelegate.h"

void QNoFocusItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    QStyleOptionViewItem plain(option);
    if (plain.state.testFlag(QStyle::State_HasFocus))
        plain.state.setFlag(QStyle::State_HasFocus, false);
    QStyledItemDelegate::paint(painter, plain, index);
}
