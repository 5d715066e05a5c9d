#include "scheme_editor/AlarmInputTree.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

constexpr int s_iRowHeight = 24;
constexpr int s_iMarkSize = 16;

QWidget* MakeMark(QWidget* parent)
{
    auto* const pCell = new QWidget(parent);
    pCell->setFixedHeight(s_iRowHeight);
    auto* const pLayout = new QHBoxLayout(pCell);
    pLayout->setContentsMargins(0, 0, 0, 0);
    auto* const pMark = new QLabel(pCell);
    pMark->setObjectName(QStringLiteral("lblMark"));
    pMark->setFixedSize(s_iMarkSize, s_iMarkSize);
    pMark->hide();
    pLayout->addWidget(pMark);
    pLayout->addStretch();
    return pCell;
}

} // namespace

void AlarmInputTree::Prepare(QTreeWidget& tree)
{
    tree.setHeaderHidden(true);
    tree.header()->setMinimumSectionSize(0);
    tree.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void AlarmInputTree::FitColumns(QTreeWidget& tree)
{
    tree.setColumnWidth(0, tree.viewport()->width() - MarkColumnWidth);
    tree.setColumnWidth(1, MarkColumnWidth);
}

bool AlarmInputTree::Fill(QTreeWidget& tree, const EventSourceLookup::AlarmInputs& inputs)
{
    const QSignalBlocker blocker(tree);
    tree.clear();
    if (inputs.inputs.isEmpty())
        return false;
    auto* const pDevice = new QTreeWidgetItem(&tree, {inputs.strDeviceName});
    pDevice->setIcon(0, QIcon(QStringLiteral("./Skin/theme1/AlarmCtrl/device.png")));
    const QIcon inputIcon(QStringLiteral("./Skin/theme1/AlarmCtrl/alarm.png"));
    for (const EventSourceLookup::AlarmInput& input : inputs.inputs) {
        auto* const pItem = new QTreeWidgetItem(pDevice, {input.strName});
        pItem->setData(0, Qt::UserRole, input.strKey);
        pItem->setIcon(0, inputIcon);
        tree.setItemWidget(pItem, 1, MakeMark(tree.viewport()));
    }
    tree.setCurrentItem(pDevice->child(0));
    tree.expandAll();
    return true;
}

void AlarmInputTree::Clear(QTreeWidget& tree)
{
    const QSignalBlocker blocker(tree);
    tree.clear();
}

void AlarmInputTree::GoTo(QTreeWidget& tree, const QString& strKey)
{
    const QTreeWidgetItem* const pDevice = tree.topLevelItem(0);
    for (int i = 0; pDevice != nullptr && i < pDevice->childCount(); ++i) {
        if (KeyOf(pDevice->child(i)) == strKey)
            tree.setCurrentItem(pDevice->child(i));
    }
}

QString AlarmInputTree::KeyOf(const QTreeWidgetItem* pItem)
{
    return pItem != nullptr ? pItem->data(0, Qt::UserRole).toString() : QString();
}

void AlarmInputTree::RefreshMarks(QTreeWidget& tree, const std::function<bool(const QString&)>& accept)
{
    QTreeWidgetItem* const pDevice = tree.topLevelItem(0);
    for (int i = 0; pDevice != nullptr && i < pDevice->childCount(); ++i) {
        QTreeWidgetItem* const pItem = pDevice->child(i);
        QWidget* const pCell = tree.itemWidget(pItem, 1);
        QLabel* const pMark = pCell != nullptr ? pCell->findChild<QLabel*>() : nullptr;
        if (pMark == nullptr)
            continue;
        const bool bOn = accept(KeyOf(pItem));
        pMark->setVisible(bOn);
        pItem->setData(0, Qt::AccessibleDescriptionRole,
                       bOn ? QCoreApplication::translate("ACSEventSchemeEditor", "alarm scheme on")
                           : QString());
    }
}
