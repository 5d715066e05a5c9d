#include "client/store/SchemeHistoryFile.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmInfoBytes.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatement.h"
#include "client/store/SchemeHistoryPacking.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

constexpr int FormatVersion = 1;
/// The state is written anew when so many changes lie behind it, and half as many as it has schemes.
constexpr qint64 LeastBehind = 2000;
/// Copies make many equal records in a row.
constexpr int RecentRecords = 8;

// "%" is the name of the database within its connection.
constexpr char Create[] =
    "create table if not exists %.Format(id integer primary key check(id = 1), Version integer not null,"
    " Counter integer);"
    "insert or ignore into %.Format(id, Version) values(1, 1);"
    "create table if not exists %.Records(id integer primary key, Hash blob not null unique,"
    " Content blob not null);"
    "create table if not exists %.Entries(id integer primary key autoincrement, Time integer not null,"
    " Who text not null, Kind integer not null, Note text not null, Schemes integer not null,"
    " Changes blob not null);"
    "create table if not exists %.Checkpoint(id integer primary key check(id = 1), Entry integer not null,"
    " Schemes integer not null, State blob not null);";

QByteArray HashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

bool KeyBefore(const PackedSchemeChange& a, const PackedSchemeChange& b)
{
    return a.key < b.key;
}

/// The state after the changes; a state lists what is stored as changes from nothing.
QVector<PackedSchemeChange> Advance(const QVector<PackedSchemeChange>& state,
                                    const QVector<PackedSchemeChange>& changes)
{
    QVector<PackedSchemeChange> next;
    next.reserve(state.size() + changes.size());
    const auto take = [&next](const PackedSchemeChange& change) {
        if (change.iAfter != 0)
            next.append({change.key, 0, change.iAfter});
    };
    auto at = state.cbegin();
    for (const PackedSchemeChange& change : changes) {
        const auto until = std::lower_bound(at, state.cend(), change, KeyBefore);
        std::for_each(at, until, take);
        at = until != state.cend() && until->key == change.key ? until + 1 : until;
        take(change);
    }
    std::for_each(at, state.cend(), take);
    return next;
}

SchemeHistoryKind KindOf(int iStored)
{
    const bool known = iStored >= 0 && iStored <= static_cast<int>(SchemeHistoryKind::Restore);
    return known ? static_cast<SchemeHistoryKind>(iStored) : SchemeHistoryKind::Outside;
}

} // namespace

QString SchemeHistoryFile::PathBeside(const QString& strSchemeFile)
{
    const QFileInfo file(strSchemeFile);
    return file.dir().filePath(file.completeBaseName() + QStringLiteral("History.db"));
}

SchemeHistoryFile::SchemeHistoryFile(sqlite3* pDatabase, Place ePlace)
    : m_pDatabase(pDatabase)
    , m_schema(ePlace == Place::Main ? "main" : "SchemeHistory")
{
}

QByteArray SchemeHistoryFile::Sql(const char* szTemplate) const
{
    return QByteArray(szTemplate).replace('%', m_schema);
}

bool SchemeHistoryFile::Fail()
{
    m_strError = QString::fromUtf8(sqlite3_errmsg(m_pDatabase));
    return false;
}

bool SchemeHistoryFile::Run(const char* szTemplate)
{
    return sqlite3_exec(m_pDatabase, Sql(szTemplate).constData(), nullptr, nullptr, nullptr) == SQLITE_OK ||
           Fail();
}

std::optional<qint64> SchemeHistoryFile::Number(const char* szTemplate)
{
    AlarmSchemeStatement statement(m_pDatabase, Sql(szTemplate).constData());
    AlarmSchemeRun run(statement);
    if (!run.Next()) {
        Fail();
        return std::nullopt;
    }
    return run.IsNull(0) ? std::nullopt : std::optional<qint64>(run.Int64(0));
}

bool SchemeHistoryFile::Attach(const QString& strPath)
{
    {
        AlarmSchemeStatement attach(m_pDatabase, Sql("attach ?1 as %").constData());
        if (!attach.Execute(strPath.toUtf8()))
            return Fail();
    }
    // Both files reach the disk together only with such journals.
    const bool attached = Run("pragma %.journal_mode = TRUNCATE") && Run("pragma %.synchronous = FULL") &&
                          CreateTables() && IsSound();
    if (!attached) {
        const QString error = m_strError;
        Detach();
        m_strError = error;
    }
    return attached;
}

void SchemeHistoryFile::Detach()
{
    Run("detach %");
}

