#include "AlarmCtrl/QAlarmCopyToPopup.h"

#include "AlarmCtrl/AlarmCopyModes.h"
#include "AlarmCtrl/DeviceTreePicker.h"
#include "AlarmCtrl/PopupPlacement.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/GroupTreeModel.h"
#include "plugin/host_services/HostServices.h"
#include "ui_QAlarmCopyToPopup.h"

#include <QPointer>

QAlarmCopyToPopup::QAlarmCopyToPopup(int iMode, QWidget* parent)
    : LXGUI::LXCustomDialog(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent, true)
    , m_ui(std::make_unique<Ui::QAlarmCopyToPopup>())
    , m_iMode(iMode)
{
    m_ui->setupUi(GetCentralWidget());
    SetTitle(tr("Copy to"));
    setFixedSize(222, 500);

    VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    auto* const pModel = new VantaModel::GroupTreeModel(pManager, 0, m_ui->wndDevTree);
    m_pPicker = new DeviceTreePicker(pManager, pModel, m_ui->wndDevTree);
    m_pTicked = new TickedNodes(pModel, m_ui->wndDevTree);
    if (const CopyMode* const pMode = CopyMode::Find(AlarmCopyModes(), iMode))
        m_pPicker->Offer(pMode->offer);

    connect(m_pPicker->Tree(), &VantaComponent::GroupTreeCtrl::SignalChecked, this,
            &QAlarmCopyToPopup::OnGroupTreeChkChanged);
    // A device that goes takes its targets along.
    connect(pModel, &VantaModel::GroupTreeModel::TreeUpdated, this, &QAlarmCopyToPopup::ShowTargets);
    connect(this, &LXCustomDialog::SignalOkButtonClicked, this, &QAlarmCopyToPopup::OnOk);
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this, &QAlarmCopyToPopup::OnCancel);
    PopupPlacement::PlaceAboveParent(*this);
}

QAlarmCopyToPopup::~QAlarmCopyToPopup() = default;

void QAlarmCopyToPopup::OnGroupTreeChkChanged(const QModelIndex& index, bool bChecked)
{
    m_pTicked->Apply(m_pPicker->FollowCheck(index, bChecked));
    ShowTargets();
}

QList<QString> QAlarmCopyToPopup::TickedKeys() const
{
    const CopyMode* const pMode = CopyMode::Find(AlarmCopyModes(), m_iMode);
    const VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    return pMode != nullptr && pManager != nullptr ? pMode->SourceKeys(m_pTicked->Nodes(), *pManager)
                                                   : QList<QString>();
}

void QAlarmCopyToPopup::ShowTargets()
{
    const int iTargets = TickedKeys().size();
    SetTitle(iTargets == 0 ? tr("Copy to") : tr("Copy to %Ln Target(s)", nullptr, iTargets));
}

void QAlarmCopyToPopup::OnOk()
{
    const QPointer<QAlarmCopyToPopup> guard(this); // whoever is told may close the page and this with it
    const QList<QString> listKeys = TickedKeys();
    if (!listKeys.isEmpty())
        Q_EMIT SignalCopyTo(listKeys);
    if (guard)
        accept();
}

void QAlarmCopyToPopup::OnCancel()
{
    close();
}
