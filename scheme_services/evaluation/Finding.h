#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "schemeevaluation_export.h"

#include <QCoreApplication>
#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <optional>

class SiteIndex;

/// What can be found wrong, or worth knowing. The names of the codes (Finding::CodeName) are kept for ever:
/// files and scripts refer to them.
enum class FindingCode
{
    NeverArmed,
    NoReaction,
    UnknownSource,
    UnknownOutput,
    UnknownDoor,
    UnknownVideo,
    BadDuration,
    TooManyRegions,
    OverlappingRegions,
    TouchingRegions,
    ImpossibleRegion,
    UnwatchedDoor,
    OfflineDevice,
};

enum class FindingSeverity
{
    Error,
    Warning,
    Information,
};

/// One thing found at one place.
struct SCHEMEEVALUATION_EXPORT Finding
{
    Q_DECLARE_TR_FUNCTIONS(Finding)

public:
    FindingCode code = FindingCode::NeverArmed;
    AlarmSourceKey key; ///< the scheme; with a type of -1 the source as such
    int iDay = -1;      ///< 0 (Sunday) to 6 where a day is meant
    int iValue = 0;     ///< seconds of a duration, or a count of regions
    QString strLink;    ///< output, door or video that is meant, as the scheme names it

    static constexpr int CodeCount = 13;
    static QString CodeName(FindingCode code); ///< "never-armed"
    static std::optional<FindingCode> CodeOf(const QString& strName);
    static FindingSeverity SeverityOf(FindingCode code);
    static QString SeverityName(FindingSeverity severity); ///< translated

    FindingSeverity Severity() const { return SeverityOf(code); }
    /// Where, in names of the site: "Lobby/Door 1, Door Forced Open, Monday".
    QString Place(const SiteIndex& site) const;
    QString Text(const SiteIndex& site) const; ///< what is wrong, one sentence
    QString Advice() const;                    ///< what to do about it, one sentence
};
