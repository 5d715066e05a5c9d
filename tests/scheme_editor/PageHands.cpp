#include "tests/scheme_editor/PageHands.h"

#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmListItem.h"
#include "AlarmCtrl/QAlarmListItemView.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"
#include "scheme_editor/ACSEventSchemeEditor.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>

namespace {

constexpr const char* s_categories[] = {"btnAlarm", "btnAbnormal", "btnNormal", "btnExternalAlarm"};
constexpr const char* s_lists[] = {"listAlarm", "listAbnormal", "listNormal"};

QModelIndex FindNode(const QAbstractItemModel& model, const QModelIndex& parent, int64_t iId, int32_t iKind)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data(VantaModel::NodeIdRole).toLongLong() == iId &&
            index.data(VantaModel::NodeKindRole).toInt() == iKind)
            return index;
        const QModelIndex below = FindNode(model, index, iId, iKind);
        if (below.isValid())
            return below;
    }
    return {};
}

QTreeView* ViewOf(const VantaComponent::GroupTreeCtrl* pTree)
{
    return pTree == nullptr ? nullptr : pTree->findChild<QTreeView*>();
}

void SendMouse(QWidget* pWidget, QEvent::Type type, int iX, Qt::MouseButton button, Qt::MouseButtons held)
{
    const QPoint local(iX, pWidget->height() / 2);
    QMouseEvent event(type, local, pWidget->mapToGlobal(local), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(pWidget, &event);
}

} // namespace

PageHands::PageHands(ACSEventSchemeEditor& page)
    : m_page(page)
{
}

bool PageHands::Click(QWidget* pWidget)
{
    if (pWidget == nullptr || !pWidget->isVisible() || !pWidget->isEnabled())
        return false;
    QTest::mouseClick(pWidget, Qt::LeftButton);
    return true;
}

bool PageHands::ClickNode(int64_t iNodeId, int32_t iNodeKind) const
{
    QTreeView* const pView = TreeView();
    auto* const pModel = m_page.findChild<VantaModel::GroupTreeModel*>(QString(), Qt::FindDirectChildrenOnly);
    if (pView == nullptr || pModel == nullptr)
        return false;
    pModel->EnsureBuilt();
    const QModelIndex index = FindNode(*pView->model(), {}, iNodeId, iNodeKind);
    if (!index.isValid() || !pView->isVisible() || !pView->isEnabled())
        return false;
    pView->scrollTo(index);
    QTest::mouseClick(pView->viewport(), Qt::LeftButton, Qt::NoModifier, pView->visualRect(index).center());
    return true;
}

bool PageHands::ClickDoor(int64_t iChannelId) const
{
    return ClickNode(iChannelId, VantaModel::NodeKindChannel);
}

bool PageHands::ClickDevice(int64_t iDeviceId) const
{
    return ClickNode(iDeviceId, VantaModel::NodeKindDevice);
}

bool PageHands::SeesNode(int64_t iNodeId, int32_t iNodeKind) const
{
    const QTreeView* const pView = TreeView();
    return pView != nullptr && FindNode(*pView->model(), {}, iNodeId, iNodeKind).isValid();
}

bool PageHands::Search(const QString& strText) const
{
    auto* const pEdit =
        Tree() == nullptr ? nullptr : Tree()->findChild<QLineEdit*>(QStringLiteral("edtSearch"));
    if (pEdit == nullptr || !pEdit->isVisible() || !pEdit->isEnabled())
        return false;
    if (pEdit->text() == strText)
        return true;
    QSignalSpy changed(Tree(), &VantaComponent::GroupTreeCtrl::SignalSearchChanged);
    if (!pEdit->text().isEmpty()) {
        pEdit->selectAll();
        QTest::keyClick(pEdit, Qt::Key_Delete);
    }
    if (!strText.isEmpty())
        QTest::keyClicks(pEdit, strText);
    return pEdit->text() == strText && (!changed.isEmpty() || changed.wait());
}

bool PageHands::ClickCategory(const char* szButton) const
{
    return Click(Button(szButton));
}

bool PageHands::ClickEvent(int32_t iType) const
{
    const QAlarmListItemView* const pList = VisibleList();
    if (pList == nullptr)
        return false;
    const QList<QAlarmListItem*> items = pList->findChildren<QAlarmListItem*>();
    for (QAlarmListItem* const pItem : items) {
        if (pItem->GetType() == iType)
            return Click(pItem);
    }
    return false;
}

bool PageHands::ClickInput(const QString& strKey) const
{
    return ClickInputItem(InputItem(strKey));
}

