#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QDateTime>
#include <QString>
#include <QVector>

#include <optional>

/// What made the schemes change. The numbers are stored.
enum class SchemeHistoryKind
{
    Start = 0,   ///< the history begins; what the file held then
    Save = 1,    ///< saved in the client
    Outside = 2, ///< by a program that keeps no history; when and by whom is not known
    Revert = 3,  ///< an earlier change was taken back
    Import = 4,
    Restore = 5, ///< a backup was put back
};

/// One step in the history of the schemes.
struct SchemeHistoryEntry
{
    qint64 iId = 0; ///< ascending with time; 0 before it is stored
    QDateTime time; ///< UTC, to the millisecond; of a change from outside, when it was noticed
    QString strWho; ///< empty when that is not known
    SchemeHistoryKind eKind = SchemeHistoryKind::Save;
    QString strNote;  ///< names what was taken back, imported or restored; empty otherwise
    int iSchemes = 0; ///< how many changed
};

/// How one scheme changed in a step. Nothing stands for "not stored".
struct SchemeHistoryChange
{
    AlarmSourceKey key;
    std::optional<AlarmInfo> before;
    std::optional<AlarmInfo> after;
};

using SchemeHistoryChanges = QVector<SchemeHistoryChange>; ///< in the order of the keys

/// The steps that lead from one map to another.
SchemeHistoryChanges SchemeHistoryBetween(const AlarmInfoMap& before, const AlarmInfoMap& after);
