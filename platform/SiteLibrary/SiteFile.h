#pragma once

#include "platform/SiteLibrary/Site.h"

#include <QByteArray>

/// Why a site file was refused: where and what, for people.
struct SITELIBRARY_EXPORT SiteFileError
{
    QString strFile;
    int iLine = 0;     ///< from 1; 0 when the error has no line (file missing, not readable)
    QString strReason; ///< translated

    QString Text() const; ///< "file, line n: reason"
};

/// Reading and writing of site files (JSON, format in docs/site-file.md).
namespace SiteFile {

/// Reads a file; false with the first error when anything in it is wrong, and then `site` is left as it was.
SITELIBRARY_EXPORT bool Read(const QString& strPath, Site& site, SiteFileError& error);
SITELIBRARY_EXPORT bool Parse(const QByteArray& text, const QString& strFileName, Site& site,
                              SiteFileError& error);
/// UTF-8, two blanks of indent; reading it back gives the same site.
SITELIBRARY_EXPORT QByteArray ToText(const Site& site);
/// Writes through a temporary file, so that no half file is left; false with the reason.
SITELIBRARY_EXPORT bool Write(const QString& strPath, const Site& site, SiteFileError& error);

} // namespace SiteFile
