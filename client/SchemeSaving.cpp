#include "client/SchemeSaving.h"

#include "client/MainWindow.h"
#include "client/SchemeConflictDialog.h"
#include "client/SchemeDamageDialog.h"
#include "client/UnsavedWork.h"
#include "client/store/AlarmSchemeStoreBackend.h"

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
    store.SetDamageHandler([self](const SchemeDamage& damage) {
        return self.isNull() || self->m_window.isNull() ? SchemeDamageAnswer::LeaveAlone
                                                        : SchemeDamageDialog::Ask(damage, self->m_window);
    });
    connect(&store, &AlarmSchemeStoreBackend::SignalChangedOutside, this, [this] {
        if (!m_window.isNull()) {
            m_window->OfferReload(tr("Another program has changed the schemes."));
        }
    });
    window.FollowSaves(&store);
}

SchemeSaving::~SchemeSaving() = default;

void SchemeSaving::WaitForSaves()
{
    if (!m_store.isNull()) {
        m_store->WaitForSaves();
    }
}

void SchemeSaving::OnOutcome(const SchemeStoreOutcome& outcome)
{
    if (outcome.eOperation != SchemeStoreOutcome::Operation::Save) {
        SetUnsaved(false);
    } else if (!outcome.bRevert) { // a step of the history is nobody's edit
        OnSaveEnded(outcome.IsSuccess());
    }
    if (!m_window.isNull()) {
        if (outcome.IsSuccess() && !outcome.bRevert) {
            m_window->WithdrawReload();
        }
        m_window->ShowSaveOutcome(outcome);
    }
}

void SchemeSaving::OnSaveEnded(bool bStored)
{
    const bool bMore = !m_store.isNull() && m_store->IsSaveWaiting();
    if (!m_window.isNull()) {
        m_window->Unsaved().TellSaveEnded(bStored, bMore);
    }
    // What follows may still bring it to the disk.
    SetUnsaved(!bStored && !bMore);
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
    if (m_window.isNull() || m_window->ReloadPages() || m_store.isNull() || m_window.isNull()) {
        return;
    }
    const SchemeStoreOutcome outcome = m_store->LastOutcome();
    if (outcome.eOperation == SchemeStoreOutcome::Operation::Save && !outcome.IsSuccess()) {
        SetUnsaved(true); // the save before it has failed, and its edits stay
    } else {
        m_window->OfferReload(tr("The stored schemes are no longer those that were loaded."));
    }
}

void SchemeSaving::SetUnsaved(bool bUnsaved)
{
    m_bUnsaved = bUnsaved;
    if (!m_window.isNull()) {
        m_window->ShowUnsaved(bUnsaved);
        if (bUnsaved) {
            m_window->Unsaved().MarkPagesUnsaved();
        }
    }
}
