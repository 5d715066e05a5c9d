#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// A change as the history file keeps it: records by their numbers there, 0 for none.
struct PackedSchemeChange
{
    AlarmSourceKey key;
    qint64 iBefore = 0;
    qint64 iAfter = 0;
};

inline bool operator==(const PackedSchemeChange& a, const PackedSchemeChange& b)
{
    return a.key == b.key && a.iBefore == b.iBefore && a.iAfter == b.iAfter;
}

/// Lists of changes in few bytes: a copy of one scheme to ten thousand doors is ten thousand changes, but
/// they are nearly alike.
namespace SchemeHistoryPacking {

QByteArray Pack(const QVector<PackedSchemeChange>& changes);
/// Nothing when these bytes were not made by Pack. Bytes from anywhere do no harm.
std::optional<QVector<PackedSchemeChange>> Unpack(const QByteArray& bytes);

/// What qCompress has made; empty when these bytes are not that, or claim to become unreasonably long.
QByteArray Uncompress(const QByteArray& bytes);

} // namespace SchemeHistoryPacking
