#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/Finding.h"
#include "schemeevaluation_export.h"

#include <QVector>

#include <functional>

class SiteIndex;

/// Looks through the schemes of a site for what cannot be meant.
namespace SchemeCheck {

/// How long an output may stay on, in seconds.
constexpr int32_t ShortestSeconds = 5;
constexpr int32_t LongestSeconds = 43200;
/// Regions of one day.
constexpr int MaxRegions = 6;

/// Is told how many schemes of how many have been looked at, now and then; false ends the check early.
using Progress = std::function<bool(int iDone, int iAll)>;

/// Everything found: scheme by scheme in key order, then the doors in the site's order. Of an empty site
/// nothing is known, so that no source, link, door or device is judged. Each finding names what is wrong
/// once: a day once for each kind, a link once. Pure; any thread.
SCHEMEEVALUATION_EXPORT QVector<Finding> Run(const AlarmInfoMap& map, const SiteIndex& site,
                                             const Progress& progress = {});

} // namespace SchemeCheck
