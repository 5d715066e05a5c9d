#pragma once

#include "client/store/SchemeHistoryEntry.h"
#include "scheme_services/exchange/SchemeComparison.h"
#include "tools/CommandEnvironment.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

#include <optional>

/// Steps of the history as the commands read and write them.
class HistoryText
{
    Q_DECLARE_TR_FUNCTIONS(HistoryText)

public:
    HistoryText() = delete;

    /// The number of a step as a person has typed it; nothing when it has been said why that is none.
    static std::optional<qint64> Number(const QString& strText, CommandEnvironment& environment);
    /// Local time, to the second.
    static QString Time(const SchemeHistoryEntry& entry);
    /// One line without its end.
    static QString Line(const SchemeHistoryEntry& entry);
    static QJsonObject Json(const SchemeHistoryEntry& entry);
    static SchemeDifference Difference(const SchemeHistoryChange& change);
};
