#include "client/insight/CoveragePage.h"
#include "ui_CoveragePage.h"

#include "scheme_services/evaluation/SchemeCheck.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace {

/// For the width of the columns; there may be very many.
constexpr int RowsMeasured = 200;

} // namespace

CoveragePage::CoveragePage(StoredSchemeView& schemes, QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::CoveragePage>())
    , m_schemes(schemes)
{
    ui->setupUi(this);
    ui->cmbDevice->addItem(tr("All devices"));
    ui->cmbCategory->addItem(tr("All categories"));
    for (const EventCategory category :
         {EventCategory::Alarm, EventCategory::Abnormal, EventCategory::Normal, EventCategory::AlarmInput}) {
        ui->cmbCategory->addItem(EventCategories::NameOf(category), static_cast<int>(category));
    }
    m_sorted.setSourceModel(&m_findings);
    m_sorted.setSortRole(FindingsModel::SortRole);
    ui->tblFindings->setModel(&m_sorted);
    ui->tblFindings->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->tblFindings->horizontalHeader()->setResizeContentsPrecision(RowsMeasured);
    ui->tblFindings->sortByColumn(FindingsModel::ColumnSeverity, Qt::AscendingOrder);
    for (QComboBox* const pFilter : {ui->cmbDevice, ui->cmbCategory}) {
        connect(pFilter, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &CoveragePage::ShowCoverage);
    }
    connect(ui->wndWeek, &WeekHeatMap::SignalPointedAt, this, [this](const QString& strText) {
        ui->lblPointedAt->setText(strText.isEmpty() ? m_strSummary : strText);
    });
    connect(ui->tblFindings, &QAbstractItemView::activated, this, &CoveragePage::OnFindingActivated);
    connect(&m_schemes, &StoredSchemeView::SignalRead, this, &CoveragePage::LookThrough);
    LookThrough();
}

CoveragePage::~CoveragePage() = default;

void CoveragePage::SetSite(const Site& site)
{
    m_site = SiteIndex(site);
    {
        const QSignalBlocker blocker(ui->cmbDevice);
        const QVariant picked = ui->cmbDevice->currentData();
        while (ui->cmbDevice->count() > 1) {
            ui->cmbDevice->removeItem(1);
        }
        for (const VantaLogic::DeviceInfo& device : site.devices) {
            ui->cmbDevice->addItem(device.strName, QVariant::fromValue<qlonglong>(device.iDeviceId));
        }
        const int iPicked = picked.isValid() ? ui->cmbDevice->findData(picked) : 0;
        ui->cmbDevice->setCurrentIndex(qMax(0, iPicked));
    }
    LookThrough();
}

WeekCoverage::Filter CoveragePage::Filter() const
{
    WeekCoverage::Filter filter;
    const QVariant device = ui->cmbDevice->currentData();
    if (device.isValid()) {
        filter.deviceId = device.toLongLong();
    }
    const QVariant category = ui->cmbCategory->currentData();
    if (category.isValid()) {
        filter.category = static_cast<EventCategory>(category.toInt());
    }
    return filter;
}

void CoveragePage::LookThrough()
{
    ShowCoverage();
    if (!m_schemes.Problem().isEmpty()) {
        ShowFindings({});
        ui->lblFindings->setText(m_schemes.Problem());
        return;
    }
    ui->lblFindings->setText(tr("Looking through the schemes…"));
    m_findingsJob.Start([this, schemes = m_schemes.Schemes(),
                         site = m_site](const BackgroundJob::Stop& stop) -> BackgroundJob::Result {
        const QVector<Finding> findings =
            SchemeCheck::Run(schemes, site, [&stop](int, int) { return !stop; });
        return [this, findings] { ShowFindings(findings); };
    });
}

void CoveragePage::ShowCoverage()
{
    m_coverageJob.Start([this, schemes = m_schemes.Schemes(),
                         filter = Filter()](const BackgroundJob::Stop&) -> BackgroundJob::Result {
        const WeekCoverage coverage = WeekCoverage::Of(schemes, filter);
        return [this, coverage] {
            m_strSummary =
                coverage.iEnabled == 0
                    ? tr("No scheme is switched on here; nothing is ever armed.")
                    : tr("%Ln scheme(s) switched on. The stronger the green of a half hour, the more "
                         "of them are armed.",
                         nullptr, coverage.iEnabled);
            ui->lblPointedAt->setText(m_strSummary);
            ui->wndWeek->SetCoverage(coverage);
        };
    });
}

void CoveragePage::ShowFindings(const QVector<Finding>& findings)
{
    m_findings.SetFindings(findings, m_site);
    QHeaderView* const pHeader = ui->tblFindings->horizontalHeader();
    ui->tblFindings->resizeColumnsToContents();
    for (const int iColumn : {FindingsModel::ColumnPlace, FindingsModel::ColumnText}) {
        pHeader->resizeSection(iColumn, qMin(ui->tblFindings->width() / 3, pHeader->sectionSize(iColumn)));
    }
    ui->lblFindings->setText(
        findings.isEmpty() ? tr("Nothing to complain of.")
                           : tr("Errors: %1, warnings: %2, notes: %3")
                                 .arg(QString::number(m_findings.CountOf(FindingSeverity::Error)),
                                      QString::number(m_findings.CountOf(FindingSeverity::Warning)),
                                      QString::number(m_findings.CountOf(FindingSeverity::Information))));
}

void CoveragePage::OnFindingActivated(const QModelIndex& index)
{
    const Finding& finding = m_findings.At(m_sorted.mapToSource(index).row());
    Q_EMIT SignalExplain(finding.key.strEventSource, finding.key.AlarmType);
}