bool PageHands::ClickInputDevice() const
{
    return ClickInputItem(InputTree()->topLevelItem(0));
}

bool PageHands::ClickInputItem(const QTreeWidgetItem* pItem) const
{
    QTreeWidget* const pTree = InputTree();
    if (pItem == nullptr || !pTree->isVisible() || !pTree->isEnabled())
        return false;
    pTree->scrollToItem(pItem);
    QPoint where = pTree->visualItemRect(pItem).center();
    where.setX(pTree->columnViewportPosition(0) + pTree->columnWidth(0) / 2);
    QTest::mouseClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier, where);
    return true;
}

bool PageHands::ClickTab(const char* szButton) const
{
    return Click(Button(szButton));
}

bool PageHands::Toggle(const char* szName) const
{
    LXGUI::LXSwitchButton* const pSwitch = Switch(szName);
    return pSwitch->isEnabled() && Click(pSwitch);
}

bool PageHands::ToggleOpen() const
{
    return Toggle("btnOpenStatus");
}

bool PageHands::ToggleSound() const
{
    return ClickTab("btnNotify") && Toggle("btnAlarmSound");
}

bool PageHands::ToggleMail() const
{
    return ClickTab("btnNotify") && Toggle("btnSendEmail");
}

bool PageHands::ToggleOutput(int64_t iChannelId) const
{
    if (!ClickTab("btnAlarmOut"))
        return false;
    const auto* const pEditor = m_page.findChild<QAlarmOutEditor*>();
    QTreeView* const pView = ViewOf(pEditor->findChild<VantaComponent::GroupTreeCtrl*>());
    auto* const pModel = pEditor->findChild<VantaModel::GroupTreeModel*>();
    if (pView == nullptr || pModel == nullptr || !pView->isVisible() || !pView->isEnabled())
        return false;
    pModel->EnsureBuilt();
    const QModelIndex index = FindNode(*pView->model(), {}, iChannelId, VantaModel::NodeKindChannel);
    if (!index.isValid())
        return false;
    pView->scrollTo(index);
    QStyleOptionViewItem option;
    option.initFrom(pView);
    option.widget = pView;
    option.rect = pView->visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    option.text = index.data().toString();
    const QPoint where =
        pView->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, pView).center();
    const auto before = index.data(Qt::CheckStateRole);
    QTest::mouseClick(pView->viewport(), Qt::LeftButton, Qt::NoModifier, where);
    return index.data(Qt::CheckStateRole) != before;
}

bool PageHands::ToggleDay(int iDay) const
{
    if (!ClickTab("btnDefTime"))
        return false;
    QWidget* const pDisplay = DayBar(iDay);
    if (pDisplay == nullptr || !pDisplay->isVisible() || !pDisplay->isEnabled())
        return false;
    const int width = pDisplay->width();
    SendMouse(pDisplay, QEvent::MouseMove, width / 2, Qt::NoButton, Qt::NoButton);
    SendMouse(pDisplay, QEvent::MouseButtonPress, 0, Qt::LeftButton, Qt::LeftButton);
    SendMouse(pDisplay, QEvent::MouseMove, width, Qt::NoButton, Qt::LeftButton);
    SendMouse(pDisplay, QEvent::MouseButtonRelease, width, Qt::LeftButton, Qt::NoButton);
    return true;
}

bool PageHands::OpenDay(int iDay, const std::function<void(QAlarmDayDetailEditor&)>& act) const
{
    const auto* const pDay = m_page.findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(iDay));
    if (pDay == nullptr || !ClickTab("btnDefTime"))
        return false;
    bool bOpened = false;
    QTimer::singleShot(0, qApp, [&act, &bOpened] {
        auto* const pDialog = qobject_cast<QAlarmDayDetailEditor*>(QApplication::activeModalWidget());
        bOpened = pDialog != nullptr;
        if (bOpened)
            act(*pDialog);
    });
    return Click(pDay->findChild<QWidget*>(QStringLiteral("btnDetail"))) && bOpened;
}

bool PageHands::LinkAndGoToTime(int64_t iChannelId) const
{
    // Looked at again and again: to the page a loop of events of its own would be a dialog that runs.
    const QSignalSpy steps(&m_page, &ACSEventSchemeEditor::SignalUndoChanged);
    if (!ToggleOutput(iChannelId) || !QTest::qWaitFor([&steps] { return !steps.isEmpty(); }))
        return false;
    TimeField()->setFocus();
    return QTest::qWaitFor([this] { return TimeField()->hasFocus(); });
}

bool PageHands::Save() const
{
    return Click(Widget("btnSave"));
}

