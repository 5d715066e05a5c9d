#include "scheme_editor/ACSEventSchemeEditor.h"

#include "AlarmCtrl/PanelHint.h"
#include "AlarmCtrl/QAlarmListItemView.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXPushButton.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QRecoverSubWndBase.h"
#include "platform/SystemLibrary/QSystem.h"
#include "platform/UICommonMdl/CommonFun.h"
#include "platform/UICommonMdl/LXImpPushButton.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"
#include "plugin/host_services/HostServices.h"
#include "scheme_editor/ACSCopyModes.h"
#include "scheme_editor/ACSEventCopyToPopup.h"
#include "scheme_editor/AlarmInputTree.h"
#include "scheme_editor/CategoryColumn.h"
#include "scheme_editor/EditObserver.h"
#include "scheme_editor/EventCategories.h"
#include "scheme_editor/EventSourceLookup.h"
#include "scheme_editor/QNoFocusItemDelegate.h"
#include "scheme_editor/SchemeBook.h"
#include "scheme_editor/SchemeCopy.h"
#include "scheme_editor/SchemeForm.h"
#include "scheme_editor/TabLayout.h"
#include "ui_ACSEventSchemeEditor.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QStandardItem>

#include <algorithm>
#include <utility>

ACSEventSchemeEditor::ACSEventSchemeEditor(QWidget* parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::ACSEventSchemeEditor>())
    , m_book(std::make_unique<SchemeBook>(&QAlarmOutEditor::IsKeyOfSite))
{
    m_ui->setupUi(this);
    m_categories = std::make_unique<EventCategories>(std::array<EventCategory, 3>{
        {{m_ui->btnAlarm, m_ui->listAlarm, &AlarmSchemeCommon::ACSAlarmEvent},
         {m_ui->btnAbnormal, m_ui->listAbnormal, &AlarmSchemeCommon::ACSAbnormalEvent},
         {m_ui->btnNormal, m_ui->listNormal, &AlarmSchemeCommon::ACSNormalEvent}}});
    setObjectName(QStringLiteral("ACSEventSchemeEditor"));
    m_pHint = new PanelHint(m_ui->wndSetingsHeader, 0);
    UICommonMdl::CommonFun::SetStyleSheet(this, QStringLiteral("ACSEventConfigUI"), QString(), QString());
}

ACSEventSchemeEditor::~ACSEventSchemeEditor()
{
    if (m_pTree != nullptr) {
        m_pTree->disconnect(this);
        m_pTree->SetModel(nullptr);
    }
    delete m_pTreeModel;
}

std::array<ACSEventSchemeEditor::SettingsTab, 3> ACSEventSchemeEditor::SettingsTabs() const
{
    const std::array<QWidget*, 3> editors = m_form->Editors();
    return {{{m_ui->btnNotify, editors[0]}, {m_ui->btnAlarmOut, editors[1]}, {m_ui->btnDefTime, editors[2]}}};
}

void ACSEventSchemeEditor::Init(const LXPluginAPI::ManagerList* pManagers)
{
    if (m_bInitialized)
        return;
    m_bInitialized = true;
    m_pManagers = pManagers;
    m_selection.iAlarmInputType = EventSource::AlarmInputAlarmType;

    BuildDeviceTree();
    m_ui->treeAlarmIn->setItemDelegate(new QNoFocusItemDelegate(this));
    m_form = std::make_unique<SchemeForm>(m_ui->btnOpenStatus, m_ui->wndSubSetting);
    m_categories->FillLists();

    // The narrow first column holds until the viewport is resized for the first time.
    AlarmInputTree::Prepare(*m_ui->treeAlarmIn);
    m_ui->treeAlarmIn->setColumnWidth(0, m_ui->treeAlarmIn->viewport()->width() -
                                             AlarmInputTree::MarkColumnWidth);
    m_ui->treeAlarmIn->setColumnWidth(0, AlarmInputTree::MarkColumnWidth);
    m_ui->treeAlarmIn->viewport()->installEventFilter(this);

    connect(m_ui->buttonGroupType, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &ACSEventSchemeEditor::OnOptionBtnClicked);
    connect(m_ui->buttonGroupTab, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &ACSEventSchemeEditor::OnTabBtnClicked);
    connect(m_ui->btnOpenStatus, &QAbstractButton::toggled, this, &ACSEventSchemeEditor::OnOpenStatusChanged);
    connect(m_ui->btnSave, &QAbstractButton::clicked, this, &ACSEventSchemeEditor::OnSave);
    connect(m_ui->btnCopyTo, &QAbstractButton::clicked, this, &ACSEventSchemeEditor::OnCopyTo);

    OnOptionBtnClicked();
    OnTabBtnClicked();
    SelectSource(QString(), EventSourceLookup::CategoryNone);
    AlarmSchemeManager::Instance()->LoadAlarmInfo(&m_book->Schemes());
    BuildHistory();
}

