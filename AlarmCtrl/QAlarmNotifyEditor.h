#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QWidget>

#include <memory>

namespace Ui {
class QAlarmNotifyEditor;
}

/// Three switches for how a scheme notifies the operator, without mail prompts or rights checks.
/// User-interface thread only.
class QAlarmNotifyEditor : public QWidget
{
    Q_OBJECT

public:
    explicit QAlarmNotifyEditor(QWidget* parent = nullptr);
    ~QAlarmNotifyEditor() override;

    /// The three switches' states, hidden ones included. Always 0.
    int GetNotifyInfo(AlarmNotifyInfo& notify) const;
    void SetNotifyInfo(const AlarmNotifyInfo& notify);
    /// True leaves the alarm sound only; hidden switches keep their states.
    void SetSimpleMode(bool bHide);

private Q_SLOTS:
    /// Reached on every change of the mail switch. Kept for pages that derive their own behaviour from it;
    /// this editor asks for no mail settings.
    void OnOpenEmail();

private:
    std::unique_ptr<Ui::QAlarmNotifyEditor> m_ui;
};
