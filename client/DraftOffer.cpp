#include "client/DraftOffer.h"

#include "client/DraftKeeper.h"
#include "client/MainWindow.h"
#include "client/PageAccess.h"
#include "client/PageTabs.h"
#include "client/PluginLoader.h"
#include "client/QuestionDialog.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/LXGUI/LXMessageNotify.h"

#include <QDir>
#include <QLocale>
#include <QPointer>

#include <algorithm>

DraftOffer::DraftOffer(DraftKeeper& keeper, AlarmSchemeStoreBackend& store, MainWindow& window,
                       const PluginLoader& plugins, QObject* parent)
    : QObject(parent)
    , m_keeper(keeper)
    , m_store(&store)
    , m_window(window)
    , m_plugins(plugins)
{
    // Later: what the end of the damage brings about, a reload, comes first.
    connect(&store, &AlarmSchemeStoreBackend::SignalDamageSettled, this, &DraftOffer::GoOn,
            Qt::QueuedConnection);
}

DraftOffer::~DraftOffer() = default;

void DraftOffer::Run()
{
    m_files = DraftFile::Orphans(m_keeper.Folder());
    std::reverse(m_files.begin(), m_files.end());
    GoOn();
}

void DraftOffer::GoOn()
{
    const QPointer<DraftOffer> self(this);
    while (!m_bAsking && !m_files.empty() && !m_store.isNull() && !m_store->IsSettlingDamage()) {
        std::unique_ptr<DraftFile> file = std::move(m_files.back());
        m_files.pop_back();
        m_bAsking = true;
        Offer(std::move(file));
        if (self.isNull()) {
            return;
        }
        m_bAsking = false;
    }
}

void DraftOffer::Offer(std::unique_ptr<DraftFile> file)
{
    Draft draft;
    QString strError;
    if (!file->Read(draft, strError)) {
        SetAside(*file, strError);
        return;
    }
    // Without its module, and behind another draft of it, a draft waits for a later start.
    if (m_plugins.Find(draft.strModule) < 0 || m_restored.contains(draft.strModule)) {
        return;
    }
    const QPointer<DraftOffer> self(this);
    const QuestionDialog::Answer eAnswer = QuestionDialog::Ask(
        {tr("Unsaved changes were found"), Question(draft), tr("&Restore"), tr("&Discard"), tr("&Later")},
        &m_window);
    if (self.isNull()) {
        return;
    }
    if (eAnswer == QuestionDialog::Answer::Keep) {
        Restore(std::move(file), draft);
    } else if (eAnswer == QuestionDialog::Answer::GiveUp) {
        file->Remove();
    }
}

void DraftOffer::Restore(std::unique_ptr<DraftFile> file, const Draft& draft)
{
    if (!m_window.OpenPage(draft.strModule)) {
        return; // the reason was told; the draft stays
    }
    QWidget* const pPage = m_window.Pages().Current();
    const int iSchemes = PageAccess::RestoreDraft(pPage, draft.content);
    if (iSchemes < 0) {
        SetAside(*file, tr("the page cannot use it"));
        return;
    }
    m_restored.insert(draft.strModule);
    m_keeper.Adopt(pPage, std::move(file));
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->AddTextNotification(
        iSchemes == 0 ? tr("The changes are stored already; there was nothing to restore.")
                      : tr("%Ln scheme(s) restored; they are not saved yet.", nullptr, iSchemes),
        LXGUI::LXMessageNotify::Information);
}

void DraftOffer::SetAside(const DraftFile& file, const QString& strReason)
{
    const QString strAside = file.SetAside();
    const QString strPath = QDir::toNativeSeparators(strAside.isEmpty() ? file.Path() : strAside);
    m_window.AddProblem(
        tr("Unsaved changes of an earlier run cannot be restored: %1. The file is kept as %2.")
            .arg(strReason, strPath));
}

QString DraftOffer::Question(const Draft& draft) const
{
    const QString strTitle = m_plugins.Info(m_plugins.Find(draft.strModule)).strTitle;
    const QString strTime = QLocale().toString(draft.written.toLocalTime(), QLocale::ShortFormat);
    const QString strFound =
        draft.iSchemes < 0
            ? tr("%1: the program ended before changes were saved. They were kept on %2.")
                  .arg(strTitle, strTime)
            : tr("%1: the program ended before changes of %Ln scheme(s) were saved. They were kept on %2.",
                 nullptr, draft.iSchemes)
                  .arg(strTitle, strTime);
    return strFound + QLatin1Char('\n') +
           tr("Restore them? Nothing is saved by that. \"Later\" asks again at the next start.");
}
