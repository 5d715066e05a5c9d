#include "client/store/SchemeHistoryKeeper.h"

#include <QtEndian>

#include <sqlite3.h>

#include <array>
#include <utility>

namespace {

// Where the header of a database file counts the transactions that have written it.
constexpr sqlite3_int64 CounterOffset = 24;

} // namespace

void SchemeHistoryKeeper::Start(sqlite3* pDatabase, const QString& strSchemeFile)
{
    Forget();
    m_pDatabase = pDatabase;
    m_file.emplace(pDatabase, SchemeHistoryFile::Place::Attached);
    if (m_file->Attach(SchemeHistoryFile::PathBeside(strSchemeFile)))
        return;
    m_strFailure = m_file->LastError();
    m_file.reset();
}

void SchemeHistoryKeeper::Stop()
{
    if (m_file)
        m_file->Detach();
    m_file.reset();
}

void SchemeHistoryKeeper::Forget()
{
    m_file.reset();
    m_pDatabase = nullptr;
    m_announced.reset();
    m_bFailed = false;
    m_strFailure.clear();
}

void SchemeHistoryKeeper::TryAgain()
{
    if (m_file && std::exchange(m_bFailed, false))
        m_strFailure.clear();
}

bool SchemeHistoryKeeper::Fail()
{
    m_bFailed = true;
    m_strFailure = m_file->LastError();
    return false;
}

bool SchemeHistoryKeeper::ReadCounter()
{
    if (!m_file || m_bFailed)
        return false;
    // Through the connection's own file: opening the file beside it would take away the locks on it.
    sqlite3_file* file = nullptr;
    std::array<char, sizeof(quint32)> bytes{};
    if (sqlite3_file_control(m_pDatabase, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK ||
        file == nullptr || file->pMethods == nullptr ||
        file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), CounterOffset) !=
            SQLITE_OK) {
        m_bFailed = true;
        m_strFailure = QStringLiteral("the counter of the scheme file cannot be read");
        return false;
    }
    m_iCounter = qFromBigEndian<quint32>(bytes.data());
    return true;
}

bool SchemeHistoryKeeper::NoteUntilNow(const AlarmInfoMap& held)
{
    if (m_iDays && !m_file->DropBefore(QDateTime::currentDateTimeUtc().addDays(-*m_iDays)))
        return Fail();
    const std::optional<quint32> noted = m_file->SchemeFileCounter();
    if (noted == m_iCounter && !m_announced) // another file may have counted as far
        return true;
    SchemeHistoryEntry entry;
    entry.eKind = SchemeHistoryKind::Outside;
    if (m_announced)
        entry = *m_announced;
    if (!noted)
        entry.eKind = SchemeHistoryKind::Start;
    if (!NoteDifference(held, entry) || !m_file->SetSchemeFileCounter(m_iCounter))
        return Fail();
    m_announced.reset();
    return true;
}

bool SchemeHistoryKeeper::NoteDifference(const AlarmInfoMap& held, SchemeHistoryEntry entry)
{
    entry.time = QDateTime::currentDateTimeUtc();
    const std::optional<AlarmInfoMap> state = m_file->State();
    if (!state)
        return false;
    const SchemeHistoryChanges changes = SchemeHistoryBetween(*state, held);
    return changes.isEmpty() || m_file->Append(entry, changes);
}

std::optional<SchemeHistoryChanges> SchemeHistoryKeeper::Changes(qint64 iEntry)
{
    return m_file ? m_file->Changes(iEntry) : std::nullopt;
}

bool SchemeHistoryKeeper::Note(SchemeHistoryEntry entry, const SchemeHistoryChanges& changes)
{
    if (!m_file || m_bFailed)
        return false;
    if (!entry.time.isValid())
        entry.time = QDateTime::currentDateTimeUtc();
    // Each transaction that writes a file counts its counter up by one.
    if (!(changes.isEmpty() || m_file->Append(entry, changes)) ||
        !m_file->SetSchemeFileCounter(m_iCounter + 1))
        return Fail();
    return true;
}
