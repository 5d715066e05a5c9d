#pragma once

#include <QColor>
#include <QPersistentModelIndex>
#include <QTreeView>

namespace VantaComponent {

class NodeDelegate;

/// The tree of a device tree control. Tells apart what a person does from what the program does: only a
/// person's actions emit signals. Rows are selected one at a time and never by the view's own choice.
class DeviceTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit DeviceTreeView(QWidget* parent = nullptr);
    ~DeviceTreeView() override;

    QModelIndex SelectedRow() const;
    void SelectRow(const QModelIndex& index);           ///< by program; an invalid index clears the selection
    void Unfold(const QModelIndexList& rows);           ///< by program
    void Reveal(const QModelIndex& index);              ///< by program: scrolls and unfolds what is above
    QRect CheckBoxRect(const QModelIndex& index) const; ///< in the viewport; empty when there is none

    /// One sentence shown in place of rows while there are none.
    void SetEmptyText(const QString& strText);
    QString GetEmptyText() const { return m_strEmpty; }
    void SetEmptyColour(const QColor& colour);

Q_SIGNALS:
    void RowPicked(const QModelIndex& index); ///< has become the selected row; RowClicked follows
    /// A click on a row, or a key that did the same, is complete.
    void RowClicked(const QModelIndex& index, bool bOnCheckBox);
    void RowFolded(const QModelIndex& index, bool bUnfolded);
    void MenuWanted(const QModelIndex& index, const QPoint& globalPos);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    bool IsOnDecoration(const QPoint& pos) const;
    QModelIndex StepInto(int iKey, const QModelIndex& current) const;
    void Press(const QModelIndex& index, const QPoint& pos);
    void PickAndClick(const QModelIndex& index);

    NodeDelegate* m_pDelegate;
    QPersistentModelIndex m_pressed; ///< row of a press that waits for its release
    bool m_bPressedOnBox = false;
    bool m_bByProgram = false;
    QString m_strEmpty;
    QColor m_emptyColour;
};

} // namespace VantaComponent
