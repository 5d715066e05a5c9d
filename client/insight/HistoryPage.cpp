#include "client/insight/HistoryPage.h"
#include "ui_HistoryPage.h"

#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/SchemeHistoryReader.h"
#include "platform/LXGUI/LXMessageBox.h"
#include "scheme_services/evaluation/SchemeWords.h"

#include <QHeaderView>
#include <QLocale>
#include <QPointer>

using LXGUI::LXMessageBox;

namespace {

constexpr int StepsAtOnce = 200;
/// A step may change a million schemes; so many of them are listed.
constexpr int SchemesListed = 1000;

} // namespace

HistoryPage::HistoryPage(const QString& strSchemeFile, AlarmSchemeStoreBackend& store, QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::HistoryPage>())
    , m_strFile(strSchemeFile)
    , m_store(store)
{
    ui->setupUi(this);
    ui->tblSteps->setModel(&m_model);
    ui->tblSteps->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(ui->tblSteps->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &HistoryPage::OnStepChanged);
    connect(&m_model, &HistoryModel::SignalMoreWanted, this, &HistoryPage::ReadMore);
    connect(ui->btnTakeBack, &QPushButton::clicked, this, &HistoryPage::OnTakeBack);
    connect(&m_store, &AlarmSchemeStoreBackend::SignalReverted, this,
            [this](qint64 iEntry, const QList<AlarmSourceKey>& changedSince) {
                m_iReverted = iEntry;
                m_left = changedSince;
            });
    connect(&m_store, &AlarmSchemeStoreBackend::SignalSavingChanged, this, [this](bool bSaving) {
        if (!bSaving) {
            Refresh();
        }
    });
    OnStepChanged();
}

HistoryPage::~HistoryPage() = default;

void HistoryPage::Refresh()
{
    m_entriesJob.Start([this, strFile = m_strFile](const BackgroundJob::Stop&) -> BackgroundJob::Result {
        SchemeHistoryReader reader(strFile);
        const auto entries = reader.Entries(StepsAtOnce);
        const QString strProblem = reader.Problem();
        return [this, entries, strProblem] {
            const QModelIndex current = ui->tblSteps->currentIndex();
            const qint64 iCurrent = current.isValid() ? m_model.At(current.row()).iId : 0;
            m_model.SetEntries(entries ? *entries : QList<SchemeHistoryEntry>(),
                               entries && entries->size() == StepsAtOnce);
            ui->lblHeading->setText(entries ? tr("What was changed, when and by whom?") : strProblem);
            ui->tblSteps->resizeColumnsToContents();
            const int iRow = m_model.RowOf(iCurrent);
            if (iRow >= 0) {
                ui->tblSteps->selectRow(iRow);
            }
            OnStepChanged();
        };
    });
}

void HistoryPage::ReadMore(qint64 iBefore)
{
    m_entriesJob.Start(
        [this, iBefore, strFile = m_strFile](const BackgroundJob::Stop&) -> BackgroundJob::Result {
            const auto entries = SchemeHistoryReader(strFile).Entries(StepsAtOnce, iBefore);
            return [this, entries] {
                m_model.Append(entries ? *entries : QList<SchemeHistoryEntry>(),
                               entries && entries->size() == StepsAtOnce);
            };
        });
}

void HistoryPage::OnStepChanged()
{
    const QModelIndexList rows = ui->tblSteps->selectionModel()->selectedRows();
    ui->btnTakeBack->setEnabled(!rows.isEmpty());
    ui->trvChanges->clear();
    if (rows.isEmpty()) {
        ui->lblChanges->setText(m_model.rowCount() == 0 ? QString()
                                                        : tr("Pick a step to see what it has changed."));
        return;
    }
    const SchemeHistoryEntry& entry = m_model.At(rows.constFirst().row());
    // The beginning is nothing that somebody did.
    ui->btnTakeBack->setEnabled(entry.eKind != SchemeHistoryKind::Start);
    ui->lblChanges->setText(tr("Reading…"));
    m_changesJob.Start(
        [this, iId = entry.iId, strFile = m_strFile](const BackgroundJob::Stop&) -> BackgroundJob::Result {
            SchemeHistoryReader reader(strFile);
            const auto changes = reader.Changes(iId);
            const QString strProblem = reader.Problem();
            return [this, iId, changes, strProblem] {
                if (changes) {
                    ShowChanges(iId, *changes);
                } else {
                    ui->lblChanges->setText(strProblem);
                }
            };
        });
}

void HistoryPage::ShowChanges(qint64 iEntry, const SchemeHistoryChanges& changes)
{
    ui->lblChanges->setText(
        changes.size() <= SchemesListed
            ? tr("%Ln scheme(s) changed:", nullptr, changes.size())
            : tr("%1 schemes changed, the first %2 of them:")
                  .arg(QLocale().toString(changes.size()), QLocale().toString(SchemesListed)));
    QList<QTreeWidgetItem*> items;
    if (auto* const pLeft = LeftAlone(iEntry)) {
        items += pLeft;
    }
    for (int iChange = 0; iChange < qMin(changes.size(), SchemesListed); ++iChange) {
        const SchemeHistoryChange& change = changes.at(iChange);
        const QString strName = SchemeWords::Name(change.key, m_site);
        QStringList lines;
        if (!change.after) {
            lines += tr("deleted");
        } else {
            if (!change.before) {
                lines += tr("new");
            }
            lines += SchemeWords::Differences(change.before.value_or(AlarmInfo()), *change.after, m_site);
        }
        auto* const pItem = new QTreeWidgetItem(
            {tr("%1: %2", "scheme, what has changed").arg(strName, lines.join(QStringLiteral("; ")))});
        for (const QString& strLine : qAsConst(lines)) {
            new QTreeWidgetItem(pItem, {strLine});
        }
        items += pItem;
    }
    ui->trvChanges->clear();
    ui->trvChanges->addTopLevelItems(items);
    if (iEntry == m_iReverted && !m_left.isEmpty()) {
        ui->trvChanges->expandItem(ui->trvChanges->topLevelItem(0));
    }
}

QTreeWidgetItem* HistoryPage::LeftAlone(qint64 iEntry) const
{
    if (iEntry != m_iReverted || m_left.isEmpty()) {
        return nullptr;
    }
    auto* const pItem = new QTreeWidgetItem(
        {tr("%Ln scheme(s) were not taken back, because they have changed since:", nullptr, m_left.size())});
    const QList<AlarmSourceKey> listed = m_left.mid(0, SchemesListed);
    for (const AlarmSourceKey& key : listed) {
        new QTreeWidgetItem(pItem, {SchemeWords::Name(key, m_site)});
    }
    return pItem;
}

void HistoryPage::OnTakeBack()
{
    const QModelIndexList rows = ui->tblSteps->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        return;
    }
    const SchemeHistoryEntry entry = m_model.At(rows.constFirst().row());
    const QString strWhen = entry.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const QPointer<HistoryPage> self(this);
    const int iAnswer =
        LXMessageBox::ShowWarning(this, tr("Take a step back"),
                                  tr("Make the %Ln scheme(s) of the step of %1 what they were "
                                     "before it? Schemes that have changed since "
                                     "stay as they are. The pages are loaded anew.",
                                     nullptr, entry.iSchemes)
                                      .arg(strWhen),
                                  LXMessageBox::ButtonOk | LXMessageBox::ButtonNo);
    if (!self.isNull() && iAnswer == LXMessageBox::ButtonOk) {
        m_store.Revert(entry.iId, strWhen);
    }
}
