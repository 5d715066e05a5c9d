#pragma once

#include "client/store/SchemeHistoryEntry.h"

#include <QHash>
#include <QList>

#include <optional>
#include <utility>

struct sqlite3;
struct PackedSchemeChange;

/// The history of the schemes, in a database file of its own. It is either attached to the connection that
/// writes the schemes, so that a step and what it tells of reach the disk together, or opened alone to be
/// read.
///
/// Records are kept once by content, however many schemes and steps they appear in. Every operation that
/// fails says so and leaves the rest as it was; LastError tells why. Used on the thread of its connection.
class SchemeHistoryFile
{
public:
    /// Which database of the connection: the main one, or the one attached as Attached.
    enum class Place
    {
        Main,
        Attached,
    };
    /// Where the history of a scheme file lies: beside it, "AlarmSchemeHistory.db" for "AlarmScheme.db".
    static QString PathBeside(const QString& strSchemeFile);

    /// The connection must outlive the object.
    SchemeHistoryFile(sqlite3* pDatabase, Place ePlace);

    /// Attaches the file, which is made when it is missing. Outside any transaction. False, and nothing
    /// attached, when it cannot be opened, is no history or is of a later version.
    bool Attach(const QString& strPath);
    void Detach();
    /// Whether the tables are there and of a version that is known.
    bool IsSound();

    /// Adds a step, within the transaction of its caller. The number of schemes is that of the changes. What
    /// fails is taken back to the state before, as long as the transaction stands.
    bool Append(const SchemeHistoryEntry& entry, const SchemeHistoryChanges& changes);

    /// The newest steps first; those before one of them when it is given.
    std::optional<QList<SchemeHistoryEntry>> Entries(int iMost, qint64 iBefore = 0);
    /// The changes of one step; nothing when there is none of that number or it cannot be read.
    std::optional<SchemeHistoryChanges> Changes(qint64 iId);
    /// What the scheme file held after the last step. Nothing when it cannot be told.
    std::optional<AlarmInfoMap> State();

    /// The change counter that the scheme file had after the last step; nothing before the first one.
    std::optional<quint32> SchemeFileCounter();
    bool SetSchemeFileCounter(quint32 iCounter);

    /// Drops the steps before that time, and the records that no step tells of any more, within the
    /// transaction of its caller. The last step stays.
    bool DropBefore(const QDateTime& time);

    QString LastError() const { return m_strError; } ///< as SQLite has it; for the log

private:
    QByteArray Sql(const char* szTemplate) const;
    bool Run(const char* szTemplate);
    bool Fail();
    bool CreateTables();
    bool AppendStep(const SchemeHistoryEntry& entry, const SchemeHistoryChanges& changes);
    bool WriteCheckpoint(qint64 iEntry);
    bool DropUnusedRecords();
    std::optional<qint64> RecordNumber(const std::optional<AlarmInfo>& info);
    std::optional<qint64> Intern(const AlarmInfo& info);
    std::optional<AlarmInfo> Record(qint64 iNumber);
    std::optional<QVector<PackedSchemeChange>> Packed(qint64 iId);
    std::optional<QVector<PackedSchemeChange>> PackedState();
    std::optional<qint64> Number(const char* szTemplate);

    sqlite3* m_pDatabase;
    QByteArray m_schema;
    QString m_strError;
    // For the present operation only.
    QHash<QByteArray, qint64> m_numbers;            ///< of records by the hash of their bytes
    QVector<std::pair<AlarmInfo, qint64>> m_recent; ///< records and their numbers, the latest first
    QHash<qint64, AlarmInfo> m_records;
};