const LXPluginAPI::ManagerList* ACSEventSchemeEditor::GetManagerList() const
{
    return m_pManagers;
}

void ACSEventSchemeEditor::ClearManagerList()
{
    m_pManagers = nullptr;
}

const AlarmInfoMap& ACSEventSchemeEditor::GetAlarmInfoMap() const
{
    return m_book->Schemes();
}

QString ACSEventSchemeEditor::GetEditedScheme() const
{
    return m_strEditedScheme;
}

void ACSEventSchemeEditor::BuildDeviceTree()
{
    VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    m_pTree = new VantaComponent::GroupTreeCtrl(m_ui->wndDevTree);
    auto* const pLayout = new QHBoxLayout(m_ui->wndDevTree);
    pLayout->setContentsMargins(1, 1, 1, 1);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pTree);

    m_pTree->SetDeviceManager(pManager);
    m_pTreeModel = new VantaModel::ACSGroupTreeModel(pManager, 1, this);
    m_pTreeModel->SetExpandInterface(HostServices::TreeExpansion());
    m_pTree->SetModel(m_pTreeModel);
    m_pTree->SetDragDropMode(0);
    m_pTree->HideNodeEmap(true);
    m_pTree->AddDeviceWhiteList(VantaLogic::DeviceTypeAccessControl);
    m_pTree->AddChannelWhiteList(VantaLogic::ChannelTypeDoor);
    m_pTree->EnableRemoveDevice(true);

    connect(m_pTree, &VantaComponent::GroupTreeCtrl::SignalClicked, this,
            &ACSEventSchemeEditor::OnGroupTreeFocusChanged);
    connect(m_pTree, &VantaComponent::GroupTreeCtrl::SignalSearchChanged, this,
            &ACSEventSchemeEditor::OnGroupTreeFocusChanged);
    connect(m_pTree, &VantaComponent::GroupTreeCtrl::SignalRemoveDevice, this,
            &ACSEventSchemeEditor::OnRemoveDevice);
}

void ACSEventSchemeEditor::OnGroupTreeFocusChanged()
{
    VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    if (pManager == nullptr)
        return;
    EventSourceLookup::Source source;
    const QStandardItem* const pItem = m_pTree.isNull() ? nullptr : m_pTree->GetSelectedItem();
    if (pItem != nullptr) {
        source = EventSourceLookup::SourceOfNode(*pManager, pItem->data(VantaModel::NodeIdRole).toLongLong(),
                                                 pItem->data(VantaModel::NodeKindRole).toInt());
    }
    SelectSource(source.strKey, source.iCategory);
}

void ACSEventSchemeEditor::SelectSource(const QString& strKey, int32_t iCategory)
{
    m_ui->wndOption->setEnabled(!strKey.isEmpty());
    m_ui->wndSettings->setEnabled(!strKey.isEmpty());
    if (strKey != m_selection.strSource) {
        StoreEditors();
        m_selection.strSource = strKey;
        m_selection.iAlarmType = -1;
        RebuildAlarmInputs(strKey);
        if (strKey.isEmpty()) {
            m_selection.strAlarmInput.clear();
            ShowScheme(AlarmInfo());
        } else {
            SwitchCategory(iCategory);
        }
    }
    UpdateSettingsEnabled();
}

void ACSEventSchemeEditor::RebuildAlarmInputs(const QString& strKey)
{
    VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    if (pManager == nullptr)
        AlarmInputTree::Clear(*m_ui->treeAlarmIn);
    else
        AlarmInputTree::Fill(*m_ui->treeAlarmIn, EventSourceLookup::AlarmInputsOf(*pManager, strKey));
}

