#include "platform/VantaComponent/DeviceTreeView.h"

#include "platform/VantaComponent/NodeDelegate.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace VantaComponent {

namespace {

constexpr int Indentation = 12; // pixels; names are long and the tree is narrow

} // namespace

DeviceTreeView::DeviceTreeView(QWidget* parent)
    : QTreeView(parent)
    , m_pDelegate(new NodeDelegate(this))
    , m_emptyColour(palette().color(QPalette::PlaceholderText))
{
    setItemDelegate(m_pDelegate);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIndentation(Indentation);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setDragDropMode(NoDragDrop);
    header()->setMinimumSectionSize(0);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (!m_bByProgram)
            Q_EMIT RowFolded(index, true);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!m_bByProgram)
            Q_EMIT RowFolded(index, false);
    });
}

DeviceTreeView::~DeviceTreeView() = default;

QModelIndex DeviceTreeView::SelectedRow() const
{
    const QModelIndexList rows = selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList();
    return rows.isEmpty() ? QModelIndex() : rows.first();
}

void DeviceTreeView::SelectRow(const QModelIndex& index)
{
    if (!selectionModel() || (index == SelectedRow() && index == currentIndex()))
        return;
    const QScopedValueRollback<bool> guard(m_bByProgram, true);
    const bool bAutoScroll = hasAutoScroll();
    setAutoScroll(false); // would unfold what is above the row
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index,
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        selectionModel()->clear();
    }
    setAutoScroll(bAutoScroll);
}

void DeviceTreeView::Unfold(const QModelIndexList& rows)
{
    if (rows.isEmpty())
        return;
    const QScopedValueRollback<bool> guard(m_bByProgram, true);
    scheduleDelayedItemsLayout(); // one layout for all of them
    for (const QModelIndex& index : rows)
        expand(index);
}

void DeviceTreeView::Reveal(const QModelIndex& index)
{
    const QScopedValueRollback<bool> guard(m_bByProgram, true);
    scrollTo(index);
}

QRect DeviceTreeView::CheckBoxRect(const QModelIndex& index) const
{
    // What decides where the box stands; the rest of a row's looks does not matter here.
    QStyleOptionViewItem option;
    option.initFrom(this);
    option.widget = this;
    option.font = font();
    const int iIcon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    option.decorationSize = iconSize().isValid() ? iconSize() : QSize(iIcon, iIcon);
    option.decorationAlignment = Qt::AlignCenter;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.rect = visualRect(index);
    return option.rect.isEmpty() ? QRect() : m_pDelegate->CheckBoxRect(option, index);
}

void DeviceTreeView::SetEmptyText(const QString& strText)
{
    if (m_strEmpty == strText)
        return;
    m_strEmpty = strText;
    setAccessibleDescription(strText);
    viewport()->update();
}

void DeviceTreeView::SetEmptyColour(const QColor& colour)
{
    m_emptyColour = colour;
    viewport()->update();
}

/// Whether a position lies on the arrow that folds a row, as the tree view itself decides it.
bool DeviceTreeView::IsOnDecoration(const QPoint& pos) const
{
    const QModelIndex index = indexAt(pos);
    if (!index.isValid() || !model()->hasChildren(index))
        return false;
    const QRect row = visualRect(index);
    return isRightToLeft() ? pos.x() > row.right() && pos.x() <= row.right() + indentation()
                           : pos.x() < row.left() && pos.x() >= row.left() - indentation();
}

void DeviceTreeView::mousePressEvent(QMouseEvent* event)
{
    m_pressed = QModelIndex();
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton) {
        const bool bFolds = IsOnDecoration(event->pos());
        QTreeView::mousePressEvent(event);
        if (!bFolds && index.isValid())
            Press(index, event->pos());
    } else {
        event->accept();
        if (event->button() == Qt::RightButton && index.isValid())
            PickAndClick(index); // before the menu comes, which some systems open with the press
    }
}

void DeviceTreeView::Press(const QModelIndex& index, const QPoint& pos)
{
    m_pressed = index;
    m_bPressedOnBox = CheckBoxRect(index).contains(pos);
    SelectRow(index);
    Q_EMIT RowPicked(index);
}

