#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"

#include <QByteArray>

#include <functional>
#include <optional>

/// The journal with which a commit has either happened or not, also after a power cut and also across the
/// files of one connection: mode TRUNCATE, everything synchronised with the disk. The mode of a file may have
/// been changed by other programs, so it is to be looked at whenever the file is opened.
namespace DurableJournal {

/// The failure's code when another journal is in use and cannot be left.
constexpr int32_t Refused = -3;

/// Sets both for one database of a connection ("main", or as it is attached), outside a transaction, and
/// reads them back. Leaving a write-ahead log needs the file for itself alone: `retry` is asked whether to go
/// on while another program has it, and may wait. Nothing when the journal is as it has to be.
std::optional<AlarmSchemeStatementFailure> Require(sqlite3* pDatabase, const QByteArray& schema,
                                                   const std::function<bool()>& retry);

/// Whether it still is so. Looks at the file, since others may have changed it; true when it cannot be read.
bool IsInUse(sqlite3* pDatabase, const QByteArray& schema);

} // namespace DurableJournal
