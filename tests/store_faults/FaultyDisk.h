#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>

struct sqlite3_vfs;

/// A disk that goes wrong on demand: every database that is opened during its life without naming a VFS is
/// read and written through it. It numbers and records what SQLite does with files, and does not, or not
/// whole, what a rule says.
///
/// What is written reaches the system at once, so that it survives the end of the process, but is never
/// forced to the medium: nothing here outlives a real power failure. One at a time; all connections that were
/// opened during its life have to be closed before its end.
class FaultyDisk
{
public:
    enum class Kind
    {
        Open,
        Delete,
        Access, ///< whether a file exists
        Size,
        Read,
        Write,
        Truncate,
        Sync,
        Lock,
        Unlock,
        CheckLock,
    };
    struct Operation
    {
        Kind eKind = Kind::Open;
        int iNumber = 0;           ///< from 1 since the last Reset
        QString strFile;           ///< path below the folder that is watched; empty for temporary files
        bool bCreate = false;      ///< Open: of a file that may be made
        bool bSyncsFolder = false; ///< Delete
        qint64 iOffset = 0;        ///< Read, Write; Truncate: the new size
        QByteArray data;           ///< Write
    };
    /// SQLITE_OK lets the operation happen, another result of SQLite is what it fails with instead. Is called
    /// on whatever thread uses the file, one call at a time.
    using Rule = std::function<int(const Operation&)>;
    /// Answer of a rule: the process ends here, without the operation.
    static constexpr int EndProcess = -1;
    /// The same, but half of what was to be written still is.
    static constexpr int EndProcessHalfway = -2;
    /// With this code the process ends.
    static constexpr int EndedByDisk = 86;

    explicit FaultyDisk(const QString& strFolder);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// Starts the numbers anew, forgets the record and sets the rule; without one nothing fails.
    void Reset(const Rule& rule = {});
    /// How many operations there were since the last Reset, failed ones included.
    int Count() const;
    /// What was written, made, cut, deleted and forced to the medium since the last Reset.
    QList<Operation> Changes() const;
    /// Files that are opened from now on cannot be written, and the folder takes no new ones.
    void SetReadOnly(bool bFiles, bool bFolder);

    /// The usual failure of an operation.
    static int FailureOf(Kind eKind);
    /// The iNumber-th operation fails and nothing else.
    static Rule FailOnce(int iNumber);
    /// The iNumber-th operation fails, and so do all after it.
    static Rule FailFrom(int iNumber);

private:
    struct Methods;
    friend struct Methods;

    int Decide(Operation operation);
    QString NameOf(const char* szPath) const;

    QString m_strFolder;
    sqlite3_vfs* m_pSystem = nullptr;
    std::unique_ptr<sqlite3_vfs> m_vfs;

    mutable std::mutex m_mutex;
    Rule m_rule;
    int m_iCount = 0;
    QList<Operation> m_changes;
    bool m_bReadOnlyFiles = false;
    bool m_bReadOnlyFolder = false;
};
