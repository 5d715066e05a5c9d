#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QJsonValue>
#include <QString>
#include <QVector>

#include <functional>

/// One thing that differs between two records of a scheme.
struct SchemeFieldDifference
{
    /// Named as in a text of schemes: "bOpen", "split.cells[4].X1", "alarmOut[30$3$0$0].Time",
    /// "defenceTime[1]" (0 is Sunday).
    QString strField;
    QJsonValue before; ///< undefined where there is none
    QJsonValue after;
};

/// How one scheme differs between two maps.
struct SchemeDifference
{
    enum class Kind
    {
        Added,   ///< in the second one only
        Removed, ///< in the first one only
        Changed,
    };
    AlarmSourceKey key;
    Kind eKind = Kind::Changed;
    QVector<SchemeFieldDifference> fields; ///< of a changed one
};

namespace SchemeComparison {

struct Counts
{
    int iAdded = 0;
    int iRemoved = 0;
    int iChanged = 0;
    int iEqual = 0;

    bool IsEqual() const { return iAdded == 0 && iRemoved == 0 && iChanged == 0; }
};

/// Field by field, in the order of a text of schemes; empty when the records are equal. Links are told by
/// what they link: the same ones in another order are one difference.
QVector<SchemeFieldDifference> Fields(const AlarmInfo& before, const AlarmInfo& after);

/// Takes one difference after the other, in the order of the keys.
using Use = std::function<void(const SchemeDifference&)>;
/// So many of so many schemes are compared.
using Progress = std::function<void(int iDone, int iAll)>;

/// Without a use only the counts are made out.
Counts Compare(const AlarmInfoMap& before, const AlarmInfoMap& after, const Use& use = {},
               const Progress& progress = {});

} // namespace SchemeComparison
