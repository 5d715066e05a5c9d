#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ACSEventNotifyEditor;
}

/// The "Notify" tab of the scheme page: alarm sound and mail. Mail can only be switched on while the host's
/// mail settings are usable; otherwise the editor offers to open them.
class ACSEventNotifyEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ACSEventNotifyEditor(QWidget* parent = nullptr);
    ~ACSEventNotifyEditor() override;

    void SetNotifyInfo(const AlarmNotifyInfo& notify);
    /// Sets sound and mail and leaves bEmapTwinkle as it is; always 0.
    int GetNotifyInfo(AlarmNotifyInfo& notify) const;
    /// Hides the mail row, or shows it again.
    void SetSimpleMode(bool bHide);

public Q_SLOTS:
    void OnOpenEmail();

private:
    std::unique_ptr<Ui::ACSEventNotifyEditor> m_ui;
};
