#pragma once

#include "lxl_export.h"

#include <QDateTime>
#include <QString>

#include <string>

namespace lxl {

/// The last component of a source path with either kind of separator.
LXL_EXPORT QString SourceBaseName(const QString& strPath);

/// Name of a level in the log; the number for one without a name.
LXL_EXPORT QString LevelName(int iLevel);

/// A text in which nothing can end or disturb a line: line breaks become "\n" and "\r", other control
/// characters but the tab "\xNN".
LXL_EXPORT QString OneLine(const QString& strText);

/// One line of the log in UTF-8, with its line break.
LXL_EXPORT std::string LogLine(const QDateTime& time, const QString& strFile, int iLine,
                               const QString& strFunction, const QString& strModule, int iLevel,
                               const QString& strMessage);

} // namespace lxl
