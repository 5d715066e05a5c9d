#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// The scheme database is damaged.
struct SchemeDamage
{
    struct Backup
    {
        QString strPath;
        QDateTime time; ///< local, of its making
        int iSchemes = 0;
    };
    QString strFile;              ///< the damaged one
    QString strTechnical;         ///< the database's own words
    std::optional<Backup> backup; ///< the newest sound one, if there is any
};

/// What the operator wants to be done about it.
enum class SchemeDamageAnswer
{
    LeaveAlone, ///< the file stays as it is, what is sound of it can be looked at, nothing is saved
    Restore,    ///< the damaged file is set aside, the backup takes its place
    StartEmpty, ///< the damaged file is set aside, a new one without schemes takes its place
};
