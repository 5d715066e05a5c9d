#include "client/store/AlarmSchemeStoreBackend.h"

#include "client/store/DamageRepair.h"
#include "client/store/StoredSchemes.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <utility>

namespace {

using Operation = SchemeStoreOutcome::Operation;
using Reason = SchemeStoreOutcome::Reason;

SchemeStoreOutcome OutcomeOf(const LoadResult& result, int iSchemes)
{
    SchemeStoreOutcome outcome =
        result.eReason == Reason::None
            ? SchemeStoreOutcome::Success(Operation::Load, iSchemes)
            : SchemeStoreOutcome::Failure(Operation::Load, result.eReason, result.strTechnical);
    if (result.notices.iOrphanRows > 0)
        outcome.AddOrphanRows(result.notices.iOrphanRows);
    if (result.notices.noBackup)
        outcome.AddNoBackup(*result.notices.noBackup);
    return outcome;
}

SchemeStoreOutcome OutcomeOf(const DamageRepairResult& result, const SchemeDamage& damage,
                             SchemeDamageAnswer eAnswer)
{
    if (result.eReason != Reason::None)
        return SchemeStoreOutcome::Failure(Operation::Repair, result.eReason, result.strTechnical);
    if (result.strKeptAs.isEmpty())
        return SchemeStoreOutcome::NothingToRepair();
    const bool restored = eAnswer == SchemeDamageAnswer::Restore && damage.backup;
    return SchemeStoreOutcome::Repaired(result.strKeptAs, restored ? damage.backup->time : QDateTime(),
                                        restored ? damage.backup->iSchemes : 0);
}

SchemeStoreOutcome OutcomeOf(const SaveResult& result)
{
    if (result.eReason != Reason::None) {
        SchemeStoreOutcome failure =
            SchemeStoreOutcome::Failure(Operation::Save, result.eReason, result.strTechnical);
        failure.bRevert = result.bReverted;
        return failure;
    }
    SchemeStoreOutcome outcome =
        result.bReverted ? SchemeStoreOutcome::Reverted(result.iSchemes, result.changedSince.size())
                         : SchemeStoreOutcome::Saved(result.iSchemes, result.iKept);
    if (!result.strHistoryFailure.isEmpty())
        outcome.AddHistoryFailure(result.strHistoryFailure);
    if (result.noBackup)
        outcome.AddNoBackup(*result.noBackup);
    return outcome;
}

} // namespace

AlarmSchemeStoreBackend::AlarmSchemeStoreBackend()
    : m_progress(std::make_shared<SaveProgress>())
    , m_lastLoad(SchemeStoreOutcome::Failure(Operation::Load, Reason::NotLoaded, QString()))
    , m_last(m_lastLoad)
{
    m_thread.setObjectName(QStringLiteral("SchemeStore"));
    m_worker.moveToThread(&m_thread);
    m_thread.start();
    OnWorker([this] {
        m_schemes = std::make_unique<StoredSchemes>(std::chrono::milliseconds(BusyTimeOut));
        m_bOpen = m_schemes->IsOpen();
        m_strPath = m_schemes->GetPath();
        m_bDamaged = m_schemes->IsDamaged();
    });
    connect(&m_outsideTimer, &QTimer::timeout, this, &AlarmSchemeStoreBackend::LookOutside);
    m_outsideTimer.start(LookInterval);
}

AlarmSchemeStoreBackend::~AlarmSchemeStoreBackend()
{
    m_bEnding = true;
    WaitForSaves();
    OnWorker([this] { m_schemes.reset(); });
    m_thread.quit();
    m_thread.wait();
}

template <typename Work>
void AlarmSchemeStoreBackend::OnWorker(Work&& work)
{
    QMetaObject::invokeMethod(&m_worker, std::forward<Work>(work), Qt::BlockingQueuedConnection);
}

void AlarmSchemeStoreBackend::SetOutcomeHandler(OutcomeHandler handler)
{
    m_handler = std::move(handler);
}

void AlarmSchemeStoreBackend::SetConflictHandler(ConflictHandler handler)
{
    m_conflictHandler = std::move(handler);
}

void AlarmSchemeStoreBackend::SetReloadHandler(ReloadHandler handler)
{
    m_reloadHandler = std::move(handler);
}

void AlarmSchemeStoreBackend::SetDamageHandler(DamageHandler handler)
{
    m_damageHandler = std::move(handler);
    LookAtDamage();
}

void AlarmSchemeStoreBackend::SetAuthor(Author author)
{
    m_author = std::move(author);
}

void AlarmSchemeStoreBackend::SetHistoryDays(int iDays)
{
    OnWorker([this, iDays] { m_schemes->KeepHistoryFor(iDays); });
}

bool AlarmSchemeStoreBackend::IsSaving() const
{
    return m_eState != State::Idle || m_queued || !m_reverts.isEmpty();
}

int AlarmSchemeStoreBackend::SchemesWritten() const
{
    return m_progress->iWritten;
}

int AlarmSchemeStoreBackend::SchemesToWrite() const
{
    return m_progress->iSchemes;
}

