#include "client/SiteImportDialog.h"
#include "ui_SiteImportDialog.h"

#include "client/SiteImportModel.h"
#include "platform/LXGUI/Theme.h"

#include <QDir>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int RoomForNumber = 64; // pixels, a line number of six digits
constexpr int RoomForKind = 96;

} // namespace

SiteImportDialog::SiteImportDialog(const QString& strFile, const SiteImportPlan& plan, QWidget* parent)
    : LXCustomDialog(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent)
    , ui(std::make_unique<Ui::SiteImportDialog>())
{
    setObjectName(QStringLiteral("SiteImportDialog"));
    ui->setupUi(GetCentralWidget());
    SetTitle(tr("Import a site"));
    ui->lblFile->setText(QDir::toNativeSeparators(strFile));
    ui->lblSummary->setText(Summary(plan));
    if (!plan.IsSound()) {
        ui->lblSummary->setStyleSheet(
            LXGUI::Theme::Current().Resolve(QStringLiteral("QLabel { color: @danger; }")));
    }
    ui->lblRemoval->setStyleSheet(
        LXGUI::Theme::Current().Resolve(QStringLiteral("QLabel { color: @warning; }")));
    ui->lblRemoval->setVisible(RemovesDevices(plan));
    auto* pModel = new SiteImportModel(plan, this);
    ui->viewLines->setModel(pModel);
    ui->viewLines->setVisible(pModel->rowCount() > 0);
    ui->viewLines->header()->resizeSection(SiteImportModel::ColumnLine, RoomForNumber);
    ui->viewLines->header()->resizeSection(SiteImportModel::ColumnWhat, RoomForKind);
    QPushButton* pOk = GetButton(QDialogButtonBox::Ok);
    pOk->setText(tr("Import"));
    pOk->setEnabled(plan.IsSound() && !plan.difference.IsEmpty());
    connect(this, &LXCustomDialog::SignalOkButtonClicked, this, [this] { done(Accepted); });
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this, [this] { done(Rejected); });
}

SiteImportDialog::~SiteImportDialog() = default;

QString SiteImportDialog::Summary(const SiteImportPlan& plan)
{
    if (plan.IsSound()) {
        return plan.difference.Summary();
    }
    const int iProblems = static_cast<int>(plan.problems.list.size()) + plan.problems.iFurther;
    return tr("%n problem(s): correct the file and import it again. Nothing has been changed.", nullptr,
              iProblems);
}

bool SiteImportDialog::RemovesDevices(const SiteImportPlan& plan)
{
    const auto& changes = plan.difference.changes;
    return std::any_of(changes.cbegin(), changes.cend(), [](const SiteChange& change) {
        return change.eKind == SiteChange::Kind::Removed && change.eRecord != SiteTableFields::Record::Group;
    });
}
