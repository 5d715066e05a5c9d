#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

/// What loading gives back after the store has saved this record under a new key: links that were named twice
/// once, doors by their number, cells and channels that no layout shows left out, regions that are none left
/// out, texts as UTF-8 keeps them. Texts that the store refuses (a double quote, a NUL) come through as they
/// are. A record that was loaded from a sound file is its own stored form. Pure; any thread.
AlarmInfo AsStored(const AlarmInfo& info);

/// The key in the same way.
AlarmSourceKey AsStored(const AlarmSourceKey& key);

/// Whether SQLite may read a text of this record, or of its key, as the name of a column: then the store does
/// something else with it than storing it, and only loading tells what. Nothing the editors build is such a
/// text. True also for other words.
bool MayNameColumns(const AlarmSourceKey& key, const AlarmInfo& info);
