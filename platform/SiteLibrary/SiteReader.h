#pragma once

#include "platform/SiteLibrary/Site.h"

#include <QByteArray>

/// Why a text is no site.
struct SiteTextError
{
    int iLine = 0;     ///< from 1
    QString strReason; ///< translated
};

/// Reads the text of a site file; false with the first error, and then `site` is left as it was.
bool ReadSiteText(const QByteArray& text, Site& site, SiteTextError& error);
