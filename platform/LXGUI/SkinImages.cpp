#include "platform/LXGUI/SkinImages.h"

#include <QFile>
#include <QIcon>
#include <QWidget>

namespace LXGUI {

QPixmap SkinImage(const QWidget* pWidget, const QString& strName, QStyle::StandardPixmap substitute,
                  int iSize)
{
    const QString strPath = QStringLiteral("./Skin/theme1/") + strName;
    QIcon icon;
    if (QFile::exists(strPath)) {
        icon = QIcon(strPath);
    }
    if (icon.isNull() || icon.availableSizes().isEmpty()) {
        icon = pWidget->style()->standardIcon(substitute, nullptr, pWidget);
    }
    return icon.pixmap(pWidget->window()->windowHandle(), QSize(iSize, iSize));
}

} // namespace LXGUI
