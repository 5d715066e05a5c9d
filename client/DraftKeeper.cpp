#include "client/DraftKeeper.h"

#include "client/ClientLog.h"
#include "client/PageAccess.h"
#include "client/PageTabs.h"
#include "client/store/AlarmSchemeStoreBackend.h"

#include <QRunnable>
#include <QWidget>

#include <functional>

namespace {

class Job : public QRunnable
{
public:
    explicit Job(std::function<void()> work)
        : m_work(std::move(work))
    {
    }
    void run() override { m_work(); }

private:
    std::function<void()> m_work;
};

} // namespace

DraftKeeper::DraftKeeper(const QString& strFolder, PageTabs& tabs, QObject* parent)
    : QObject(parent)
    , m_strFolder(strFolder)
    , m_tabs(tabs)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(Delay);
    m_writer.setMaxThreadCount(1);
    connect(&m_timer, &QTimer::timeout, this, &DraftKeeper::WritePending);
    connect(&m_tabs, &PageTabs::SignalAdded, this, &DraftKeeper::Watch);
    connect(&m_tabs, &PageTabs::SignalModifiedChanged, this, &DraftKeeper::OnModifiedChanged);
    connect(&m_tabs, &PageTabs::SignalDiscarding, this, &DraftKeeper::Forget);
}

DraftKeeper::~DraftKeeper()
{
    m_writer.waitForDone();
}

void DraftKeeper::Follow(AlarmSchemeStoreBackend* pStore)
{
    m_store = pStore;
    connect(pStore, &AlarmSchemeStoreBackend::SignalSavingChanged, this, &DraftKeeper::OnSavingChanged);
}

void DraftKeeper::Watch(QWidget* pPage)
{
    if (!PageAccess::OffersDraft(pPage)) {
        return;
    }
    // A page that only tells that it was modified has its first edit kept, one that tells of each step all.
    PageAccess::Follow(pPage, "undoText", this, "OnEdited()");
    connect(pPage, &QObject::destroyed, this, &DraftKeeper::OnPageDestroyed);
    OnModifiedChanged(pPage);
}

void DraftKeeper::Adopt(QWidget* pPage, std::unique_ptr<DraftFile> file)
{
    m_files.insert(pPage, std::move(file));
    OnModifiedChanged(pPage);
}

void DraftKeeper::Forget(QWidget* pPage)
{
    m_pending.remove(pPage);
    m_saved.remove(pPage);
    const std::shared_ptr<DraftFile> file = m_files.take(pPage);
    if (!file) {
        return;
    }
    m_writer.waitForDone();
    if (!file->Remove()) {
        CLIENT_LOG(lxl::LogWarning, "the draft %s cannot be removed", qUtf8Printable(file->Path()));
    }
}

void DraftKeeper::WriteNow()
{
    m_timer.stop();
    const QSet<QObject*> pages = m_pending;
    m_pending.clear();
    for (QObject* const pPage : pages) {
        Write(static_cast<QWidget*>(pPage));
    }
    m_writer.waitForDone();
}

void DraftKeeper::OnEdited()
{
    auto* const pPage = qobject_cast<QWidget*>(sender());
    if (pPage != nullptr && pPage->isWindowModified()) {
        m_pending.insert(pPage);
        // Not anew with every edit: one that goes on for minutes is kept on its way.
        if (!m_timer.isActive()) {
            m_timer.start();
        }
    }
}

void DraftKeeper::OnModifiedChanged(QWidget* pPage)
{
    if (!PageAccess::OffersDraft(pPage)) {
        return;
    }
    if (pPage->isWindowModified()) {
        m_pending.insert(pPage);
        if (!m_timer.isActive()) {
            m_timer.start();
        }
    } else if (IsSaving()) {
        m_pending.remove(pPage);
        m_saved.insert(pPage);
    } else {
        Forget(pPage);
    }
}

void DraftKeeper::OnSavingChanged(bool bSaving)
{
    if (bSaving) {
        return;
    }
    const bool bSaved = !m_store.isNull() && m_store->LastOutcome().IsSuccess();
    const QSet<QObject*> pages = m_saved;
    m_saved.clear();
    for (QObject* const pPage : pages) {
        auto* const pWidget = static_cast<QWidget*>(pPage);
        if (bSaved && !pWidget->isWindowModified()) {
            Forget(pWidget);
        }
    }
    if (!m_pending.isEmpty() && !m_timer.isActive()) {
        m_timer.start();
    }
}

void DraftKeeper::OnPageDestroyed(QObject* pPage)
{
    m_pending.remove(pPage);
    m_saved.remove(pPage);
    m_files.remove(pPage); // the file stays: nobody has given its edits up
}

void DraftKeeper::WritePending()
{
    if (IsSaving()) {
        return; // goes on when the save has ended
    }
    const QSet<QObject*> pages = m_pending;
    m_pending.clear();
    for (QObject* const pPage : pages) {
        Write(static_cast<QWidget*>(pPage));
    }
}

void DraftKeeper::Write(QWidget* pPage)
{
    Draft draft;
    draft.content = PageAccess::Draft(pPage);
    if (draft.content.isEmpty()) {
        return;
    }
    draft.strModule = PageTabs::Key(pPage);
    draft.written = QDateTime::currentDateTimeUtc();
    draft.iSchemes = PageAccess::DraftSchemes(pPage, draft.content);
    std::shared_ptr<DraftFile>& file = m_files[pPage];
    if (!file) {
        file = DraftFile::Free(m_strFolder, draft.strModule);
    }
    if (!file) {
        OnWritten(tr("there is no place for it in %1").arg(m_strFolder));
        return;
    }
    // The job holds the file, and with it the lock, also when the page goes meanwhile.
    m_writer.start(new Job([this, file, draft] {
        QString strError;
        DraftFile::Write(file->Path(), draft, strError);
        QMetaObject::invokeMethod(
            this, [this, strError] { OnWritten(strError); }, Qt::QueuedConnection);
    }));
}

void DraftKeeper::OnWritten(const QString& strError)
{
    if (!strError.isEmpty()) {
        CLIENT_LOG(lxl::LogWarning, "draft: %s", qUtf8Printable(strError));
    }
    const bool bNew = !strError.isEmpty() && !m_bFailed;
    m_bFailed = !strError.isEmpty();
    if (bNew) {
        Q_EMIT SignalWriteFailed(strError);
    }
}

bool DraftKeeper::IsSaving() const
{
    return !m_store.isNull() && m_store->IsSaving();
}
