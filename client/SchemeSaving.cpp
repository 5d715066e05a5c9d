#include "client/SchemeSaving.h"

#include "client/MainWindow.h"
#include "client/SchemeConflictDialog.h"
#include "client/SchemeDamageDialog.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/LXGUI/LXMessageBox.h"
#include "platform/LXGUI/LXMessageNotify.h"

using LXGUI::LXMessageBox;
using LXGUI::LXMessageNotify;

SchemeSaving::SchemeSaving(AlarmSchemeStoreBackend& store, MainWindow& window, QObject* parent)
    : QObject(parent)
    , m_store(&store)
    , m_window(&window)
{
    const QPointer<SchemeSaving> self(this);
    store.SetOutcomeHandler([self](const SchemeStoreOutcome& outcome) {
        if (!self.isNull()) {
            self->OnOutcome(outcome);
        }
    });
    store.SetConflictHandler([self](const SchemeConflict& conflict) {
        return self.isNull() ? SchemeConflictAnswer::Cancel : self->Ask(conflict);
    });
    store.SetReloadHandler([self] {
        if (!self.isNull()) {
            // Not from here: the page that goes may be what called.
            QMetaObject::invokeMethod(self.data(), &SchemeSaving::Reload, Qt::QueuedConnection);
        }
    });
    connect(&store, &AlarmSchemeStoreBackend::SignalSavingChanged, this, &SchemeSaving::OnSavingChanged);
    store.SetDamageHandler([self](const SchemeDamage& damage) {
        return self.isNull() || self->m_window.isNull() ? SchemeDamageAnswer::LeaveAlone
                                                        : SchemeDamageDialog::Ask(damage, self->m_window);
    });
    window.FollowSaves(&store);
    window.SetCloseGuard([self] { return self.isNull() || self->MayClose(); });
}

SchemeSaving::~SchemeSaving() = default;

void SchemeSaving::WaitForSaves()
{
    if (!m_store.isNull()) {
        m_store->WaitForSaves();
    }
}

bool SchemeSaving::MayClose()
{
    if (!m_store.isNull() && m_store->IsSaving()) {
        m_bCloseWhenSaved = true;
        LXGUI::LXSingleton<LXMessageNotify>::Instance()->AddTextNotification(
            tr("The schemes are being saved. The program closes when that is done."),
            LXMessageNotify::Information);
        return false;
    }
    if (!m_bUnsaved || m_window.isNull()) {
        return true;
    }
    const QPointer<SchemeSaving> self(this);
    const int iAnswer = LXMessageBox::ShowWarning(
        m_window, tr("Changes are not saved"),
        tr("The last save failed. Close the program all the same and lose the changes?"),
        LXMessageBox::ButtonOk | LXMessageBox::ButtonNo);
    return self.isNull() || iAnswer == LXMessageBox::ButtonOk;
}

void SchemeSaving::OnOutcome(const SchemeStoreOutcome& outcome)
{
    SetUnsaved(outcome.eOperation == SchemeStoreOutcome::Operation::Save && !outcome.IsSuccess());
    if (!m_window.isNull()) {
        m_window->ShowSaveOutcome(outcome);
    }
}

void SchemeSaving::OnSavingChanged(bool bSaving)
{
    if (bSaving || !m_bCloseWhenSaved) {
        return;
    }
    m_bCloseWhenSaved = false;
    // After a failure the operator decides anew.
    if (!m_bUnsaved && !m_window.isNull()) {
        QMetaObject::invokeMethod(m_window.data(), &QWidget::close, Qt::QueuedConnection);
    }
}

SchemeConflictAnswer SchemeSaving::Ask(const SchemeConflict& conflict)
{
    const QPointer<SchemeConflictDialog> dialog = new SchemeConflictDialog(conflict, m_window);
    dialog->exec();
    if (dialog.isNull()) {
        return SchemeConflictAnswer::Cancel; // the window was closed under the dialog
    }
    const SchemeConflictAnswer answer = dialog->Answer();
    delete dialog.data();
    return answer;
}

void SchemeSaving::Reload()
{
    if (!m_window.isNull()) {
        m_window->ReloadPages();
    }
}

void SchemeSaving::SetUnsaved(bool bUnsaved)
{
    m_bUnsaved = bUnsaved;
    if (!m_window.isNull()) {
        m_window->ShowUnsaved(bUnsaved);
    }
}
