#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "alarmrecords_export.h"

#include <QByteArray>

#include <optional>

/// A record as bytes, for what keeps records outside the scheme database. Equal records give equal bytes, on
/// every computer and with every version of Qt, so that bytes can be compared and hashed in place of records.
namespace AlarmInfoBytes {

ALARMRECORDS_EXPORT QByteArray Write(const AlarmInfo& info);

/// Nothing when these are not the bytes of one record and no more. Bytes from anywhere do no harm: no memory
/// is taken but in proportion to their number.
ALARMRECORDS_EXPORT std::optional<AlarmInfo> Read(const QByteArray& bytes);

} // namespace AlarmInfoBytes