void AlarmSchemeStoreBackend::WaitForSaves()
{
    while (m_eState == State::Writing || (m_eState == State::Idle && IsSaving())) {
        if (m_eState == State::Idle) {
            StartNext();
            continue;
        }
        OnWorker([] {}); // the worker takes one thing after the other
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    }
}

int AlarmSchemeStoreBackend::Load(AlarmInfoMap& map)
{
    const bool loading = std::exchange(m_bLoading, true);
    WaitForSaves();
    m_bLoading = loading;

    ++m_iLoads;
    LoadResult result;
    OnWorker([this, &map, &result] {
        result = m_schemes->Load(map);
        m_bOpen = m_schemes->IsOpen();
        m_strPath = m_schemes->GetPath();
        m_bDamaged = m_schemes->IsDamaged();
    });
    m_lastLoad = OutcomeOf(result, map.size());
    LookAtDamage();
    // Nobody waits for this.
    QMetaObject::invokeMethod(
        &m_worker, [this] { m_schemes->CatchUpHistory(); }, Qt::QueuedConnection);
    return Report(m_lastLoad);
}

int AlarmSchemeStoreBackend::Save(const AlarmInfoMap& map)
{
    if (!m_lastLoad.IsSuccess())
        return Report(SchemeStoreOutcome::RefusedSave(m_lastLoad));
    if (m_eState != State::Idle) {
        m_queued = map;
        return 0;
    }
    m_queued.reset();
    Start(map, std::nullopt);
    TellSaving(true);
    return 0;
}

int AlarmSchemeStoreBackend::Revert(qint64 iEntry, const QString& strNote)
{
    if (!m_lastLoad.IsSuccess()) {
        SchemeStoreOutcome refused = SchemeStoreOutcome::RefusedSave(m_lastLoad);
        refused.bRevert = true;
        return Report(refused);
    }
    m_reverts.append({iEntry, strNote});
    if (m_eState == State::Idle) {
        StartNext();
        TellSaving(true);
    }
    return 0;
}

