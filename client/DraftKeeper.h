#pragma once

#include "client/DraftFile.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QThreadPool>
#include <QTimer>

#include <memory>

class AlarmSchemeStoreBackend;
class PageTabs;
class QWidget;

/// Keeps the unsaved edits of all pages in draft files, so that they survive a crash. A page that offers a
/// draft has it written a moment after an edit; saving or discarding the edits removes it. While a save is
/// under way the draft before it stays as it is: it goes when the save has reached the disk. Files are
/// written on a thread of their own. User-interface thread only.
class DraftKeeper : public QObject
{
    Q_OBJECT

public:
    static constexpr int Delay = 1000; ///< milliseconds from an edit to its draft

    /// The tabs and the store must outlive this object's use of them.
    DraftKeeper(const QString& strFolder, PageTabs& tabs, QObject* parent = nullptr);
    /// Writes out what is under way; what is in the files stays.
    ~DraftKeeper() override;

    void Follow(AlarmSchemeStoreBackend* pStore);
    /// The page's edits came out of this draft, which therefore stays until they are saved.
    void Adopt(QWidget* pPage, std::unique_ptr<DraftFile> file);
    void Forget(QWidget* pPage); ///< the page's edits were discarded
    void WriteNow();             ///< returns when every unsaved edit is in its file
    const QString& Folder() const { return m_strFolder; }

Q_SIGNALS:
    void SignalWriteFailed(const QString& strReason); ///< once until one succeeds again

private Q_SLOTS:
    void OnEdited(); ///< sent by a page

private:
    void Watch(QWidget* pPage);
    void OnModifiedChanged(QWidget* pPage);
    void OnSavingChanged(bool bSaving);
    void OnPageDestroyed(QObject* pPage);
    void WritePending();
    void Write(QWidget* pPage);
    void OnWritten(const QString& strError);
    bool IsSaving() const;

    QString m_strFolder;
    PageTabs& m_tabs;
    QPointer<AlarmSchemeStoreBackend> m_store;
    QHash<QObject*, std::shared_ptr<DraftFile>> m_files;
    QSet<QObject*> m_pending; ///< pages with an edit that is in no file yet
    QSet<QObject*> m_saved;   ///< pages that handed their edits over to a save that is under way
    QTimer m_timer;
    QThreadPool m_writer; ///< one thread: what comes later is written later
    bool m_bFailed = false;
};
