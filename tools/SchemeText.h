#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/SchemeReactions.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class QTextStream;

/// Schemes in words and in JSON, as the commands write them.
class SchemeText
{
    Q_DECLARE_TR_FUNCTIONS(SchemeText)

public:
    SchemeText() = delete;

    /// A text on a line of its own, harmless to a terminal whatever a database holds: characters that would
    /// move, erase or turn other text around are written by their numbers.
    static void Line(QTextStream& out, const QString& strText);

    /// "Lobby/Door 1, Door Forced Open".
    static QString Name(const AlarmSourceKey& key, const SiteIndex& site);
    /// One line each: "switches on Lobby/Siren for 20 s".
    static QStringList Reactions(const SchemeReactions& reactions, const SiteIndex& site);
    /// "08:00-12:00, 13:00-24:00", with seconds where there are any; "not armed" for an empty day.
    static QString Day(const AlarmDefenceTime_t& regions);

    /// {"source","sourceName","event","eventName"}.
    static QJsonObject KeyJson(const AlarmSourceKey& key, const SiteIndex& site);
    static QJsonObject ReactionsJson(const SchemeReactions& reactions, const SiteIndex& site);
};
