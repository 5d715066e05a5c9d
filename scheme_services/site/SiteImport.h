#pragma once

#include "platform/SiteLibrary/Site.h"
#include "scheme_services/site/SiteDifference.h"
#include "scheme_services/site/SiteProblem.h"

#include <QByteArray>
#include <QHash>
#include <QString>

/// How a site is written down outside its own file.
enum class SiteForm
{
    Json, ///< as the site file
    Csv
};

/// What an import would do, looked at before anything is changed.
struct SiteImportPlan
{
    SiteForm eForm = SiteForm::Json;
    Site site; ///< to be used only when there are no problems
    SiteProblems problems;
    SiteDifference difference;
    QHash<int64_t, int> lines; ///< the line of each record of a table; empty for JSON

    bool IsSound() const { return problems.IsEmpty(); }
};

/// Bringing whole sites in and out. Nothing here asks; who calls has shown the plan.
namespace SiteImport {

/// Reads a text of either form; which one it is, the text tells.
SiteImportPlan Plan(const QByteArray& text, const Site& before);
/// The bytes of a file that is small enough to be a site; false with the reason.
bool ReadFile(const QString& strPath, QByteArray& text, QString& strReason);
/// Replaces a site file by this site, and keeps what it held in a file beside it: ".bak", then ".bak2" and so
/// on, never over an older one. A file that no longer holds `expected` is left alone. False with the reason,
/// and nothing changed. Without a file there is no backup and nothing to expect.
bool ReplaceSiteFile(const QString& strPath, const Site& site, const QByteArray& expected, QString& strBackup,
                     QString& strReason);

QByteArray ToText(const Site& site, SiteForm eForm);
/// Writes an export through a temporary file; false with the reason.
bool Export(const QString& strPath, const Site& site, SiteForm eForm, QString& strReason);
/// CSV for a file name that ends in ".csv", ".tsv" or ".txt", JSON for any other.
SiteForm FormOfFile(const QString& strPath);

} // namespace SiteImport
