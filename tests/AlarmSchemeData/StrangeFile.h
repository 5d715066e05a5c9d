#pragma once

#include <QRandomGenerator>
#include <QStringList>

class RawDatabase;

/// Changes a file with the store's schema, and schemes in it, in some of the ways that a save of ours never
/// would: cells, types, ids, counters, and for every third file the schema. Returns the statements, for
/// telling which file it was.
QStringList MakeStrange(RawDatabase& database, QRandomGenerator& random);
