#pragma once

#include "systemlibrary_export.h"

#include <QString>

/// The directory that holds the program's databases ("Database" in the data directory). Absolute; not
/// necessarily existing. Empty while no data directory is set.
SYSTEMLIBRARY_EXPORT QString QGetDatabaseDirPath();

/// Absolute path of a file in a directory.
SYSTEMLIBRARY_EXPORT QString QGetAbsolutePath(const QString& strFileName, const QString& strDirectory);

namespace SystemPaths {

/// The program's data directory; made absolute. Set once by the program before anything else asks.
SYSTEMLIBRARY_EXPORT void SetDataDirectory(const QString& strDirectory);
SYSTEMLIBRARY_EXPORT QString DataDirectory();

} // namespace SystemPaths