void ACSEventSchemeEditor::SwitchCategory(int32_t iCategory)
{
    m_categories->SetButtonsVisible(false);
    m_ui->btnExternalAlarm->hide();
    if (iCategory == EventSourceLookup::CategoryDoor) {
        m_categories->SetButtonsVisible(true);
        m_ui->btnAlarm->click();
    } else if (iCategory == EventSourceLookup::CategoryDevice) {
        m_ui->btnExternalAlarm->show();
        m_ui->btnExternalAlarm->setCheckable(true);
        m_ui->btnExternalAlarm->click();
    }
}

void ACSEventSchemeEditor::OnOptionBtnClicked()
{
    CategoryColumn::Arrange(m_ui->gridLayout, m_ui->buttonGroupType->buttons(), m_ui->wndContainer);
    StoreEditors();
    QAbstractButton* const pChecked = m_ui->buttonGroupType->checkedButton();
    m_selection.bExternal = pChecked == m_ui->btnExternalAlarm;
    m_selection.strAlarmInput.clear();
    m_selection.iAlarmType = -1;
    m_ui->wndSettings->setEnabled(true);

    for (const EventCategory& category : *m_categories) {
        disconnect(category.pList, &QAlarmListItemView::SignalCurrentItemChanged, this, nullptr);
        const bool bShown = category.pButton == pChecked;
        category.pList->setVisible(bShown);
        if (bShown) {
            m_selection.iAlarmType = category.pList->GetCurrentType();
            connect(category.pList, &QAlarmListItemView::SignalCurrentItemChanged, this,
                    &ACSEventSchemeEditor::OnTypeSelectionChanged);
        }
    }
    disconnect(m_ui->treeAlarmIn, &QTreeWidget::currentItemChanged, this, nullptr);
    m_ui->treeAlarmIn->setVisible(m_selection.bExternal);
    if (m_selection.bExternal) {
        ChooseAlarmInput(AlarmInputTree::KeyOf(m_ui->treeAlarmIn->currentItem()));
        connect(m_ui->treeAlarmIn, &QTreeWidget::currentItemChanged, this,
                &ACSEventSchemeEditor::OnAlarmInChanged);
    }
    LoadCurrentScheme();
}

void ACSEventSchemeEditor::ChooseAlarmInput(const QString& strKey)
{
    m_ui->wndSettings->setEnabled(!strKey.isNull());
    m_selection.strAlarmInput = strKey;
}

void ACSEventSchemeEditor::OnTypeSelectionChanged(QString strName, int iType)
{
    Q_UNUSED(strName)
    if (iType == m_selection.iAlarmType)
        return;
    StoreEditors();
    m_selection.iAlarmType = iType;
    LoadCurrentScheme();
}

void ACSEventSchemeEditor::OnAlarmInChanged(QTreeWidgetItem* pCurrent, QTreeWidgetItem* pPrevious)
{
    if (pCurrent == pPrevious)
        return;
    StoreEditors();
    ChooseAlarmInput(AlarmInputTree::KeyOf(pCurrent));
    LoadCurrentScheme();
}

void ACSEventSchemeEditor::OnTabBtnClicked()
{
    StoreEditors();
    const std::array<SettingsTab, 3> tabs = SettingsTabs();
    QVector<QSize> sizes;
    for (const SettingsTab& tab : tabs)
        sizes.append(tab.pButton->size());
    const QVector<QPoint> positions = TabLayout::Positions(sizes, m_ui->wndTabContainer->height());
    for (std::size_t i = 0; i < tabs.size(); ++i)
        tabs[i].pButton->move(positions[static_cast<int>(i)]);
    std::for_each(tabs.crbegin(), tabs.crend(), [](const SettingsTab& tab) { tab.pButton->raise(); });
    // The focus must not wander out of the page with the editor that goes.
    if (m_ui->wndSubSetting->isAncestorOf(QApplication::focusWidget()))
        m_ui->btnOpenStatus->setFocus();
    for (const SettingsTab& tab : tabs)
        tab.pEditor->hide();
    for (const SettingsTab& tab : tabs) {
        if (tab.pButton->isChecked()) {
            tab.pButton->raise();
            tab.pEditor->show();
        }
    }
}

