#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/SchemeMoment.h"
#include "scheme_services/evaluation/SchemeReactions.h"
#include "schemeevaluation_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

/// What would happen if an event came from a source at a moment.
struct SCHEMEEVALUATION_EXPORT SchemeExplanation
{
    Q_DECLARE_TR_FUNCTIONS(SchemeExplanation)

public:
    QDateTime at;
    /// Under which key the scheme is kept: that of the whole device for the event that devices have once.
    /// Nothing when the source cannot have such an event.
    std::optional<AlarmSourceKey> key;
    SchemeVerdict verdict = SchemeVerdict::NoScheme;
    /// Only while armed or not armed, in the zone of `at`; nothing when it has always been so.
    std::optional<QDateTime> since;
    std::optional<QDateTime> nextChange; ///< nothing when nothing changes by itself
    /// What the scheme does when it is armed; also filled while it is not.
    SchemeReactions reactions;

    /// The key under which the scheme of an event is kept. Nothing for a source that cannot have the event:
    /// one of a whole device at a source that names none, or any but its own at an alarm input.
    static std::optional<AlarmSourceKey> KeyOf(const QString& strSource, int32_t iType);
    static SchemeExplanation Of(const AlarmInfoMap& map, const QString& strSource, int32_t iType,
                                const QDateTime& at);

    /// The verdict in one sentence, translated.
    QString Sentence() const;
    /// A moment as the sentence writes it: "Mon 2026-11-23 08:30".
    static QString MomentText(const QDateTime& moment);
};
