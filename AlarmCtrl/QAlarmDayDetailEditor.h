#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"
#include "platform/LXGUI/LXCustomDialog.h"

#include <QList>

#include <memory>
#include <optional>

namespace Ui {
class QAlarmDayDetailEditor;
}
class QAbstractButton;

/// The modal dialog behind a day bar's detail button: the day's regions as six rows of times, to the second,
/// and the days to which they are to be applied. Its user loads it, runs it with exec() and reads it when the
/// result is 1. User-interface thread only.
class QAlarmDayDetailEditor : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    explicit QAlarmDayDetailEditor(QWidget* parent = nullptr);
    ~QAlarmDayDetailEditor() override;

    /// Fills the first rows; seconds outside the day are shown as its first or last. A list of seven or more
    /// is not shown at all: the rows keep what they hold.
    void SetRegions(const AlarmDefenceTime_t& regions);
    /// The rows as at most six regions, ascending, overlapping and touching rows fused.
    void GetRegions(AlarmDefenceTime_t& regions) const;

    /// Bit d stands for day d, 0 is Sunday.
    void SetDayMask(int iDays);
    int GetDayMask() const;

public Q_SLOTS:
    /// Accepts good rows. A bad row is reported in a note and ends the dialog rejected, so that the day keeps
    /// what it had.
    void OnBtnOkClicked();
    void OnBtnCancelClicked();
    void OnChkAll();
    void OnUpdateChkAll();

private:
    /// A row as it is typed, possibly reversed; nothing when one of its edits is missing.
    std::optional<AlarmTimeRegion> Row(int iRow) const;
    bool ValidateRows() const;
    void ShowRowLabels();
    void ShowAccessibleNames();

    std::unique_ptr<Ui::QAlarmDayDetailEditor> m_pUi;
    QList<QAbstractButton*> m_days; ///< Sunday to Saturday
};