void ACSEventSchemeEditor::LoadCurrentScheme()
{
    m_ui->lblSettingType->setText(QCommon::GetAlarmNameByType(m_selection.ShownType()));
    const std::optional<AlarmSourceKey> key = m_selection.CurrentKey();
    if (key) {
        AlarmInfo info = m_book->Schemes()[*key];
        ShowScheme(info);
        // As the form reads it, which knows only what the site has.
        m_form->Store(info);
        m_held = HeldScheme{*key, info};
    } else if (!m_selection.HasEvent()) {
        ShowScheme(AlarmInfo());
    }
    UpdateSettingsEnabled();
}

void ACSEventSchemeEditor::ShowScheme(const AlarmInfo& info)
{
    RefreshMarks();
    m_held.reset();
    m_form->Show(info);
}

void ACSEventSchemeEditor::OnOpenStatusChanged(bool bOpen)
{
    Q_UNUSED(bOpen)
    SchemeSelection selection = m_selection;
    selection.bExternal = m_ui->btnExternalAlarm->isChecked();
    const std::optional<AlarmSourceKey> key = selection.CurrentKey();
    if (!key)
        return;
    m_book->Schemes()[*key].bOpen = m_ui->btnOpenStatus->isToggled();
    RefreshMarks();
    StoreEditors();
}

bool ACSEventSchemeEditor::IsSchemeOn(const QString& strSource, int32_t iType) const
{
    const std::optional<AlarmSourceKey> key = EventSource::SchemeKey(strSource, iType);
    return key && m_book->IsOn(*key);
}

void ACSEventSchemeEditor::RefreshMarks()
{
    const QAbstractButton* const pChecked = m_ui->buttonGroupType->checkedButton();
    m_categories->RefreshMarks(pChecked,
                               [this](int iType) { return IsSchemeOn(m_selection.strSource, iType); });
    if (pChecked == m_ui->btnExternalAlarm) {
        AlarmInputTree::RefreshMarks(*m_ui->treeAlarmIn, [this](const QString& strKey) {
            return IsSchemeOn(strKey, m_selection.iAlarmInputType);
        });
    }
}

// Nobody types into nothing: without a scheme to edit the settings are disabled, whatever led here.
void ACSEventSchemeEditor::UpdateSettingsEnabled()
{
    const std::optional<AlarmSourceKey> key = m_selection.CurrentKey();
    if (!key)
        m_ui->wndSettings->setEnabled(false);
    m_pHint->SetHint(HintText());

    // Before an event is chosen the place stands alone.
    const bool bInput = m_selection.bExternal && !m_selection.strAlarmInput.isEmpty();
    const QString& strSource = bInput ? m_selection.strAlarmInput : m_selection.strSource;
    QString strText = strSource.isEmpty()
                          ? tr("No event selected")
                          : EventSourceLookup::NameOf(HostServices::DeviceManager(), strSource);
    if (key)
        strText += QStringLiteral(" \u2013 ") + QCommon::GetAlarmNameByType(key->AlarmType);
    if (strText != m_strEditedScheme) {
        m_strEditedScheme = strText;
        Q_EMIT SignalEditedSchemeChanged(strText);
    }
}

// What to do when there is no scheme to edit; nothing when there is one.
QString ACSEventSchemeEditor::HintText() const
{
    if (m_selection.CurrentKey())
        return {};
    if (m_selection.strSource.isEmpty()) {
        const QStandardItem* const pItem = m_pTree.isNull() ? nullptr : m_pTree->GetSelectedItem();
        const int iKind = pItem ? pItem->data(VantaModel::NodeKindRole).toInt() : 0;
        return iKind == VantaModel::NodeKindDevice || iKind == VantaModel::NodeKindChannel
                   ? tr("This cannot have alarm schemes: it is disabled or of another type.")
                   : tr("Select a door or a device on the left to edit its alarm schemes.");
    }
    if (!m_selection.bExternal)
        return tr("Select an event to edit its alarm scheme.");
    return m_ui->treeAlarmIn->topLevelItemCount() == 0
               ? tr("This device has no alarm inputs.")
               : tr("Select an alarm input to edit its alarm scheme.");
}