bool SchemeHistoryFile::CreateTables()
{
    if (!Run("begin immediate"))
        return false;
    if (Run(Create) && Run("commit"))
        return true;
    const QString error = m_strError;
    Run("rollback");
    m_strError = error;
    return false;
}

bool SchemeHistoryFile::IsSound()
{
    const std::optional<qint64> version = Number("select Version from %.Format where id = 1");
    if (!version)
        return false;
    if (*version != FormatVersion) {
        m_strError = QStringLiteral("history format %1").arg(*version);
        return false;
    }
    return Number("select count(*) from %.Entries") && Number("select count(*) from %.Records") &&
           Number("select count(*) from %.Checkpoint");
}

bool SchemeHistoryFile::Append(const SchemeHistoryEntry& entry, const SchemeHistoryChanges& changes)
{
    // Numbers that were given to records in a transaction that came to nothing are not theirs.
    m_numbers.clear();
    m_recent.clear();
    if (!Run("savepoint SchemeHistoryEntry"))
        return false;
    if (AppendStep(entry, changes) && Run("release SchemeHistoryEntry"))
        return true;
    const QString error = m_strError;
    Run("rollback to SchemeHistoryEntry");
    Run("release SchemeHistoryEntry");
    m_strError = error;
    return false;
}

bool SchemeHistoryFile::AppendStep(const SchemeHistoryEntry& entry, const SchemeHistoryChanges& changes)
{
    QVector<PackedSchemeChange> packed;
    packed.reserve(changes.size());
    for (const SchemeHistoryChange& change : changes) {
        const std::optional<qint64> before = RecordNumber(change.before);
        const std::optional<qint64> after = RecordNumber(change.after);
        if (!before || !after)
            return false;
        packed.append({change.key, *before, *after});
    }
    AlarmSchemeStatement insert(m_pDatabase,
                                Sql("insert into %.Entries(Time, Who, Kind, Note, Schemes, Changes)"
                                    " values(?1, ?2, ?3, ?4, ?5, ?6)")
                                    .constData());
    const QByteArray who = entry.strWho.toUtf8();
    const QByteArray note = entry.strNote.toUtf8();
    const QByteArray bytes = SchemeHistoryPacking::Pack(packed);
    {
        AlarmSchemeRun run(insert);
        run.Bind(int64_t(entry.time.toMSecsSinceEpoch()))
            .Bind(who)
            .Bind(static_cast<int32_t>(entry.eKind))
            .Bind(note)
            .Bind(int32_t(changes.size()))
            .BindBlob(bytes);
        if (run.Next() || !run.IsDone())
            return Fail();
    }
    const std::optional<qint64> behind =
        Number("select coalesce(sum(Schemes), 0) from %.Entries"
               " where id > coalesce((select Entry from %.Checkpoint where id = 1), 0)");
    const std::optional<qint64> size =
        Number("select coalesce((select Schemes from %.Checkpoint where id = 1), 0)");
    if (!behind || !size)
        return false;
    if (*behind < LeastBehind || *behind < *size / 2)
        return true;
    const std::optional<qint64> last = Number("select max(id) from %.Entries");
    return last && WriteCheckpoint(*last);
}

bool SchemeHistoryFile::WriteCheckpoint(qint64 iEntry)
{
    const auto state = PackedState();
    if (!state)
        return false;
    AlarmSchemeStatement replace(
        m_pDatabase,
        Sql("insert or replace into %.Checkpoint(id, Entry, Schemes, State) values(1, ?1, ?2, ?3)")
            .constData());
    const QByteArray bytes = SchemeHistoryPacking::Pack(*state);
    AlarmSchemeRun run(replace);
    run.Bind(int64_t(iEntry)).Bind(int32_t(state->size())).BindBlob(bytes);
    return (!run.Next() && run.IsDone()) || Fail();
}

std::optional<qint64> SchemeHistoryFile::RecordNumber(const std::optional<AlarmInfo>& info)
{
    if (!info)
        return 0;
    const auto recent = std::find_if(m_recent.begin(), m_recent.end(),
                                     [&info](const auto& known) { return known.first == *info; });
    if (recent != m_recent.end()) {
        std::rotate(m_recent.begin(), recent, recent + 1);
        return m_recent.constFirst().second;
    }
    const std::optional<qint64> number = Intern(*info);
    if (number) {
        m_recent.prepend({*info, *number});
        if (m_recent.size() > RecentRecords)
            m_recent.removeLast();
    }
    return number;
}

