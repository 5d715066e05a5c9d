#include "AlarmCtrl/QAlarmOutEditor.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "AlarmCtrl/DeviceTreePicker.h"
#include "AlarmCtrl/PanelHint.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaModel/GroupTreeModel.h"
#include "plugin/host_services/HostServices.h"
#include "ui_QAlarmOutEditor.h"

#include <QEvent>
#include <QIntValidator>
#include <QSet>
#include <QStandardItem>

namespace {

constexpr int s_iMinTime = 5;
constexpr int s_iMaxTime = 43200;
constexpr int s_iHintTop = 100; // below the rows of the panel

bool IsOutput(const QStandardItem& item)
{
    return DeviceTreePicker::IsChannelOfKind(item, VantaLogic::ChannelTypeAlarmOutput);
}

// The key under which an output item is picked.
QString KeyOf(const QStandardItem& item)
{
    return EventSource::AlarmOutput(DeviceTreePicker::NodeOf(item).iId);
}

// Whether the host knows the output and its device is enabled. An offline device is: its outputs can be
// configured.
bool IsConfigurable(int64_t iChannelId)
{
    const VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    VantaLogic::ChannelInfo channel;
    return pManager != nullptr && pManager->GetChannel(iChannelId, channel) == 0 &&
           pManager->IsDeviceEnabled(channel.iDeviceId);
}

bool IsAlarmOutput(int64_t iChannelId)
{
    const VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    VantaLogic::ChannelInfo channel;
    return pManager != nullptr && pManager->GetChannel(iChannelId, channel) == 0 &&
           channel.iChannelType == VantaLogic::ChannelTypeAlarmOutput;
}

// Seconds are typed in plain digits whatever the desktop's language: a separator that the validator lets
// through would be read back as 0.
QIntValidator* MakeTimeValidator(QObject* parent)
{
    auto* const pValidator = new QIntValidator(s_iMinTime, s_iMaxTime, parent);
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    pValidator->setLocale(plain);
    return pValidator;
}

} // namespace

QAlarmOutEditor::QAlarmOutEditor(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::QAlarmOutEditor>())
{
    m_ui->setupUi(this);

    VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    m_pPicker = new DeviceTreePicker(pManager, new VantaModel::GroupTreeModel(pManager, 0, m_ui->wndTree),
                                     m_ui->wndTree);
    VantaComponent::GroupTreeCtrl* const pTree = Tree();
    pTree->AddDeviceBlackList(VantaLogic::DeviceTypeVirtual);
    pTree->AddChannelWhiteList(VantaLogic::ChannelTypeAlarmOutput);
    for (const int kind : {1, 2, 3, 5, 6, 0})
        pTree->AddChannelBlackList(kind);
    connect(pTree, &VantaComponent::GroupTreeCtrl::SignalChecked, this,
            &QAlarmOutEditor::OnGroupTreeChkChanged);
    connect(pTree, &VantaComponent::GroupTreeCtrl::SignalClicked, this, &QAlarmOutEditor::OnGroupTreeClicked);
    connect(pTree, &VantaComponent::GroupTreeCtrl::SignalSearchChanged, this,
            &QAlarmOutEditor::OnSearchChanged);

    m_pTimeValidator = MakeTimeValidator(m_ui->edtTime);
    m_ui->edtTime->setValidator(m_pTimeValidator);
    m_ui->edtTime->setToolTip(tr("%1s - 43200s").arg(s_iMinTime));
    m_ui->edtTime->installEventFilter(this);
    connect(m_ui->btnAutoOpen, &LXGUI::LXSwitchButton::toggled, this, &QAlarmOutEditor::OnToolBtnClicked);
    connect(m_ui->edtTime, &QLineEdit::textEdited, this, &QAlarmOutEditor::OnTimeEdited);

    m_pHint = new PanelHint(m_ui->wndSetting, s_iHintTop);
    SetSettingEnabled(false);
}

QAlarmOutEditor::~QAlarmOutEditor() = default;

VantaComponent::GroupTreeCtrl* QAlarmOutEditor::Tree() const
{
    return m_pPicker->Tree();
}

int64_t QAlarmOutEditor::GetChannelIdFromKey(const QString& strKey)
{
    return EventSource::OutputChannelId(strKey);
}

bool QAlarmOutEditor::IsKeyOfSite(const QString& strKey)
{
    return IsAlarmOutput(GetChannelIdFromKey(strKey));
}

int QAlarmOutEditor::GetAlarmOutInfo(QList<AlarmLinkAlarmOut>& listAlarmOut)
{
    listAlarmOut.clear();
    for (auto it = m_mapLinks.cbegin(); it != m_mapLinks.cend(); ++it) {
        if (!IsKeyOfSite(it.key()))
            continue;
        listAlarmOut.append(it.value());
        listAlarmOut.last().strLinkAlarmID = it.key();
    }
    return 0;
}

void QAlarmOutEditor::SetAlarmOutInfo(const QList<AlarmLinkAlarmOut>& listAlarmOut)
{
    m_mapLinks.clear();
    for (const AlarmLinkAlarmOut& link : listAlarmOut)
        m_mapLinks.insert(link.strLinkAlarmID, link);
    RefreshCheckStates();
    if (const AlarmLinkAlarmOut* const pEntry = CurrentEntry())
        ShowEntry(*pEntry);
}

void QAlarmOutEditor::SetSettingEnabled(bool bEnable)
{
    m_ui->wndSetting->setEnabled(bEnable);
    if (bEnable)
        return;
    m_ui->btnAutoOpen->setToggle(false);
    m_ui->edtTime->clear();
    m_pHint->SetHint(tr("Tick an output in the tree and click it to see its settings here."));
}

