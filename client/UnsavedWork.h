#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class AlarmSchemeStoreBackend;
class PageTabs;
class QWidget;

/// Keeps the operator from losing edits: asks before pages with unsaved edits go (save, discard, cancel), and
/// has what goes on wait until a save has reached the disk. A save goes on beside the window, so an answer
/// "save" lets nothing go at once; once the save has succeeded, what was asked for happens by itself, and
/// when it has failed, it does not happen. User-interface thread only.
class UnsavedWork : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    UnsavedWork(PageTabs& tabs, QWidget& window, QObject* parent = nullptr);
    ~UnsavedWork() override;

    void Follow(AlarmSchemeStoreBackend* pStore);
    /// Whether the last save failed, so that the file does not hold what the pages show.
    void SetSaveFailed(bool bFailed) { m_bSaveFailed = bFailed; }
    void MarkPagesUnsaved(); ///< the last save did not reach the disk
    /// A save has ended; with more to come another one follows with everything that pages have saved since.
    void TellSaveEnded(bool bStored, bool bMore);

    /// Whether the window may close now. When not, either the operator decided so or was told that it closes
    /// by itself.
    bool MayClose();
    /// Whether the page's tab may go now. A page that still holds unsaved edits then is to be discarded.
    bool MayCloseTab(QWidget* pPage, const std::function<void()>& again);
    /// Whether the pages may be destroyed now and made anew.
    bool MayReload(const std::function<void()>& again);
    /// Whether the session may end now. Where nothing may be asked it may: what is unsaved stays in drafts.
    bool MayEndSession(bool bMayAsk);

Q_SIGNALS:
    void SignalDiscarded(QWidget* pPage); ///< by an answer; the page itself still stands

private:
    using Pages = QList<QPointer<QWidget>>;
    enum class Outcome
    {
        Go,
        Stay,
        Saving
    };

    Outcome Settle(const Pages& pages, const QString& strQuestion);
    bool SettleAndWait(const Pages& pages, const QString& strQuestion, const std::function<void()>& again);
    /// True while a save is under way; then the operator is told, and `again` is called once it has
    /// succeeded.
    bool WaitsForSave(const QString& strNote, const std::function<void()>& again);
    bool IsSaving() const;
    bool AskAboutFailedSave();
    void OnSavingChanged(bool bSaving);
    static QString Titles(const Pages& pages);

    PageTabs& m_tabs;
    QWidget& m_window;
    QPointer<AlarmSchemeStoreBackend> m_store;
    bool m_bSaveFailed = false;
    bool m_bAsking = false;
    std::function<void()> m_afterSave;
};