bool PageHands::IsColumnEnabled() const
{
    return Widget("wndOption")->isEnabled();
}

bool PageHands::AreSettingsEnabled() const
{
    return Widget("wndSettings")->isEnabled();
}

bool PageHands::IsOpenShown() const
{
    return Switch("btnOpenStatus")->isToggled();
}

bool PageHands::IsSoundShown() const
{
    return Switch("btnAlarmSound")->isToggled();
}

bool PageHands::IsMailShown() const
{
    return Switch("btnSendEmail")->isToggled();
}

QString PageHands::SettingType() const
{
    return m_page.findChild<QLabel*>(QStringLiteral("lblSettingType"))->text();
}

QStringList PageHands::VisibleCategories() const
{
    QStringList names;
    for (const char* const name : s_categories) {
        if (!Button(name)->isHidden())
            names.append(QLatin1String(name));
    }
    return names;
}

QStringList PageHands::DoorCategories()
{
    return {QStringLiteral("btnAlarm"), QStringLiteral("btnAbnormal"), QStringLiteral("btnNormal")};
}

QStringList PageHands::DeviceCategories()
{
    return {QStringLiteral("btnExternalAlarm")};
}

QAlarmListItemView* PageHands::VisibleList() const
{
    for (const char* const name : s_lists) {
        if (List(name)->isVisible())
            return List(name);
    }
    return nullptr;
}

bool PageHands::HasMark(const char* szList, int32_t iType) const
{
    const QList<QAlarmListItem*> items = List(szList)->findChildren<QAlarmListItem*>();
    for (const QAlarmListItem* const pItem : items) {
        if (pItem->GetType() == iType)
            return pItem->HasMark();
    }
    return false;
}

QStringList PageHands::InputKeys() const
{
    QStringList keys;
    const QTreeWidgetItem* const pDevice = InputTree()->topLevelItem(0);
    for (int i = 0; pDevice != nullptr && i < pDevice->childCount(); ++i)
        keys.append(pDevice->child(i)->data(0, Qt::UserRole).toString());
    return keys;
}

QString PageHands::CurrentInputKey() const
{
    const QTreeWidgetItem* const pItem = InputTree()->currentItem();
    return pItem == nullptr ? QString() : pItem->data(0, Qt::UserRole).toString();
}

QLabel* PageHands::InputMark(const QString& strKey) const
{
    QTreeWidgetItem* const pItem = InputItem(strKey);
    const QWidget* const pCell = pItem == nullptr ? nullptr : InputTree()->itemWidget(pItem, 1);
    return pCell == nullptr ? nullptr : pCell->findChild<QLabel*>();
}

bool PageHands::HasInputMark(const QString& strKey) const
{
    const QLabel* const pMark = InputMark(strKey);
    return pMark != nullptr && !pMark->isHidden();
}

QTreeWidgetItem* PageHands::InputItem(const QString& strKey) const
{
    const QTreeWidgetItem* const pDevice = InputTree()->topLevelItem(0);
    for (int i = 0; pDevice != nullptr && i < pDevice->childCount(); ++i) {
        if (pDevice->child(i)->data(0, Qt::UserRole).toString() == strKey)
            return pDevice->child(i);
    }
    return nullptr;
}

QWidget* PageHands::Widget(const char* szName) const
{
    return m_page.findChild<QWidget*>(QLatin1String(szName));
}

QAbstractButton* PageHands::Button(const char* szName) const
{
    return m_page.findChild<QAbstractButton*>(QLatin1String(szName));
}

LXGUI::LXSwitchButton* PageHands::Switch(const char* szName) const
{
    return m_page.findChild<LXGUI::LXSwitchButton*>(QLatin1String(szName));
}

QWidget* PageHands::DayBar(int iDay) const
{
    const auto* const pDay = m_page.findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(iDay));
    return pDay == nullptr ? nullptr : pDay->findChild<QWidget*>(QStringLiteral("wndDisplay"));
}

QLineEdit* PageHands::TimeField() const
{
    return m_page.findChild<QLineEdit*>(QStringLiteral("edtTime"));
}

QAlarmListItemView* PageHands::List(const char* szName) const
{
    return m_page.findChild<QAlarmListItemView*>(QLatin1String(szName));
}

VantaComponent::GroupTreeCtrl* PageHands::Tree() const
{
    return Widget("wndDevTree")->findChild<VantaComponent::GroupTreeCtrl*>();
}

QTreeView* PageHands::TreeView() const
{
    return ViewOf(Tree());
}

QTreeWidget* PageHands::InputTree() const
{
    return m_page.findChild<QTreeWidget*>(QStringLiteral("treeAlarmIn"));
}
