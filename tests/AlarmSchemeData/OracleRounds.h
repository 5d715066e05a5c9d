#pragma once

#include <QString>

struct sqlite3;

/// Comparisons of the store with the literal statements, each from a seed. Empty when both did the same,
/// otherwise what differed.
namespace OracleRounds {

/// For connections of tests in which it does not matter what reaches the disk. Always true.
bool HurryAlong(sqlite3* pDatabase);

/// Random maps saved one after the other into an empty file, whole and in parts.
QString SaveRandomMaps(quint32 iSeed);
/// A strange file: loaded, saved into, and loaded again.
QString UseStrangeFile(quint32 iSeed);

} // namespace OracleRounds