std::optional<qint64> SchemeHistoryFile::Intern(const AlarmInfo& info)
{
    const QByteArray bytes = AlarmInfoBytes::Write(info);
    const QByteArray hash = HashOf(bytes);
    const auto known = m_numbers.constFind(hash);
    if (known != m_numbers.cend())
        return *known;
    {
        AlarmSchemeStatement find(m_pDatabase, Sql("select id from %.Records where Hash = ?1").constData());
        AlarmSchemeRun run(find);
        run.BindBlob(hash);
        if (run.Next())
            return *m_numbers.insert(hash, run.Int64(0));
    }
    AlarmSchemeStatement insert(m_pDatabase,
                                Sql("insert into %.Records(Hash, Content) values(?1, ?2)").constData());
    const QByteArray content = qCompress(bytes);
    AlarmSchemeRun run(insert);
    run.BindBlob(hash).BindBlob(content);
    if (run.Next() || !run.IsDone()) {
        Fail();
        return std::nullopt;
    }
    return *m_numbers.insert(hash, sqlite3_last_insert_rowid(m_pDatabase));
}

std::optional<AlarmInfo> SchemeHistoryFile::Record(qint64 iNumber)
{
    const auto known = m_records.constFind(iNumber);
    if (known != m_records.cend())
        return *known;
    AlarmSchemeStatement find(m_pDatabase,
                              Sql("select Hash, Content from %.Records where id = ?1").constData());
    AlarmSchemeRun run(find);
    run.Bind(int64_t(iNumber));
    if (!run.Next()) {
        m_strError = QStringLiteral("no record %1").arg(iNumber);
        return std::nullopt;
    }
    const QByteArray bytes = SchemeHistoryPacking::Uncompress(run.Blob(1));
    std::optional<AlarmInfo> info = AlarmInfoBytes::Read(bytes);
    if (!info || HashOf(bytes) != run.Blob(0)) {
        m_strError = QStringLiteral("record %1 is damaged").arg(iNumber);
        return std::nullopt;
    }
    return *m_records.insert(iNumber, *info);
}

std::optional<QList<SchemeHistoryEntry>> SchemeHistoryFile::Entries(int iMost, qint64 iBefore)
{
    AlarmSchemeStatement select(m_pDatabase, Sql("select id, Time, Who, Kind, Note, Schemes from %.Entries"
                                                 " where ?1 = 0 or id < ?1 order by id desc limit ?2")
                                                 .constData());
    AlarmSchemeRun run(select);
    run.Bind(int64_t(iBefore)).Bind(int32_t(std::max(iMost, 0)));
    QList<SchemeHistoryEntry> entries;
    while (run.Next()) {
        SchemeHistoryEntry entry;
        entry.iId = run.Int64(0);
        entry.time = QDateTime::fromMSecsSinceEpoch(run.Int64(1), Qt::UTC);
        entry.strWho = QString::fromUtf8(run.Blob(2));
        entry.eKind = KindOf(run.Int(3));
        entry.strNote = QString::fromUtf8(run.Blob(4));
        entry.iSchemes = run.Int(5);
        entries.append(entry);
    }
    if (run.IsDone())
        return entries;
    Fail();
    return std::nullopt;
}

std::optional<QVector<PackedSchemeChange>> SchemeHistoryFile::Packed(qint64 iId)
{
    AlarmSchemeStatement select(m_pDatabase, Sql("select Changes from %.Entries where id = ?1").constData());
    AlarmSchemeRun run(select);
    run.Bind(int64_t(iId));
    std::optional<QVector<PackedSchemeChange>> changes;
    if (run.Next())
        changes = SchemeHistoryPacking::Unpack(run.Blob(0));
    if (!changes)
        m_strError = QStringLiteral("entry %1 is missing or damaged").arg(iId);
    return changes;
}

std::optional<SchemeHistoryChanges> SchemeHistoryFile::Changes(qint64 iId)
{
    m_records.clear();
    const auto packed = Packed(iId);
    if (!packed)
        return std::nullopt;
    SchemeHistoryChanges changes;
    changes.reserve(packed->size());
    for (const PackedSchemeChange& change : *packed) {
        SchemeHistoryChange whole;
        whole.key = change.key;
        if (change.iBefore != 0 && !(whole.before = Record(change.iBefore)))
            return std::nullopt;
        if (change.iAfter != 0 && !(whole.after = Record(change.iAfter)))
            return std::nullopt;
        changes.append(whole);
    }
    m_records.clear();
    return changes;
}

