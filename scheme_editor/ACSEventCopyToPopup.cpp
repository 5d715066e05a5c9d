#include "scheme_editor/ACSEventCopyToPopup.h"

#include "AlarmCtrl/DeviceTreePicker.h"
#include "AlarmCtrl/PopupPlacement.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"
#include "plugin/host_services/HostServices.h"
#include "scheme_editor/ACSCopyModes.h"
#include "scheme_editor/SchemeCopy.h"
#include "ui_ACSEventCopyToPopup.h"

#include <QPointer>

ACSEventCopyToPopup::ACSEventCopyToPopup(int iMode, QWidget* parent)
    : LXGUI::LXCustomDialog(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent, true)
    , m_ui(std::make_unique<Ui::ACSEventCopyToPopup>())
    , m_iMode(iMode)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(GetCentralWidget());
    SetTitle(tr("Copy to"));
    setFixedSize(222, 500);

    VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    auto* const pModel = new VantaModel::ACSGroupTreeModel(pManager, 1, m_ui->wndDevTree);
    pModel->SetExpandInterface(HostServices::TreeExpansion());
    m_pPicker = new DeviceTreePicker(pManager, pModel, m_ui->wndDevTree);
    m_pTicked = new TickedNodes(pModel, m_ui->wndDevTree);
    m_pPicker->Tree()->AddDeviceWhiteList(VantaLogic::DeviceTypeAccessControl);
    if (const CopyMode* const pMode = CopyMode::Find(ACSCopy::Modes(), iMode))
        m_pPicker->Offer(pMode->offer);

    connect(m_pPicker->Tree(), &VantaComponent::GroupTreeCtrl::SignalChecked, this,
            &ACSEventCopyToPopup::OnGroupTreeChkChanged);
    // A device that goes takes its targets along.
    connect(pModel, &VantaModel::GroupTreeModel::TreeUpdated, this, &ACSEventCopyToPopup::ShowTargets);
    connect(this, &LXCustomDialog::SignalOkButtonClicked, this, &ACSEventCopyToPopup::OnOk);
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this, &ACSEventCopyToPopup::OnCancel);
    PopupPlacement::PlaceAboveParent(*this);
}

ACSEventCopyToPopup::~ACSEventCopyToPopup() = default;

void ACSEventCopyToPopup::OnGroupTreeChkChanged(const QModelIndex& index, bool bChecked)
{
    m_pTicked->Apply(m_pPicker->FollowCheck(index, bChecked));
    ShowTargets();
}

void ACSEventCopyToPopup::SetSource(const QString& strSource)
{
    m_strSource = strSource;
    ShowTargets();
}

QList<QString> ACSEventCopyToPopup::TickedKeys() const
{
    const CopyMode* const pMode = CopyMode::Find(ACSCopy::Modes(), m_iMode);
    const VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    return pMode != nullptr && pManager != nullptr ? pMode->SourceKeys(m_pTicked->Nodes(), *pManager)
                                                   : QList<QString>();
}

void ACSEventCopyToPopup::ShowTargets()
{
    const int iTargets = SchemeCopy::Targets(m_strSource, TickedKeys()).size();
    if (iTargets == 0)
        SetTitle(tr("Copy to"));
    else
        SetTitle(m_iMode == ACSCopy::Door ? tr("Copy to %Ln Door(s)", nullptr, iTargets)
                                          : tr("Copy to %Ln Alarm Input(s)", nullptr, iTargets));
}

void ACSEventCopyToPopup::OnOk()
{
    const QPointer<ACSEventCopyToPopup> guard(this); // whoever is told may close the page and this with it
    const QList<QString> listKeys = TickedKeys();
    if (!listKeys.isEmpty())
        Q_EMIT SignalCopyTo(listKeys);
    if (guard)
        accept();
}

void ACSEventCopyToPopup::OnCancel()
{
    close();
}
