#pragma once

#include "uicommonmdl_export.h"

#include <QString>

class QWidget;

namespace UICommonMdl {

class UICOMMONMDL_EXPORT CommonFun
{
public:
    /// Gives a widget its module's style sheet, "./Skin/theme1/<module>.qss" with the theme's colours put in.
    /// `strSubDirectory` below "./Skin/theme1/" and `strSuffix` behind the module name may be empty. A
    /// missing file leaves the widget as it is and is logged.
    static void SetStyleSheet(QWidget* pWidget, const QString& strModule, const QString& strSubDirectory,
                              const QString& strSuffix);
};

} // namespace UICommonMdl
