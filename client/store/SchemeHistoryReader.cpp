#include "client/store/SchemeHistoryReader.h"

#include <QFileInfo>

#include <sqlite3.h>

#include <utility>

namespace {

constexpr int BusyTimeOut = 5000;

} // namespace

void SchemeHistoryReader::Closer::operator()(sqlite3* pDatabase) const
{
    sqlite3_close(pDatabase);
}

SchemeHistoryReader::SchemeHistoryReader(const QString& strSchemeFile)
{
    const QString path = SchemeHistoryFile::PathBeside(strSchemeFile);
    if (!QFileInfo::exists(path)) {
        m_strProblem = tr("There is no history yet; it begins with the next save.");
        return;
    }
    sqlite3* database = nullptr;
    const int opened = sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
    m_database.reset(database);
    if (opened == SQLITE_OK) {
        sqlite3_busy_timeout(database, BusyTimeOut);
        m_history.emplace(database, SchemeHistoryFile::Place::Main);
        if (m_history->IsSound())
            return;
    }
    m_strProblem = tr("The history cannot be read: %1")
                       .arg(m_history ? m_history->LastError() : QString::fromUtf8(sqlite3_errmsg(database)));
    m_history.reset();
}

SchemeHistoryReader::~SchemeHistoryReader() = default;

template <typename Result>
Result SchemeHistoryReader::Checked(Result result)
{
    m_strProblem = result ? QString() : tr("The history cannot be read: %1").arg(m_history->LastError());
    return result;
}

std::optional<QList<SchemeHistoryEntry>> SchemeHistoryReader::Entries(int iMost, qint64 iBefore)
{
    return m_history ? Checked(m_history->Entries(iMost, iBefore)) : std::nullopt;
}

std::optional<SchemeHistoryChanges> SchemeHistoryReader::Changes(qint64 iEntry)
{
    return m_history ? Checked(m_history->Changes(iEntry)) : std::nullopt;
}

QString SchemeHistoryReader::KindName(SchemeHistoryKind eKind)
{
    switch (eKind) {
    case SchemeHistoryKind::Start:
        return tr("beginning");
    case SchemeHistoryKind::Save:
        return tr("saved");
    case SchemeHistoryKind::Outside:
        return tr("outside");
    case SchemeHistoryKind::Revert:
        return tr("taken back");
    case SchemeHistoryKind::Import:
        return tr("imported");
    case SchemeHistoryKind::Restore:
        return tr("restored");
    }
    return QString();
}
