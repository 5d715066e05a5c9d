#pragma once

#include "client/store/SchemeConflict.h"
#include "client/store/SchemeStoreOutcome.h"

#include <QObject>
#include <QPointer>

class AlarmSchemeStoreBackend;
class MainWindow;

/// Between the scheme store and the window: brings outcomes, questions and progress to the operator, and
/// tells the pages when what they saved did not reach the disk. User-interface thread only.
class SchemeSaving : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object's use of them: the store until it is destroyed, the window longer.
    SchemeSaving(AlarmSchemeStoreBackend& store, MainWindow& window, QObject* parent = nullptr);
    ~SchemeSaving() override;

    /// Whether the last save failed, so that the file does not hold what the pages show.
    bool IsUnsaved() const { return m_bUnsaved; }
    void WaitForSaves(); ///< returns when nothing is being saved

private:
    void OnOutcome(const SchemeStoreOutcome& outcome);
    void OnSaveEnded(bool bStored);
    SchemeConflictAnswer Ask(const SchemeConflict& conflict);
    void Reload();
    void SetUnsaved(bool bUnsaved);

    QPointer<AlarmSchemeStoreBackend> m_store;
    QPointer<MainWindow> m_window;
    bool m_bUnsaved = false;
};
