#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

/// A moment that a person names: "2026-11-23T08:30", with seconds or without, with a blank for the T, and
/// with an offset from UTC ("+01:00", "Z") where the clock shows a time twice.
struct MomentArgument
{
    Q_DECLARE_TR_FUNCTIONS(MomentArgument)

public:
    QDateTime at;        ///< in the zone asked for; invalid when there is a problem
    bool bTwice = false; ///< the clock shows this time twice on that day; the first is meant
    QString strProblem;  ///< translated; empty when all is well

    /// `strZone` is a time zone's id; empty for the computer's own.
    static MomentArgument Parse(const QString& strText, const QString& strZone);
};