void DeviceTreeView::PickAndClick(const QModelIndex& index)
{
    const QPersistentModelIndex row = index;
    SelectRow(index);
    Q_EMIT RowPicked(index);
    if (row.isValid())
        Q_EMIT RowClicked(row, false);
}

void DeviceTreeView::mouseMoveEvent(QMouseEvent* event)
{
    // Without drag and drop a held button would walk the selection along with the mouse.
    if (event->buttons() == Qt::NoButton || dragDropMode() != NoDragDrop)
        QTreeView::mouseMoveEvent(event);
}

void DeviceTreeView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->accept();
        return;
    }
    QTreeView::mouseReleaseEvent(event);
    const QPersistentModelIndex pressed = m_pressed;
    m_pressed = QModelIndex();
    if (!pressed.isValid())
        return;
    const bool bOnBox = m_bPressedOnBox && CheckBoxRect(pressed).contains(event->pos());
    Q_EMIT RowClicked(pressed, bOnBox);
}

void DeviceTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
    } else if (index.isValid() && CheckBoxRect(index).contains(event->pos())) {
        Press(index, event->pos()); // two quick clicks are two clicks, and fold nothing
    } else {
        QTreeView::mouseDoubleClickEvent(event);
    }
}

void DeviceTreeView::keyPressEvent(QKeyEvent* event)
{
    const QPersistentModelIndex before = SelectedRow();
    const QModelIndex current = currentIndex();
    const int iKey = event->key();
    if (iKey == Qt::Key_Space && current.isValid() && (current.flags() & Qt::ItemIsUserCheckable)) {
        event->accept();
        if (event->isAutoRepeat())
            return;
        const QPersistentModelIndex row = current;
        SelectRow(current);
        Q_EMIT RowPicked(current);
        if (row.isValid())
            Q_EMIT RowClicked(row, true);
        return;
    }
    // The view marks its first row as current when it gets the focus; the first step selects that row.
    if ((iKey == Qt::Key_Down || iKey == Qt::Key_Up || iKey == Qt::Key_Home) && current.isValid() &&
        current != before) {
        event->accept();
        PickAndClick(current);
        return;
    }
    const QModelIndex step = StepInto(iKey, current);
    if (step.isValid()) {
        event->accept();
        scrollTo(step);
        PickAndClick(step);
        return;
    }
    QTreeView::keyPressEvent(event);
    const QModelIndex after = SelectedRow();
    if (after.isValid() && after != before)
        PickAndClick(after);
}

/// Left and right walk between a row and what lies below it once there is nothing to fold. Not every style
/// of the desktop does this by itself.
QModelIndex DeviceTreeView::StepInto(int iKey, const QModelIndex& current) const
{
    const bool bOpen = current.isValid() && isExpanded(current) && model()->hasChildren(current);
    const int iOutKey = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    const int iInKey = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    if (iKey == iOutKey && !bOpen)
        return current.parent();
    return iKey == iInKey && bOpen ? model()->index(0, 0, current) : QModelIndex();
}

void DeviceTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool bKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = bKey ? SelectedRow() : indexAt(event->pos());
    event->accept();
    if (!index.isValid())
        return;
    Q_EMIT MenuWanted(index, bKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

void DeviceTreeView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_strEmpty.isEmpty() || (model() && model()->rowCount() > 0))
        return;
    QPainter painter(viewport());
    painter.setPen(m_emptyColour);
    painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                     m_strEmpty);
}

QItemSelectionModel::SelectionFlags DeviceTreeView::selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const
{
    if (!index.isValid() ||
        (event && (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonRelease)))
        return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void DeviceTreeView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    // The view would hand the selection of a row that goes to its neighbour.
    for (QModelIndex at = currentIndex(); at.isValid(); at = at.parent()) {
        if (at.parent() == parent && at.row() >= start && at.row() <= end) {
            SelectRow(QModelIndex());
            break;
        }
    }
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

} // namespace VantaComponent
