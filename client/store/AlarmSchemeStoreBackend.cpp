#include "client/store/AlarmSchemeStoreBackend.h"

#include "client/store/SaveTransaction.h"
#include "client/store/StoreConnection.h"

#include <sqlite3.h>

#include <utility>

namespace {

using Operation = SchemeStoreOutcome::Operation;
using Reason = SchemeStoreOutcome::Reason;

SchemeStoreOutcome FailureOf(Operation eOperation, const std::optional<AlarmSchemeStatementFailure>& failure,
                             Reason eWithout)
{
    if (!failure)
        return SchemeStoreOutcome::Failure(eOperation, eWithout, QString());
    Reason reason = ReasonOfFailure(*failure);
    // An open file whose journal cannot be made beside it lies in a folder that cannot be written.
    if (eOperation == Operation::Save && reason == Reason::NotOpen)
        reason = Reason::ReadOnly;
    return SchemeStoreOutcome::Failure(eOperation, reason, failure->strMessage);
}

} // namespace

AlarmSchemeStoreBackend::AlarmSchemeStoreBackend()
    : m_connection(std::make_unique<StoreConnection>())
    , m_lastLoad(SchemeStoreOutcome::Failure(Operation::Load, Reason::NotLoaded, QString()))
    , m_last(m_lastLoad)
{
    // Not waiting here: a load follows, and waits if it has to.
    m_connection->Open();
}

AlarmSchemeStoreBackend::~AlarmSchemeStoreBackend() = default;

void AlarmSchemeStoreBackend::SetOutcomeHandler(OutcomeHandler handler)
{
    m_handler = std::move(handler);
}

const SchemeStoreOutcome& AlarmSchemeStoreBackend::LastOutcome() const
{
    return m_last;
}

bool AlarmSchemeStoreBackend::IsOpen() const
{
    return m_connection->IsOpen();
}

QString AlarmSchemeStoreBackend::GetPath() const
{
    return IsOpen() ? m_connection->Store()->GetPath() : QString();
}

int AlarmSchemeStoreBackend::Load(AlarmInfoMap& map)
{
    m_lastLoad = DoLoad(map);
    return Report(m_lastLoad);
}

int AlarmSchemeStoreBackend::Save(const AlarmInfoMap& map)
{
    return Report(DoSave(map));
}

int AlarmSchemeStoreBackend::Report(const SchemeStoreOutcome& outcome)
{
    m_last = outcome;
    const int status = outcome.IsSuccess() ? 0 : -1;
    if (m_handler)
        m_handler(SchemeStoreOutcome(outcome)); // a copy: the handler may load again
    return status;
}

SchemeStoreOutcome AlarmSchemeStoreBackend::DoLoad(AlarmInfoMap& map)
{
    map.clear();
    m_connection->AllowWaiting(std::chrono::milliseconds(BusyTimeOut));
    if (!IsOpen() || m_connection->OpeningFailure() || m_connection->IsMoved())
        m_connection->Open();
    if (!IsOpen())
        return FailureOf(Operation::Load, m_connection->OpeningFailure(), Reason::NotOpen);

    AlarmSchemeDatabaseParser& store = *m_connection->Store();
    store.TakeFirstFailure();
    const int64_t failedBefore = store.FailedStatements();
    const int32_t status = store.ReadAll(&map);
    if (status != 0 || store.FailedStatements() != failedBefore)
        return FailureOf(Operation::Load, store.TakeFirstFailure(), Reason::Other);
    const auto& opening = m_connection->OpeningFailure();
    if (opening && ReasonOfFailure(*opening) == Reason::Damaged)
        return FailureOf(Operation::Load, opening, Reason::Damaged);
    return SchemeStoreOutcome::Success(Operation::Load, map.size());
}

SchemeStoreOutcome AlarmSchemeStoreBackend::DoSave(const AlarmInfoMap& map)
{
    if (!m_lastLoad.IsSuccess())
        return SchemeStoreOutcome::RefusedSave(m_lastLoad);
    m_connection->AllowWaiting(std::chrono::milliseconds(BusyTimeOut));
    // What kept the opening from writing may be gone by now.
    if (!IsOpen() || m_connection->OpeningFailure())
        m_connection->Open();
    if (!IsOpen())
        return FailureOf(Operation::Save, m_connection->OpeningFailure(), Reason::NotOpen);

    AlarmSchemeDatabaseParser& store = *m_connection->Store();
    bool saved = false;
    {
        SaveTransaction transaction(store);
        if (transaction.IsAlive())
            store.SaveAll(&map, [&transaction] { return transaction.IsAlive(); });
        saved = transaction.Commit();
    }
    // A connection that could not even roll back does so by being closed.
    const bool stuck = sqlite3_get_autocommit(store.GetHandle()) == 0;
    const std::optional<AlarmSchemeStatementFailure> failure = store.TakeFirstFailure();
    if (stuck)
        m_connection->Close();
    return saved ? SchemeStoreOutcome::Success(Operation::Save, map.size())
                 : FailureOf(Operation::Save, failure, Reason::Other);
}
