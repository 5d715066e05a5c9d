#pragma once

#include "client/store/SchemeConflict.h"
#include "client/store/SchemeDamage.h"
#include "client/store/SchemeStoreOutcome.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class StoredSchemes;
struct DamageRepairResult;
struct LoadResult;
struct SaveProgress;
struct SaveResult;

/// Keeps the schemes of the client in "AlarmScheme.db".
///
/// Made after SystemPaths::SetDataDirectory: creates the database directory and opens the store. What could
/// not be opened then is tried again by the next Load. The file is read and written on a thread of its own.
/// A load is waited for; a save goes on by itself: Save only takes the map, a shared copy, and the outcome
/// follows later, through the event loop. A map that comes while another is being written waits for it, and
/// gives way to one that is newer still.
///
/// A save is all or nothing, and it writes what has changed: the schemes that differ from what the file holds
/// once they are stored, and the time of the save. It is refused unless the last load read every stored
/// scheme: a map that misses schemes would switch the missing ones off. What another process has stored since
/// the load is never overwritten without a question. Another process that holds the database is waited for,
/// up to five seconds in all for one load or save. User-interface thread only.
class AlarmSchemeStoreBackend : public QObject, public IAlarmSchemeBackend
{
    Q_OBJECT

public:
    /// Longest time that one load or save waits for other processes, in milliseconds.
    static constexpr int BusyTimeOut = 5000;
    /// Time between two looks whether another program has changed the schemes, in milliseconds.
    static constexpr int LookInterval = 2000;

    using OutcomeHandler = std::function<void(const SchemeStoreOutcome&)>;
    using ConflictHandler = std::function<SchemeConflictAnswer(const SchemeConflict&)>;
    using ReloadHandler = std::function<void()>;
    using DamageHandler = std::function<SchemeDamageAnswer(const SchemeDamage&)>;
    using Author = std::function<QString()>;

    AlarmSchemeStoreBackend();
    /// Waits until everything is written that Save has taken. Without asking: a save that would have to ask
    /// does not take place.
    ~AlarmSchemeStoreBackend() override;
    AlarmSchemeStoreBackend(const AlarmSchemeStoreBackend&) = delete;
    AlarmSchemeStoreBackend& operator=(const AlarmSchemeStoreBackend&) = delete;

    /// 0 when every stored scheme was read. Otherwise -1, and the map holds what could be read. Waits for the
    /// saves before it.
    int Load(AlarmInfoMap& map) override;
    /// 0 when the map was taken; -1 when saving is refused. When a save has failed, the file holds exactly
    /// the old schemes.
    int Save(const AlarmInfoMap& map) override;

    /// Is called at the end of every load, before it returns, and of every save. Null removes it.
    void SetOutcomeHandler(OutcomeHandler handler);
    /// Is asked when another program has changed the file since it was loaded; may run an event loop. Without
    /// one the answer is to save nothing.
    void SetConflictHandler(ConflictHandler handler);
    /// Is called when the answer was to load the schemes anew; has to see to it that Load is called.
    void SetReloadHandler(ReloadHandler handler);

    /// Is asked, from the event loop, when the database turns out to be damaged; may run an event loop. Once
    /// it was answered to leave the file alone there is no second question. The outcome of a repair is told
    /// as those of loads and saves are, a success is followed by the reload handler.
    void SetDamageHandler(DamageHandler handler);
    /// Whether that question is on its way or open, or what it has brought about is.
    bool IsSettlingDamage() const { return m_bSettlingDamage; }

    /// Tells who saves, for the history; asked when a map is taken. Nobody without one.
    void SetAuthor(Author author);
    /// How long the history keeps its steps, in days; for ever without it.
    void SetHistoryDays(int iDays);

    /// Takes one step of the history back, after the saves before it; -1 when saving is refused. The outcome
    /// follows as that of a save does; a success is followed by the reload handler, since what was loaded
    /// before is no longer what is stored. Schemes that have changed since that step stay as they are; the
    /// outcome names how many.
    int Revert(qint64 iEntry, const QString& strNote);

    /// How the last load or save ended; before the first one a load that is still to come (NotLoaded).
    const SchemeStoreOutcome& LastOutcome() const { return m_last; }

    bool IsSaving() const; ///< until the outcome of everything that Save has taken is known
    /// Whether a map waits for the save before it to end.
    bool IsSaveWaiting() const { return m_queued.has_value(); }
    int SchemesWritten() const; ///< by the present save
    int SchemesToWrite() const; ///< by the present save; 0 until it is known
    void WaitForSaves();        ///< returns when nothing is being saved; asks its questions

    bool IsOpen() const { return m_bOpen; }
    QString GetPath() const { return m_strPath; } ///< of the open database; empty while it is closed

Q_SIGNALS:
    void SignalSavingChanged(bool bSaving);
    /// Another program has changed the schemes that were loaded; told once for each change, not while saves
    /// are under way, which ask about it themselves.
    void SignalChangedOutside();
    void SignalDamageSettled(); ///< IsSettlingDamage() has become false
    /// A step was taken back, but for these schemes, which have changed since. Before SignalSavingChanged.
    void SignalReverted(qint64 iEntry, const QList<AlarmSourceKey>& changedSince);

private:
    struct RevertWish
    {
        qint64 iEntry = 0;
        QString strNote;
    };

    enum class State
    {
        Idle,
        Writing,
        Asking,
    };

    template <typename Work>
    void OnWorker(Work&& work);
    template <typename Work>
    void Begin(Work&& work);
    void Start(const AlarmInfoMap& map, const std::optional<SchemeConflictAnswer>& answer);
    void StartRevert(const RevertWish& wish);
    void OnSaved(const SaveResult& result, bool bOpen, const QString& strPath);
    void OnConflict(const SchemeConflict& conflict);
    SchemeConflictAnswer Ask(const SchemeConflict& conflict);
    void End(const SchemeStoreOutcome& outcome, bool bSilent = false);
    void StartNext();
    void LookOutside();
    void LookAtDamage();
    void EndOfDamage();
    void OnDamage(const std::optional<SchemeDamage>& damage);
    void OnRepaired(const DamageRepairResult& result, const SchemeDamage& damage, SchemeDamageAnswer eAnswer);
    void TellSaving(bool bSaving);
    int Report(const SchemeStoreOutcome& outcome);

    QThread m_thread;
    QObject m_worker;                         ///< lives on the thread
    std::unique_ptr<StoredSchemes> m_schemes; ///< used, made and destroyed on the thread
    std::shared_ptr<SaveProgress> m_progress;

    State m_eState = State::Idle;
    bool m_bSaving = false;  ///< as it was told last
    bool m_bLoading = false; ///< reloading would be for nothing
    bool m_bEnding = false;
    int m_iLoads = 0;
    AlarmInfoMap m_current;               ///< being written, or asked about
    std::optional<AlarmInfoMap> m_queued; ///< to be written next
    QList<RevertWish> m_reverts;          ///< to be done after that

    bool m_bOpen = false;
    QString m_strPath;
    SchemeStoreOutcome m_lastLoad; ///< decides whether a save is allowed
    SchemeStoreOutcome m_last;
    OutcomeHandler m_handler;
    ConflictHandler m_conflictHandler;
    ReloadHandler m_reloadHandler;
    DamageHandler m_damageHandler;
    bool m_bDamaged = false;     ///< as the last opening has found it
    bool m_bDamageAsked = false; ///< or the question is on its way
    bool m_bSettlingDamage = false;
    QTimer m_outsideTimer;
    bool m_bLookingOutside = false;
    Author m_author;
};
