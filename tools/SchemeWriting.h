#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "client/store/StoredSchemes.h"
#include "tools/CommandEnvironment.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <optional>

/// Writing into a database that clients may have open at the same time: all or nothing, noted in the history,
/// after a backup of what was there where one is due. Clients see it as another program's change.
class SchemeWriting
{
    Q_DECLARE_TR_FUNCTIONS(SchemeWriting)

public:
    SchemeWriting() = delete;

    /// The listed schemes take the place of those of the same keys, whole; with bOnly all others are deleted.
    /// A database that is missing is made. False when nothing was changed, and nothing made; then it has been
    /// said why.
    static bool Import(const QString& strDatabase, const AlarmInfoMap& schemes, bool bOnly,
                       const QString& strNote, CommandEnvironment& environment);

    /// What a step of the history has changed becomes what it was before, but for schemes that have changed
    /// since. Nothing when nothing was changed; then it has been said why.
    static std::optional<SaveResult> Revert(const QString& strDatabase, qint64 iStep, const QString& strNote,
                                            CommandEnvironment& environment);

    /// Says what has gone wrong; whether the database was written.
    static bool Tell(const SaveResult& result, CommandEnvironment& environment);

private:
    using Work = std::function<SaveResult(StoredSchemes&, SaveProgress&)>;
    static SaveResult Write(const QString& strDatabase, const Work& work, CommandEnvironment& environment);
};
