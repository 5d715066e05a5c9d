#include "AlarmCtrl/QAlarmDayDetailEditor.h"

#include "AlarmCtrl/DefenceTime.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/SystemLibrary/QSystem.h"
#include "ui_QAlarmDayDetailEditor.h"

#include <QDialogButtonBox>
#include <QTime>

#include <algorithm>

namespace {

constexpr int RowCount = DefenceTime::MaxRegions;

QString BeginName()
{
    return QStringLiteral("timeEditBegin%1");
}

QString EndName()
{
    return QStringLiteral("timeEditEnd%1");
}

const QTime& Midnight()
{
    static const QTime midnight(0, 0);
    return midnight;
}

} // namespace

QAlarmDayDetailEditor::QAlarmDayDetailEditor(QWidget* parent)
    : LXGUI::LXCustomDialog(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent)
    , m_pUi(std::make_unique<Ui::QAlarmDayDetailEditor>())
{
    GetCentralWidget()->setObjectName(QStringLiteral("QAlarmDayDetailEditor"));
    m_pUi->setupUi(GetCentralWidget());
    // A small screen would otherwise squeeze the rows until their times are cut.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_days = {m_pUi->chkSunday,   m_pUi->chkMonday, m_pUi->chkTuesday, m_pUi->chkWednesday,
              m_pUi->chkThursday, m_pUi->chkFriday, m_pUi->chkSaturday};
    connect(this, &LXCustomDialog::SignalOkButtonClicked, this, &QAlarmDayDetailEditor::OnBtnOkClicked);
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this,
            &QAlarmDayDetailEditor::OnBtnCancelClicked);
    connect(m_pUi->chkAll, &QAbstractButton::clicked, this, &QAlarmDayDetailEditor::OnChkAll);
    for (const QAbstractButton* pDay : qAsConst(m_days)) {
        connect(pDay, &QAbstractButton::clicked, this, &QAlarmDayDetailEditor::OnUpdateChkAll);
    }
    ShowRowLabels();
    ShowAccessibleNames();
}

QAlarmDayDetailEditor::~QAlarmDayDetailEditor() = default;

void QAlarmDayDetailEditor::SetRegions(const AlarmDefenceTime_t& regions)
{
    if (regions.size() > RowCount) {
        return;
    }
    const auto edits = findChildren<QTimeEdit*>();
    for (QTimeEdit* pEdit : edits) {
        const QString strName = pEdit->objectName();
        const int iRegion = strName.isEmpty() ? -1 : strName.back().digitValue() - 1;
        if (iRegion < 0 || iRegion >= regions.size()) {
            continue;
        }
        const bool bBegin = strName.chopped(1) == QLatin1String("timeEditBegin");
        const int32_t iSeconds = bBegin ? regions[iRegion].Begin : regions[iRegion].End;
        // Time arithmetic would wrap at midnight and show a late end as an early one.
        pEdit->setTime(Midnight().addSecs(DefenceTime::ClampToDay(iSeconds)));
    }
}

void QAlarmDayDetailEditor::GetRegions(AlarmDefenceTime_t& regions) const
{
    QVector<AlarmTimeRegion> rows;
    for (int iRow = 1; iRow <= RowCount; ++iRow) {
        if (const auto row = Row(iRow)) {
            rows.append(*row);
        }
    }
    regions = DefenceTime::FuseRows(rows);
}

void QAlarmDayDetailEditor::SetDayMask(int iDays)
{
    for (int iDay = 0; iDay < m_days.size(); ++iDay) {
        m_days[iDay]->setChecked((iDays & DefenceTime::DayBit(iDay)) != 0);
    }
    OnUpdateChkAll();
}

int QAlarmDayDetailEditor::GetDayMask() const
{
    int iDays = 0;
    for (int iDay = 0; iDay < m_days.size(); ++iDay) {
        iDays |= m_days[iDay]->isChecked() ? DefenceTime::DayBit(iDay) : 0;
    }
    return iDays;
}

void QAlarmDayDetailEditor::OnBtnOkClicked()
{
    if (ValidateRows()) {
        accept();
    } else {
        reject();
    }
}

void QAlarmDayDetailEditor::OnBtnCancelClicked()
{
    close();
}

void QAlarmDayDetailEditor::OnChkAll()
{
    if (m_pUi->chkAll->checkState() == Qt::PartiallyChecked) {
        m_pUi->chkAll->setCheckState(Qt::Checked);
    }
    const bool bAll = m_pUi->chkAll->isChecked();
    for (QAbstractButton* pDay : qAsConst(m_days)) {
        pDay->setChecked(bAll);
    }
}

void QAlarmDayDetailEditor::OnUpdateChkAll()
{
    switch (GetDayMask()) {
    case 0:
        m_pUi->chkAll->setCheckState(Qt::Unchecked);
        break;
    case DefenceTime::AllDays:
        m_pUi->chkAll->setCheckState(Qt::Checked);
        break;
    default:
        m_pUi->chkAll->setCheckState(Qt::PartiallyChecked);
        break;
    }
}

std::optional<AlarmTimeRegion> QAlarmDayDetailEditor::Row(int iRow) const
{
    const auto* pBegin = findChild<QTimeEdit*>(BeginName().arg(iRow));
    const auto* pEnd = findChild<QTimeEdit*>(EndName().arg(iRow));
    if (pBegin == nullptr || pEnd == nullptr) {
        return std::nullopt;
    }
    return AlarmTimeRegion{Midnight().secsTo(pBegin->time()), Midnight().secsTo(pEnd->time())};
}

bool QAlarmDayDetailEditor::ValidateRows() const
{
    QVector<AlarmTimeRegion> rows;
    for (int iRow = 1; iRow <= RowCount; ++iRow) {
        const auto row = Row(iRow);
        if (!row) {
            break;
        }
        rows.append(*row);
    }
    const int iBadRow = DefenceTime::FirstReversedRow(rows);
    if (iBadRow != 0) {
        LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->AddTextNotification(
            tr("At %1 row, the end time is earlier than the start time.").arg(iBadRow),
            LXGUI::LXMessageNotify::Warning);
    }
    return iBadRow == 0 && rows.size() == RowCount;
}

void QAlarmDayDetailEditor::ShowRowLabels()
{
    QString strWord = tr("Section");
    if (QSystem::GetInstance()->GetLanguage() != QLatin1String("zh_cn")) {
        strWord += QLatin1Char(' ');
    }
    const QList<QLabel*> labels{m_pUi->label_1, m_pUi->label_2, m_pUi->label_3,
                                m_pUi->label_4, m_pUi->label_5, m_pUi->label_6};
    for (int i = 0; i < labels.size(); ++i) {
        labels[i]->setText(QStringLiteral("%1%2").arg(strWord, QString::number(i + 1)));
    }
}

void QAlarmDayDetailEditor::ShowAccessibleNames()
{
    for (int iRow = 1; iRow <= RowCount; ++iRow) {
        if (auto* pBegin = findChild<QTimeEdit*>(BeginName().arg(iRow))) {
            pBegin->setAccessibleName(tr("Region %1 begin").arg(iRow));
        }
        if (auto* pEnd = findChild<QTimeEdit*>(EndName().arg(iRow))) {
            pEnd->setAccessibleName(tr("Region %1 end").arg(iRow));
        }
    }
}
