#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

/// A backup as its name tells of it.
struct SchemeBackup
{
    QString strPath;
    QDateTime time;     ///< local, of its making
    qint64 iNumber = 0; ///< in the order of their making, whatever the clock showed
};

/// The backups of a scheme database: complete databases in the folder "backups" beside it, named like
/// "AlarmScheme-0042-20261121-184500.db". A file of that name is whole and was found sound when it was made.
/// Everything else in the folder belongs to others and is left alone. Any one thread.
class SchemeBackups
{
public:
    static constexpr int Kept = 7; ///< older ones are removed when a new one has been made

    using Clock = std::function<QDateTime()>;

    /// The clock is the computer's, in local time, unless another is given.
    explicit SchemeBackups(const QString& strDatabase, Clock clock = {});

    QString Folder() const { return m_strFolder; }
    QList<SchemeBackup> List() const; ///< the newest first

    /// Whether none was made today, so that one is to be made before anything is written.
    bool IsDue() const;

    /// Copies the database as it is now, checks the copy and removes the oldest beyond the number kept.
    /// Nothing when the backup stands, and is then the first of the list; else why there is none, and the
    /// folder is as before. `wait` is the longest time to wait for other programs.
    std::optional<AlarmSchemeStatementFailure> Make(std::chrono::milliseconds wait) const;
    /// The same, but a copy that equals the newest backup is none.
    std::optional<AlarmSchemeStatementFailure> MakeUnlessSame(std::chrono::milliseconds wait) const;

    struct Sound
    {
        SchemeBackup backup;
        int iSchemes = 0;
    };
    /// The newest one that is still sound. Reads each until one is.
    std::optional<Sound> NewestSound() const;

private:
    std::optional<SchemeBackup> Parse(const QString& strName) const;
    std::optional<AlarmSchemeStatementFailure> MakeFolder() const;
    std::optional<AlarmSchemeStatementFailure> Make(std::chrono::milliseconds wait, bool bUnlessSame) const;
    std::optional<AlarmSchemeStatementFailure> Name(const QString& strCopy) const;
    void RemoveOld() const;
    void RemoveLeftCopies() const;

    QString m_strDatabase;
    QString m_strBaseName;
    QString m_strFolder;
    Clock m_clock;
};
