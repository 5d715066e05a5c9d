#pragma once

#include "client/store/SchemeDamage.h"
#include "platform/LXGUI/LXCustomDialog.h"

#include <memory>

namespace Ui {
class SchemeDamageDialog;
}

/// Asks what to do about a damaged scheme database. Closing it is no choice: the file is left alone.
class SchemeDamageDialog : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    explicit SchemeDamageDialog(const SchemeDamage& damage, QWidget* parent = nullptr);
    ~SchemeDamageDialog() override;

    SchemeDamageAnswer Answer() const { return m_eAnswer; }
    /// Shows the dialog and returns what was chosen; to leave the file alone when the parent dies meanwhile.
    /// Runs an event loop: guard what you come back to.
    static SchemeDamageAnswer Ask(const SchemeDamage& damage, QWidget* parent);

private:
    void Choose(SchemeDamageAnswer eAnswer);

    std::unique_ptr<Ui::SchemeDamageDialog> ui;
    SchemeDamageAnswer m_eAnswer = SchemeDamageAnswer::LeaveAlone;
};
