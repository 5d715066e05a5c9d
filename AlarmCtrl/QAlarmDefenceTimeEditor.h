#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <QList>
#include <QMap>
#include <QWidget>

#include <memory>

namespace Ui {
class QAlarmDefenceTimeEditor;
}
class QAlarmDayEditor;
class QAlarmDayItem;
class QPushButton;

/// The week plan: seven day bars, Sunday to Saturday, under one hour scale, each with a lock. Locked days are
/// edited together: a drag on one shows on all of them and is committed to all or to none. The locks belong
/// to the editor, not to the plan: loading another plan leaves them. Tells nobody that the plan changed; its
/// owner reads it back. User-interface thread only.
class QAlarmDefenceTimeEditor : public QWidget
{
    Q_OBJECT

public:
    explicit QAlarmDefenceTimeEditor(QWidget* parent = nullptr);
    ~QAlarmDefenceTimeEditor() override;

    /// `pDays` points to seven days, Sunday first (AlarmWeek::data()); null does nothing.
    void SetDefenceTime(const AlarmDefenceTime_t* pDays);
    /// Fills seven days; -1 for null, else 0.
    int GetDefenceTime(AlarmDefenceTime_t* pDays) const;

    /// Follows the first bar with the hour scale; never takes an event.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Bit d of `iDays` gives day d the regions, locked or not; bits without a day are ignored.
    void OnCopySettingToOthers(int iDays, AlarmDefenceTime_t regions);
    void OnEditStart(QAlarmDayEditor* pEditor);
    void OnEditing(QAlarmDayEditor* pEditor);
    void OnEditReady(QAlarmDayEditor* pEditor);
    void OnBtnClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QAlarmDayEditor* FindEditor(int iDay) const;
    bool IsLocked(QAlarmDayEditor* pEditor) const;
    QList<QAlarmDayEditor*> LockedEditors() const; ///< in the order of the map
    void ConnectDay(QAlarmDayEditor* pEditor, QPushButton* pLock);
    void PositionScale();
    void ShowAccessibleNames();

    std::unique_ptr<Ui::QAlarmDefenceTimeEditor> m_pUi;
    QAlarmDayItem* m_pScale;
    QMap<QAlarmDayEditor*, QPushButton*> m_locks; ///< by the bars' addresses
};