std::optional<QVector<PackedSchemeChange>> SchemeHistoryFile::PackedState()
{
    QVector<PackedSchemeChange> state;
    qint64 from = 0;
    {
        AlarmSchemeStatement select(m_pDatabase,
                                    Sql("select Entry, State from %.Checkpoint where id = 1").constData());
        AlarmSchemeRun run(select);
        if (run.Next()) {
            from = run.Int64(0);
            auto stored = SchemeHistoryPacking::Unpack(run.Blob(1));
            if (!stored) {
                m_strError = QStringLiteral("the checkpoint is damaged");
                return std::nullopt;
            }
            state = std::move(*stored);
        } else if (!run.IsDone()) {
            Fail();
            return std::nullopt;
        }
    }
    AlarmSchemeStatement select(
        m_pDatabase, Sql("select id, Changes from %.Entries where id > ?1 order by id").constData());
    AlarmSchemeRun run(select);
    run.Bind(int64_t(from));
    while (run.Next()) {
        const auto changes = SchemeHistoryPacking::Unpack(run.Blob(1));
        if (!changes) {
            m_strError = QStringLiteral("entry %1 is damaged").arg(run.Int64(0));
            return std::nullopt;
        }
        state = Advance(state, *changes);
    }
    if (run.IsDone())
        return state;
    Fail();
    return std::nullopt;
}

std::optional<AlarmInfoMap> SchemeHistoryFile::State()
{
    m_records.clear();
    const auto packed = PackedState();
    if (!packed)
        return std::nullopt;
    AlarmInfoMap map;
    for (const PackedSchemeChange& scheme : *packed) {
        const std::optional<AlarmInfo> info = Record(scheme.iAfter);
        if (!info)
            return std::nullopt;
        map.insert(map.cend(), scheme.key, *info);
    }
    m_records.clear();
    return map;
}

std::optional<quint32> SchemeHistoryFile::SchemeFileCounter()
{
    const std::optional<qint64> counter = Number("select Counter from %.Format where id = 1");
    return counter ? std::optional<quint32>(static_cast<quint32>(*counter)) : std::nullopt;
}

bool SchemeHistoryFile::SetSchemeFileCounter(quint32 iCounter)
{
    AlarmSchemeStatement update(m_pDatabase,
                                Sql("update %.Format set Counter = ?1 where id = 1").constData());
    return update.Execute(int64_t(iCounter)) || Fail();
}

bool SchemeHistoryFile::DropBefore(const QDateTime& time)
{
    {
        AlarmSchemeStatement old(
            m_pDatabase,
            Sql("select 1 from %.Entries where Time < ?1 and id < (select max(id) from %.Entries) limit 1")
                .constData());
        AlarmSchemeRun run(old);
        run.Bind(int64_t(time.toMSecsSinceEpoch()));
        if (!run.Next())
            return run.IsDone() || Fail();
    }
    // The state counts on the steps since the checkpoint, so it is drawn from them while they are there.
    const std::optional<qint64> last = Number("select max(id) from %.Entries");
    if (!last || !WriteCheckpoint(*last))
        return false;
    {
        AlarmSchemeStatement drop(m_pDatabase,
                                  Sql("delete from %.Entries where Time < ?1 and id < ?2").constData());
        if (!drop.Execute(int64_t(time.toMSecsSinceEpoch()), int64_t(*last)))
            return Fail();
    }
    return DropUnusedRecords();
}

bool SchemeHistoryFile::DropUnusedRecords()
{
    QSet<qint64> used;
    const auto use = [&used](const QVector<PackedSchemeChange>& changes) {
        for (const PackedSchemeChange& change : changes)
            used << change.iBefore << change.iAfter;
    };
    const auto state = PackedState();
    const std::optional<qint64> count = Number("select count(*) from %.Entries");
    if (!state || !count)
        return false;
    use(*state);
    const auto entries = Entries(static_cast<int>(std::min<qint64>(*count, INT_MAX)));
    if (!entries)
        return false;
    for (const SchemeHistoryEntry& entry : *entries) {
        const auto changes = Packed(entry.iId);
        if (!changes)
            return false;
        use(*changes);
    }
    QVector<qint64> unused;
    {
        AlarmSchemeStatement select(m_pDatabase, Sql("select id from %.Records").constData());
        AlarmSchemeRun run(select);
        while (run.Next()) {
            if (!used.contains(run.Int64(0)))
                unused.append(run.Int64(0));
        }
        if (!run.IsDone())
            return Fail();
    }
    AlarmSchemeStatement drop(m_pDatabase, Sql("delete from %.Records where id = ?1").constData());
    return std::all_of(unused.cbegin(), unused.cend(),
                       [&drop](qint64 id) { return drop.Execute(int64_t(id)); }) ||
           Fail();
}
