#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"
#include "AlarmCtrl/DefenceTime.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace Ui {
class QAlarmDayEditor;
}
class QMouseEvent;

/// One day of the week plan: a bar from 00:00:00 to 23:59:59 on which regions are painted and erased with the
/// mouse, and a button that opens their times in numbers. The pointer's last hover before the press decides:
/// over a region it erases, elsewhere it paints.
///
/// A bar only shows a drag; who listens to SignalEditReady commits it with ApplyEdit(). Its object name may
/// end in its day's digit ("editor1" is Monday), which the detail dialog ticks. User-interface thread only.
class QAlarmDayEditor : public QWidget
{
    Q_OBJECT

public:
    explicit QAlarmDayEditor(QWidget* parent = nullptr);
    ~QAlarmDayEditor() override;

    /// Any list is taken and shown as it is; see DefenceTime::Merge for what a drag then does.
    void SetDefenceTime(const AlarmDefenceTime_t& regions);
    void GetDefenceTime(AlarmDefenceTime_t& regions) const;

    /// The bar whose drag this one shows and commits instead of its own; null, or this bar itself, for its
    /// own. Not owned; a source that is destroyed is forgotten.
    void SetEditSource(QAlarmDayEditor* pSource);
    /// Whether ApplyEdit() would succeed. Shows the tip about the limit when that is why it would not.
    bool CheckEdit();
    /// Merges the drag into the regions, or leaves them when it is refused.
    void ApplyEdit();

    /// Asks for a new picture, when the drag of the edit source has moved.
    void UpdateDisplay();

    /// The day's name in the user's language, from which the accessible names are made.
    void SetDayName(const QString& strDay);

    /// Takes every event of the display: it is a drawing surface and nothing else.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The regions are to replace those of other days; bit d stands for day d, the own day is never among
    /// them.
    void SignalCopySettingToOthers(int iDays, AlarmDefenceTime_t regions);
    // The argument of these three is the emitting bar.
    void SignalEditStart(QAlarmDayEditor* pEditor);
    void SignalEditing(QAlarmDayEditor* pEditor);
    /// At release, while the drag can still be committed.
    void SignalEditReady(QAlarmDayEditor* pEditor);
    /// Internal: shows a tip once the current mouse event is over. The position is global.
    void SignalInternalShowTip(QPoint position, QString strText);

public Q_SLOTS:
    void OnDetail();
    void OnShowTip(QPoint position, QString strText);

protected:
    void changeEvent(QEvent* event) override;

private:
    void PaintDisplay();
    void OnDisplayPress(const QMouseEvent& event);
    void OnDisplayRelease(const QMouseEvent& event);
    void OnDisplayMove(const QMouseEvent& event);
    void Hover(int32_t iSeconds);
    int32_t SecondsAt(const QMouseEvent& event) const;
    void SetDisplayCursor(bool bErase);

    const QAlarmDayEditor& DragSource() const { return m_pEditSource ? *m_pEditSource : *this; }
    bool MergeEdit(bool bCheckOnly);
    void ShowAccessibleNames();

    std::unique_ptr<Ui::QAlarmDayEditor> m_pUi;
    QWidget* m_pDisplay = nullptr;
    AlarmDefenceTime_t m_regions;
    DefenceTime::Drag m_drag; ///< its erase flag is also what the last hover found
    bool m_bPressed = false;
    QColor m_regionColour;
    QColor m_gridColour;
    QPointer<QAlarmDayEditor> m_pEditSource;
    QString m_strDayName;
};
Q_DECLARE_METATYPE(QAlarmDayEditor*)
