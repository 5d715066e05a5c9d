#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/SchemeReactions.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

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

    /// {"source","sourceName","event","eventName"}.
    static QJsonObject KeyJson(const AlarmSourceKey& key, const SiteIndex& site);
    static QJsonObject ReactionsJson(const SchemeReactions& reactions, const SiteIndex& site);
};