void ACSEventSchemeEditor::OnSave()
{
    StoreEditors();
    if (AlarmSchemeManager::Instance()->SaveAlarmInfo(&m_book->Schemes()) == 0)
        m_book->MarkSaved();
}

void ACSEventSchemeEditor::OnCopyTo()
{
    int iMode = 0;
    if (!m_selection.strSource.isEmpty() && m_selection.iAlarmType >= 0) {
        VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
        if (pManager == nullptr || !EventSourceLookup::IsCopySource(*pManager, m_selection.strSource))
            return;
        iMode = ACSCopy::Door;
    } else if (!m_selection.strAlarmInput.isEmpty()) {
        iMode = ACSCopy::AlarmInput;
    } else {
        return;
    }
    StoreEditors();
    auto* const pPopup = new ACSEventCopyToPopup(iMode, m_ui->btnCopyTo);
    pPopup->SetSource(iMode == ACSCopy::Door ? m_selection.strSource : m_selection.strAlarmInput);
    connect(pPopup, &ACSEventCopyToPopup::SignalCopyTo, this, &ACSEventSchemeEditor::OnCopyToImp);
    pPopup->setModal(true);
    pPopup->show();
}

void ACSEventSchemeEditor::OnCopyToImp(QList<QString> keys)
{
    const auto* const pPopup = qobject_cast<ACSEventCopyToPopup*>(sender());
    if (pPopup == nullptr)
        return;
    const bool bDoor = pPopup->GetMode() == ACSCopy::Door;
    const QString strSource = bDoor ? m_selection.strSource : m_selection.strAlarmInput;
    SchemeStep step;
    step.place = m_selection;
    step.strText = SchemeActionText::OfCopy(SchemeCopy::Targets(strSource, keys).size());
    m_book->Schemes() = SchemeCopy::Copy(
        std::move(m_book->Schemes()), strSource, keys,
        bDoor ? SchemeCopy::DoorEventTypes() : SchemeCopy::AlarmInputEventTypes(), &step.change);
    RefreshMarks();
    m_book->RecordStep(step);
}

void ACSEventSchemeEditor::OnRemoveDevice(int64_t iDevUniqueId)
{
    if (m_held && EventSource::BelongsToDevice(m_held->key.strEventSource, iDevUniqueId))
        m_held.reset();
    m_book->RemoveDevice(iDevUniqueId);
    const bool bSourceGone = EventSource::FirstField(m_selection.strSource) == iDevUniqueId;
    const bool bInputGone = EventSource::FirstField(m_selection.strAlarmInput) == iDevUniqueId;
    if (bSourceGone)
        m_selection.strSource.clear();
    if (bInputGone)
        m_selection.strAlarmInput.clear();
    if (bSourceGone || bInputGone) {
        AlarmInputTree::Clear(*m_ui->treeAlarmIn);
        ShowScheme(AlarmInfo());
        UpdateSettingsEnabled();
    }
}

bool ACSEventSchemeEditor::eventFilter(QObject* watched, QEvent* event)
{
    const bool bFiltered = QFrame::eventFilter(watched, event);
    if (event->type() == QEvent::Resize && watched == m_ui->treeAlarmIn->viewport())
        AlarmInputTree::FitColumns(*m_ui->treeAlarmIn);
    return bFiltered;
}

void ACSEventSchemeEditor::customEvent(QEvent* event)
{
    if (event->type() != LXRecoverEvent::RecoverEventType)
        return;
    const auto* const pRecover = dynamic_cast<LXRecoverEvent*>(event);
    if (pRecover == nullptr || pRecover->GetMessageNumber() != LXRecoverEvent::MessageRecover ||
        QSystem::GetInstance()->GetState() != QSystem::StateClosing || pRecover->GetResultSlot() == nullptr) {
        return;
    }
    *pRecover->GetResultSlot() =
        std::make_unique<QRecoverSubWndBase>(pRecover->GetWindowNumber(), eModuleIndexACSEventConfig,
                                             QByteArrayLiteral("QRecoverSubWndBase"), !isHidden());
}

// Showing the page must not touch what it edits.
void ACSEventSchemeEditor::showEvent(QShowEvent* event)
{
    Q_UNUSED(event)
}
