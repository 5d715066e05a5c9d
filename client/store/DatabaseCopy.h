#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <QString>

#include <chrono>
#include <optional>

/// Copies of whole databases through SQLite's backup interface: one moment of the source, whoever else has it
/// open, and all or nothing at the destination.
namespace DatabaseCopy {

/// Makes `strTo` the same as the database `strFrom`; what it held before is overwritten, within one
/// transaction, so that other programs may have it open. A file that is made and then fails stays as an empty
/// one. The copy keeps no write-ahead log. Nothing when everything is on the disk, else the reason. `wait` is
/// the longest time to wait for other programs. Any thread.
std::optional<AlarmSchemeStatementFailure> Copy(const QString& strFrom, const QString& strTo,
                                                std::chrono::milliseconds wait);

} // namespace DatabaseCopy
