#include "client/store/UncleanEndMarker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

/// So many programs at one file leave markers; more go without.
constexpr int MostMarkers = 99;
const QLatin1String Infix(".open-");

} // namespace

void UncleanEndMarker::CloseDatabase::operator()(sqlite3* pDatabase) const
{
    sqlite3_close(pDatabase);
}

UncleanEndMarker::UncleanEndMarker(const QString& strDatabase)
    : m_strDatabase(strDatabase)
{
    const QStringList markers = Markers();
    for (const QString& path : markers) {
        Marker marker{path, nullptr};
        const int result = Lock(marker, false);
        if (result == SQLITE_OK)
            m_held.push_back(std::move(marker));
        // One that cannot be locked since nothing can be written here may be anybody's.
        m_bUnclean = m_bUnclean || result == SQLITE_OK || result == SQLITE_READONLY;
    }
    if (m_held.empty())
        Leave();
}

UncleanEndMarker::~UncleanEndMarker()
{
    if (m_bUnclean)
        return;
    for (Marker& marker : m_held) {
        // While it is locked, so that nobody takes it for one that was left. Some systems remove no file
        // that is open.
        if (!QFile::remove(marker.strPath)) {
            marker.lock.reset();
            QFile::remove(marker.strPath);
        }
    }
}

bool UncleanEndMarker::IsAnybodyElseThere() const
{
    const QStringList markers = Markers();
    return std::any_of(markers.cbegin(), markers.cend(), [this](const QString& path) {
        const bool own = std::any_of(m_held.cbegin(), m_held.cend(),
                                     [&path](const Marker& marker) { return marker.strPath == path; });
        Marker marker{path, nullptr};
        return !own && Lock(marker, false) == SQLITE_BUSY;
    });
}

QStringList UncleanEndMarker::Markers() const
{
    const QFileInfo database(m_strDatabase);
    static const QRegularExpression number(QStringLiteral("\\A[1-9][0-9]?\\z"));
    QStringList markers;
    const QString prefix = database.fileName() + Infix;
    const QDir directory = database.absoluteDir();
    const QStringList names = directory.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& name : names) {
        if (name.startsWith(prefix) && number.match(name.mid(prefix.size())).hasMatch())
            markers.append(directory.absoluteFilePath(name));
    }
    return markers;
}

void UncleanEndMarker::Leave()
{
    for (int number = 1; number <= MostMarkers; ++number) {
        Marker marker{QFileInfo(m_strDatabase).absoluteFilePath() + Infix + QString::number(number), nullptr};
        const bool present = QFileInfo::exists(marker.strPath);
        const int result = Lock(marker, true);
        if (result == SQLITE_OK) {
            m_held.push_back(std::move(marker));
            return;
        }
        // Another program was quicker, or its owner has just removed it: the next number.
        const bool taken = result == SQLITE_BUSY || result == SQLITE_READONLY_DBMOVED;
        if (!taken && !present) {
            marker.lock.reset();
            QFile::remove(marker.strPath);
        }
        if (!taken && result != SQLITE_NOTADB)
            return;
    }
}

int UncleanEndMarker::Lock(Marker& marker, bool bCreate)
{
    sqlite3* database = nullptr;
    const int opened = sqlite3_open_v2(marker.strPath.toUtf8().constData(), &database,
                                       SQLITE_OPEN_READWRITE | (bCreate ? SQLITE_OPEN_CREATE : 0), nullptr);
    marker.lock.reset(database);
    if (opened != SQLITE_OK)
        return opened & 0xFF;
    // The system's lock on the file is what counts; nothing is ever written into it, nor beside it.
    const int locked =
        sqlite3_exec(database, "PRAGMA journal_mode = MEMORY; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    if (locked != SQLITE_OK)
        return locked & 0xFF;
    int moved = 0;
    sqlite3_file_control(database, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0 ? SQLITE_READONLY_DBMOVED : SQLITE_OK;
}
