#include "client/UnsavedWork.h"

#include "client/PageAccess.h"
#include "client/PageTabs.h"
#include "client/QuestionDialog.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/LXGUI/LXMessageBox.h"
#include "platform/LXGUI/LXMessageNotify.h"

#include <QStringList>
#include <QWidget>

#include <algorithm>
#include <utility>

using LXGUI::LXMessageBox;
using LXGUI::LXMessageNotify;

UnsavedWork::UnsavedWork(PageTabs& tabs, QWidget& window, QObject* parent)
    : QObject(parent)
    , m_tabs(tabs)
    , m_window(window)
{
}

UnsavedWork::~UnsavedWork() = default;

void UnsavedWork::Follow(AlarmSchemeStoreBackend* pStore)
{
    m_store = pStore;
    connect(pStore, &AlarmSchemeStoreBackend::SignalSavingChanged, this, &UnsavedWork::OnSavingChanged);
}

void UnsavedWork::MarkPagesUnsaved()
{
    const Pages pages = m_tabs.All();
    for (const QPointer<QWidget>& page : pages) {
        PageAccess::MarkUnsaved(page);
    }
}

void UnsavedWork::TellSaveEnded(bool bStored, bool bMore)
{
    const Pages pages = m_tabs.All();
    for (const QPointer<QWidget>& page : pages) {
        PageAccess::SaveEnded(page, bStored, bMore);
    }
}

bool UnsavedWork::MayClose()
{
    const auto closeLater = [this] { m_window.close(); };
    if (WaitsForSave(tr("The schemes are being saved. The program closes when that is done."), closeLater)) {
        return false;
    }
    const Pages pages = m_tabs.Modified();
    if (!pages.isEmpty()) {
        return SettleAndWait(
            pages, tr("%1: there are changes that are not saved. Save them before the program closes?"),
            closeLater);
    }
    return !m_bSaveFailed || AskAboutFailedSave();
}

bool UnsavedWork::MayCloseTab(QWidget* pPage, const std::function<void()>& again)
{
    if (!pPage->isWindowModified()) {
        return true; // nothing goes with the tab
    }
    return !WaitsForSave(tr("The schemes are being saved. The tab closes when that is done."), again) &&
           SettleAndWait({pPage},
                         tr("%1: there are changes that are not saved. Save them before the tab closes?"),
                         again);
}

bool UnsavedWork::MayReload(const std::function<void()>& again)
{
    // Should a save under way fail, the pages that go are the only ones who know what it was to store.
    if (WaitsForSave(tr("The schemes are being saved. They are loaded anew when that is done."), again)) {
        return false;
    }
    const Pages pages = m_tabs.Modified();
    return pages.isEmpty() ||
           SettleAndWait(
               pages,
               tr("%1: there are changes that are not saved. Save them before everything is loaded anew?"),
               again);
}

bool UnsavedWork::MayEndSession(bool bMayAsk)
{
    if (!bMayAsk) {
        return true;
    }
    // The session ends with the return: what is being saved has to be on the disk by then.
    const QPointer<UnsavedWork> self(this);
    const auto waitForStore = [this] {
        if (!m_store.isNull()) {
            m_store->WaitForSaves();
        }
    };
    waitForStore();
    if (self.isNull()) {
        return true;
    }
    const Pages pages = m_tabs.Modified();
    if (pages.isEmpty()) {
        return !m_bSaveFailed || AskAboutFailedSave();
    }
    const Outcome eOutcome =
        Settle(pages, tr("%1: there are changes that are not saved. Save them before the session ends?"));
    if (eOutcome != Outcome::Saving) {
        return eOutcome == Outcome::Go;
    }
    waitForStore();
    return self.isNull() || !m_bSaveFailed;
}

bool UnsavedWork::WaitsForSave(const QString& strNote, const std::function<void()>& again)
{
    if (!IsSaving()) {
        return false;
    }
    m_afterSave = again;
    LXGUI::LXSingleton<LXMessageNotify>::Instance()->AddTextNotification(strNote,
                                                                         LXMessageNotify::Information);
    return true;
}

bool UnsavedWork::SettleAndWait(const Pages& pages, const QString& strQuestion,
                                const std::function<void()>& again)
{
    const Outcome eOutcome = Settle(pages, strQuestion);
    if (eOutcome == Outcome::Saving) {
        m_afterSave = again;
    }
    return eOutcome == Outcome::Go;
}

UnsavedWork::Outcome UnsavedWork::Settle(const Pages& pages, const QString& strQuestion)
{
    if (m_bAsking) {
        return Outcome::Stay; // the question is on the screen already
    }
    m_bAsking = true;
    const QPointer<UnsavedWork> self(this);
    const QuestionDialog::Answer eAnswer =
        QuestionDialog::Ask({tr("Changes are not saved"), strQuestion.arg(Titles(pages)), tr("&Save"),
                             tr("&Discard"), tr("Cancel")},
                            &m_window);
    if (self.isNull()) {
        return Outcome::Stay;
    }
    m_bAsking = false;
    if (eAnswer == QuestionDialog::Answer::Nothing) {
        return Outcome::Stay;
    }
    for (const QPointer<QWidget>& page : pages) {
        if (page.isNull()) {
            continue;
        }
        if (eAnswer == QuestionDialog::Answer::GiveUp) {
            Q_EMIT SignalDiscarded(page);
        } else {
            PageAccess::Save(page);
        }
    }
    if (eAnswer == QuestionDialog::Answer::GiveUp) {
        return Outcome::Go;
    }
    if (IsSaving()) {
        return Outcome::Saving;
    }
    // What is still unsaved could not be saved, and the operator was told why.
    const bool bAllSaved = std::none_of(pages.cbegin(), pages.cend(), [](const QPointer<QWidget>& page) {
        return !page.isNull() && page->isWindowModified();
    });
    return bAllSaved ? Outcome::Go : Outcome::Stay;
}

bool UnsavedWork::IsSaving() const
{
    return !m_store.isNull() && m_store->IsSaving();
}

bool UnsavedWork::AskAboutFailedSave()
{
    const QPointer<UnsavedWork> self(this);
    const int iAnswer = LXMessageBox::ShowWarning(
        &m_window, tr("Changes are not saved"),
        tr("The last save failed. Close the program all the same and lose the changes?"),
        LXMessageBox::ButtonOk | LXMessageBox::ButtonNo);
    return self.isNull() || iAnswer == LXMessageBox::ButtonOk;
}

void UnsavedWork::OnSavingChanged(bool bSaving)
{
    if (bSaving) {
        return;
    }
    const std::function<void()> again = std::exchange(m_afterSave, nullptr);
    // After a failure the operator decides anew.
    if (again && !m_bSaveFailed) {
        QMetaObject::invokeMethod(this, again, Qt::QueuedConnection);
    }
}

QString UnsavedWork::Titles(const Pages& pages)
{
    QStringList titles;
    for (const QPointer<QWidget>& page : pages) {
        titles.append(PageTabs::Title(page));
    }
    return titles.join(QStringLiteral(", "));
}
