#pragma once

#include "client/store/SchemeConflict.h"
#include "platform/LXGUI/LXCustomDialog.h"

#include <memory>

namespace Ui {
class SchemeConflictDialog;
}

/// Asks what to do about schemes that another program has changed. Closing it is no choice: nothing is saved.
class SchemeConflictDialog : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    explicit SchemeConflictDialog(const SchemeConflict& conflict, QWidget* parent = nullptr);
    ~SchemeConflictDialog() override;

    SchemeConflictAnswer Answer() const { return m_eAnswer; }

private:
    void Choose(SchemeConflictAnswer eAnswer);

    std::unique_ptr<Ui::SchemeConflictDialog> ui;
    SchemeConflictAnswer m_eAnswer = SchemeConflictAnswer::Cancel;
};
