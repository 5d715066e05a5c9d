#include "platform/UICommonMdl/CommonFun.h"

#include "platform/LXGUI/Theme.h"
#include "platform/lxl/DPrintLog.h"

#include <QFile>
#include <QWidget>

namespace UICommonMdl {
namespace {

constexpr qint64 LargestFile = 4194304;

QString PathOf(const QString& strModule, const QString& strSubDirectory, const QString& strSuffix)
{
    QString strPath = QStringLiteral("./Skin/theme1/");
    if (!strSubDirectory.isEmpty()) {
        strPath += strSubDirectory + QLatin1Char('/');
    }
    return strPath + strModule + strSuffix + QStringLiteral(".qss");
}

} // namespace

void CommonFun::SetStyleSheet(QWidget* pWidget, const QString& strModule, const QString& strSubDirectory,
                              const QString& strSuffix)
{
    if (!pWidget) {
        return;
    }
    const QString strPath = PathOf(strModule, strSubDirectory, strSuffix);
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly) || file.size() > LargestFile) {
        lxl::DPrintLog::instance().Log(__FILE__, __LINE__, "CommonFun::SetStyleSheet", "UICommonMdl",
                                       lxl::LogWarning, "Style sheet \"%s\" cannot be read: %s",
                                       strPath.toUtf8().constData(), file.errorString().toUtf8().constData());
        return;
    }
    pWidget->setStyleSheet(LXGUI::Theme::Current().Resolve(QString::fromUtf8(file.readAll())));
}

} // namespace UICommonMdl