// The picked output that the panel shows; null when none is current or it is not picked any more.
AlarmLinkAlarmOut* QAlarmOutEditor::CurrentEntry()
{
    if (m_strCurrentKey.isEmpty())
        return nullptr;
    const auto entry = m_mapLinks.find(m_strCurrentKey);
    return entry == m_mapLinks.end() ? nullptr : &entry.value();
}

void QAlarmOutEditor::ShowEntry(const AlarmLinkAlarmOut& entry)
{
    m_ui->btnAutoOpen->setToggle(entry.bAutoOpen);
    m_ui->edtTime->setText(QString::number(entry.Time));
    m_pHint->SetHint(QString());
}

void QAlarmOutEditor::OnGroupTreeClicked(const QModelIndex& index, int iNodeKind)
{
    Q_UNUSED(index)
    Q_UNUSED(iNodeKind)
    const QStandardItem* const pItem = Tree()->GetSelectedItem();
    m_strCurrentKey.clear();
    SetSettingEnabled(false);
    if (pItem == nullptr || !IsOutput(*pItem) || !IsConfigurable(DeviceTreePicker::NodeOf(*pItem).iId))
        return;
    const QString strKey = KeyOf(*pItem);
    const auto entry = m_mapLinks.constFind(strKey);
    if (entry == m_mapLinks.cend())
        return;
    SetSettingEnabled(true);
    m_strCurrentKey = strKey;
    ShowEntry(entry.value());
}

void QAlarmOutEditor::OnGroupTreeChkChanged(const QModelIndex& iIndex, bool bCheck)
{
    const DeviceTreePicker::CheckChange change = m_pPicker->FollowCheck(iIndex, bCheck);
    for (const QStandardItem* const pItem : change.checked) {
        if (!IsOutput(*pItem))
            continue;
        const QString strKey = KeyOf(*pItem);
        if (!IsConfigurable(DeviceTreePicker::NodeOf(*pItem).iId)) {
            m_mapLinks.remove(strKey);
        } else if (!m_mapLinks.contains(strKey)) {
            AlarmLinkAlarmOut fresh;
            fresh.strLinkAlarmID = strKey;
            m_mapLinks.insert(strKey, fresh);
        }
    }
    for (const QStandardItem* const pItem : change.unchecked) {
        if (IsOutput(*pItem))
            m_mapLinks.remove(KeyOf(*pItem));
    }
}

void QAlarmOutEditor::OnSearchChanged()
{
    RefreshCheckStates();
}

void QAlarmOutEditor::OnToolBtnClicked()
{
    if (AlarmLinkAlarmOut* const pEntry = CurrentEntry())
        pEntry->bAutoOpen = m_ui->btnAutoOpen->isToggled();
}

void QAlarmOutEditor::OnTimeEdited()
{
    // An over-long entry loses its last digit instead of being clamped: what was typed before it stays.
    const int typed = m_ui->edtTime->text().toInt();
    if (typed > s_iMaxTime)
        m_ui->edtTime->setText(QString::number(typed / 10));
    AlarmLinkAlarmOut* const pEntry = CurrentEntry();
    if (pEntry != nullptr && IsTimeAcceptable())
        pEntry->Time = m_ui->edtTime->text().toInt();
}

bool QAlarmOutEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->edtTime && event->type() == QEvent::FocusOut &&
        m_ui->edtTime->validator() != nullptr) {
        const AlarmLinkAlarmOut* const pEntry = CurrentEntry();
        if (pEntry != nullptr && !IsTimeAcceptable())
            m_ui->edtTime->setText(QString::number(pEntry->Time));
    }
    return QWidget::eventFilter(watched, event);
}

bool QAlarmOutEditor::IsTimeAcceptable() const
{
    QString strText = m_ui->edtTime->text();
    int position = 0;
    return m_pTimeValidator->validate(strText, position) == QValidator::Acceptable;
}

// Brings the tree's check boxes into line with the picked outputs and empties the panel. Outputs that are in
// the right state already are left alone, so that showing a scheme costs what differs from the one before.
void QAlarmOutEditor::RefreshCheckStates()
{
    SetSettingEnabled(false);

    QSet<int64_t> picked;
    picked.reserve(m_mapLinks.size());
    for (auto it = m_mapLinks.cbegin(); it != m_mapLinks.cend(); ++it) {
        // Only the very text that a pick writes ticks an output, not another spelling of the same number.
        const int64_t channelId = GetChannelIdFromKey(it.key());
        if (EventSource::AlarmOutput(channelId) == it.key())
            picked.insert(channelId);
    }

    VantaComponent::GroupTreeCtrl* const pTree = Tree();
    QVector<QStandardItem*> items;
    pTree->GetAllCheckedItem(items);
    pTree->GetAllUnCheckedItem(items);
    const QStandardItem* const pSelected = pTree->GetSelectedItem();
    for (QStandardItem* const pItem : qAsConst(items)) {
        if (!IsOutput(*pItem))
            continue;
        const bool wanted = picked.contains(DeviceTreePicker::NodeOf(*pItem).iId);
        if ((pItem->checkState() == Qt::Checked) != wanted)
            pTree->UpdateSelectedState(pItem, wanted);
        if (wanted && pItem == pSelected) {
            SetSettingEnabled(true);
            m_pHint->SetHint(tr("Click the output again to see its settings."));
        }
    }
}
