#pragma once

#include "scheme_services/evaluation/Finding.h"
#include "schemeevaluation_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPair>
#include <QSet>
#include <QString>

#include <optional>

/// The findings that nobody wants to hear of. A text file in UTF-8, one code a line, by itself or followed by
/// the key of the only event source that is meant; what follows a "#" at the beginning of a line or behind a
/// blank is a comment.
class SCHEMEEVALUATION_EXPORT SilencedFindings
{
    Q_DECLARE_TR_FUNCTIONS(SilencedFindings)

public:
    /// Nothing when a line says something else; then `strProblem` tells which and why.
    static std::optional<SilencedFindings> Parse(const QByteArray& text, QString& strProblem);
    /// A file of such a text; one that is no file, not readable or larger than a megabyte is a problem too.
    static std::optional<SilencedFindings> Read(const QString& strPath, QString& strProblem);

    bool Holds(const Finding& finding) const;

private:
    QSet<int> m_codes;
    QSet<QPair<int, QString>> m_places;
};
