#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <functional>

/// What a scheme says, apart from how it is kept. Pure.
namespace SchemeContent {

/// Whether the key of a linked alarm output names an output that the site has.
using KnownOutput = std::function<bool(const QString& strLinkAlarmID)>;

/// Whether two schemes mean the same: links are compared by id and not by their order, of several links with
/// one id the last counts, and alarm outputs that the site does not have do not count.
bool AreSame(const AlarmInfo& a, const AlarmInfo& b, const KnownOutput& isKnown);

/// The record behind a pointer, a fresh one for null: a scheme that is absent means the default.
const AlarmInfo& OrDefault(const AlarmInfo* pInfo);

} // namespace SchemeContent