template <typename Work>
void AlarmSchemeStoreBackend::Begin(Work&& work)
{
    m_eState = State::Writing;
    const auto write = [this, work = std::forward<Work>(work)] {
        const SaveResult result = work();
        // The object stands: it ends only after this thread has.
        QMetaObject::invokeMethod(
            this,
            [this, result, open = m_schemes->IsOpen(), path = m_schemes->GetPath()] {
                OnSaved(result, open, path);
            },
            Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&m_worker, write, Qt::QueuedConnection);
}

void AlarmSchemeStoreBackend::Start(const AlarmInfoMap& map,
                                    const std::optional<SchemeConflictAnswer>& answer)
{
    m_current = map;
    const SaveOrigin origin{m_author ? m_author() : QString(), SchemeHistoryKind::Save, QString()};
    Begin([this, map, answer, origin, progress = m_progress] {
        return m_schemes->Save(map, answer, origin, *progress);
    });
}

void AlarmSchemeStoreBackend::StartRevert(const RevertWish& wish)
{
    const SaveOrigin origin{m_author ? m_author() : QString(), SchemeHistoryKind::Revert, wish.strNote};
    Begin([this, entry = wish.iEntry, origin, progress = m_progress] {
        return m_schemes->Revert(entry, origin, *progress);
    });
}

void AlarmSchemeStoreBackend::OnSaved(const SaveResult& result, bool bOpen, const QString& strPath)
{
    m_bOpen = bOpen;
    m_strPath = strPath;
    if (result.eReason == Reason::Conflict) {
        OnConflict(result.conflict);
        return;
    }
    const QPointer<AlarmSchemeStoreBackend> self(this);
    const bool reload = result.bReverted && result.iSchemes > 0 && !m_bLoading && !m_bEnding;
    const ReloadHandler reloadHandler = reload ? m_reloadHandler : ReloadHandler();
    if (result.bReverted && result.eReason == Reason::None) {
        Q_EMIT SignalReverted(result.iReverted, result.changedSince);
        if (self.isNull())
            return;
    }
    End(OutcomeOf(result));
    if (reloadHandler && !self.isNull())
        reloadHandler();
}

void AlarmSchemeStoreBackend::OnConflict(const SchemeConflict& conflict)
{
    const QPointer<AlarmSchemeStoreBackend> self(this);
    const SchemeConflictAnswer answer = Ask(conflict);
    if (self.isNull())
        return;
    // The question is about the newest map; that it may have become newer meanwhile changes nothing.
    if (m_queued) {
        m_current = *m_queued;
        m_queued.reset();
    }
    if (answer == SchemeConflictAnswer::SaveOver || answer == SchemeConflictAnswer::KeepOthers) {
        Start(AlarmInfoMap(m_current), answer);
        return;
    }
    const bool reload = answer == SchemeConflictAnswer::Reload && !m_bLoading && m_reloadHandler;
    const ReloadHandler reloadHandler = reload ? m_reloadHandler : ReloadHandler();
    End(SchemeStoreOutcome::Failure(Operation::Save, Reason::Conflict, QString()), reload);
    if (reload && !self.isNull())
        reloadHandler();
}

void AlarmSchemeStoreBackend::End(const SchemeStoreOutcome& outcome, bool bSilent)
{
    const QPointer<AlarmSchemeStoreBackend> self(this);
    m_eState = State::Idle;
    m_current.clear();
    if (bSilent)
        m_last = outcome;
    else
        Report(outcome);
    // The handler may have done anything but for what is asked here.
    if (!self.isNull() && m_eState == State::Idle)
        StartNext();
}

SchemeConflictAnswer AlarmSchemeStoreBackend::Ask(const SchemeConflict& conflict)
{
    if (m_bEnding || !m_conflictHandler)
        return SchemeConflictAnswer::Cancel;
    const QPointer<AlarmSchemeStoreBackend> self(this);
    m_eState = State::Asking;
    const int loads = m_iLoads;
    const ConflictHandler ask = m_conflictHandler;
    const SchemeConflictAnswer answer = ask(conflict);
    // What was loaded during the question is not what the question was about.
    return self.isNull() || loads != m_iLoads ? SchemeConflictAnswer::Cancel : answer;
}

void AlarmSchemeStoreBackend::LookOutside()
{
    if (m_bEnding || IsSaving() || !m_lastLoad.IsSuccess() || std::exchange(m_bLookingOutside, true))
        return;
    const auto look = [this, loads = m_iLoads] {
        const bool changed = m_schemes->FindOutsideChange();
        const auto tell = [this, changed, loads] {
            m_bLookingOutside = false;
            if (changed && !m_bEnding && loads == m_iLoads)
                Q_EMIT SignalChangedOutside();
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&m_worker, look, Qt::QueuedConnection);
}

void AlarmSchemeStoreBackend::LookAtDamage()
{
    if (!m_bDamaged || !m_damageHandler || std::exchange(m_bDamageAsked, true))
        return;
    m_bSettlingDamage = true;
    // Looking through the backups takes a while, and whoever loads is not to be held up by a question.
    const auto look = [this] {
        const std::optional<SchemeDamage> damage = m_schemes->Damage();
        QMetaObject::invokeMethod(
            this, [this, damage] { OnDamage(damage); }, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&m_worker, look, Qt::QueuedConnection);
}

void AlarmSchemeStoreBackend::OnDamage(const std::optional<SchemeDamage>& damage)
{
    m_bDamageAsked = damage.has_value();
    if (m_bEnding || !damage || !m_damageHandler) {
        EndOfDamage();
        return;
    }
    const QPointer<AlarmSchemeStoreBackend> self(this);
    const DamageHandler ask = m_damageHandler;
    const SchemeDamageAnswer answer = ask(*damage);
    if (self.isNull())
        return;
    if (answer == SchemeDamageAnswer::LeaveAlone) {
        EndOfDamage();
        return;
    }
    const auto repair = [this, damage = *damage, answer, who = m_author ? m_author() : QString()] {
        const DamageRepairResult result = m_schemes->Repair(answer, damage, who);
        QMetaObject::invokeMethod(
            this,
            [this, result, damage, answer, open = m_schemes->IsOpen(), path = m_schemes->GetPath(),
             damaged = m_schemes->IsDamaged()] {
                m_bOpen = open;
                m_strPath = path;
                m_bDamaged = damaged;
                OnRepaired(result, damage, answer);
            },
            Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&m_worker, repair, Qt::QueuedConnection);
}

void AlarmSchemeStoreBackend::OnRepaired(const DamageRepairResult& result, const SchemeDamage& damage,
                                         SchemeDamageAnswer eAnswer)
{
    m_bDamageAsked = false;
    const QPointer<AlarmSchemeStoreBackend> self(this);
    const ReloadHandler reload = m_reloadHandler;
    const SchemeStoreOutcome outcome = OutcomeOf(result, damage, eAnswer);
    Report(outcome);
    if (outcome.IsSuccess() && reload && !self.isNull())
        reload();
    if (!self.isNull())
        EndOfDamage();
}

void AlarmSchemeStoreBackend::EndOfDamage()
{
    m_bSettlingDamage = false;
    Q_EMIT SignalDamageSettled();
}

void AlarmSchemeStoreBackend::StartNext()
{
    if (!m_queued) {
        if (m_reverts.isEmpty())
            TellSaving(false);
        else
            StartRevert(m_reverts.takeFirst());
        return;
    }
    const AlarmInfoMap next = *m_queued;
    m_queued.reset();
    Start(next, std::nullopt);
}

void AlarmSchemeStoreBackend::TellSaving(bool bSaving)
{
    if (std::exchange(m_bSaving, bSaving) != bSaving)
        Q_EMIT SignalSavingChanged(bSaving);
}

int AlarmSchemeStoreBackend::Report(const SchemeStoreOutcome& outcome)
{
    m_last = outcome;
    const int status = outcome.IsSuccess() ? 0 : -1;
    // Copies: the handler may load again, or be removed.
    const OutcomeHandler handler = m_handler;
    if (handler)
        handler(SchemeStoreOutcome(outcome));
    return status;
}
