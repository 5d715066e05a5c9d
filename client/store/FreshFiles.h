#pragma once

#include <QString>
#include <QStringList>

/// Which of the files of a database, its history's among them, were missing before work with it began, so
/// that work which comes to nothing leaves nothing behind. Any one thread.
class FreshFiles
{
public:
    /// Looks now; nothing must have been opened yet.
    explicit FreshFiles(const QString& strDatabase);

    /// Removes those that were missing. All or nothing: not where the database itself was there, holds
    /// schemes by now or is used by another program. What this program had opened has to be closed before.
    void Remove() const;

private:
    QString m_strDatabase;
    QStringList m_missing;
};
