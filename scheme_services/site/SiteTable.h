#pragma once

#include "platform/SiteLibrary/Site.h"
#include "scheme_services/site/SiteProblem.h"

#include <QByteArray>
#include <QHash>

/// A site as a table for spreadsheets: one row a group, device or channel (form in docs/site-file.md).
namespace SiteTable {

struct Parsed
{
    Site site;                 ///< sound when there are no problems, else not to be used
    QHash<int64_t, int> lines; ///< the line of every record by its id
    SiteProblems problems;
};

/// Reads UTF-8 with or without its mark; comma, semicolon or tab, whichever the heading row uses; columns in
/// any order. Empty cells of "enabled" and "online" keep what the record has in `before`.
Parsed Parse(const QByteArray& text, const Site& before);
/// With the mark of UTF-8, commas and CR LF, as spreadsheets want it; reading it back gives the same site.
QByteArray ToText(const Site& site);

} // namespace SiteTable
