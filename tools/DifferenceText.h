#pragma once

#include "scheme_services/evaluation/SiteIndex.h"
#include "scheme_services/exchange/SchemeComparison.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

/// Differences between schemes in words and in JSON.
class DifferenceText
{
    Q_DECLARE_TR_FUNCTIONS(DifferenceText)

public:
    DifferenceText() = delete;

    /// "Lobby/Door 1, Door Forced Open [7$1$0$12, 101]".
    static QString Scheme(const AlarmSourceKey& key, const SiteIndex& site);
    /// A line for the scheme and an indented one for each field, each with its end.
    static QString Lines(const SchemeDifference& difference, const SiteIndex& site);
    static QJsonObject Json(const SchemeDifference& difference, const SiteIndex& site);
    /// "Added: 1, removed: 0, changed: 2, equal: 40".
    static QString Counts(const SchemeComparison::Counts& counts);
    static QJsonObject CountsJson(const SchemeComparison::Counts& counts);

private:
    static QString Field(const SchemeFieldDifference& field);
    static QString Value(const QString& strField, const QJsonValue& value);
};
