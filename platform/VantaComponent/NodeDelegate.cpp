#include "platform/VantaComponent/NodeDelegate.h"

#include <QApplication>
#include <QStyle>

namespace VantaComponent {

NodeDelegate::NodeDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

NodeDelegate::~NodeDelegate() = default;

QRect NodeDelegate::CheckBoxRect(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem full = option;
    initStyleOption(&full, index);
    if (!(full.features & QStyleOptionViewItem::HasCheckIndicator))
        return {};
    const QStyle* pStyle = full.widget ? full.widget->style() : QApplication::style();
    return pStyle->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &full, full.widget);
}

bool NodeDelegate::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&)
{
    return false;
}

} // namespace VantaComponent
