#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

/// A damaged database that has to make room. It is kept, whatever happens, together with its journal: renamed
/// to "AlarmScheme.damaged-20261121-184500.db" in the same folder, never removed, never written over. Nobody
/// may have it open.
class DamagedFile
{
public:
    using Clock = std::function<QDateTime()>;
    using Failure = std::optional<AlarmSchemeStatementFailure>;

    /// The clock is the computer's, in local time, unless another is given.
    explicit DamagedFile(const QString& strDatabase, Clock clock = {});

    /// Renames it. Nothing when its place is free; else why it is not, and everything lies where it lay.
    Failure SetAside();
    /// Puts a copy of a backup, which is checked first, in its place, and renames it before. The backup
    /// stays. When the copy cannot be made, the damaged file stays in its place.
    Failure ReplaceBy(const QString& strBackup);

    /// Where the damaged file lies; empty until it was renamed.
    QString KeptAs() const { return m_strKeptAs; }

    /// Ends a replacing that was cut off between its two renamings; harmless otherwise.
    static void FinishReplacing(const QString& strDatabase);

private:
    Failure Rename();
    QString FreeName() const;

    QString m_strDatabase;
    QString m_strKeptAs;
    Clock m_clock;
};
