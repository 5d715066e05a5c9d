#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QString>
#include <QStringList>

/// Schemes as lines of text, so that two maps can be compared and a difference read.
namespace SchemeText {

/// "key#type" and every field that differs from a fresh record.
QString Line(const AlarmSourceKey& key, const AlarmInfo& info);
/// A line for every scheme that differs from a fresh record: what browsing adds does not count.
QStringList Edited(const AlarmInfoMap& schemes);
/// "key#type" of every scheme, in the order of the map.
QStringList Keys(const AlarmInfoMap& schemes);
/// The keys of a map that belong to a device by their first field, whatever the others are.
QStringList KeysOfDevice(const AlarmInfoMap& schemes, int64_t iDeviceId);

} // namespace SchemeText
