#include "scheme_services/site/SiteImport.h"

#include "platform/SiteLibrary/SiteFile.h"
#include "platform/SystemLibrary/WholeFile.h"
#include "scheme_services/site/SiteTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 Megabyte = 1024LL * 1024;
constexpr qint64 LargestFile = 64 * Megabyte;
constexpr int MostBackups = 1000;

bool Fail(QString& strReason, const QString& strPath, const QString& strWhy)
{
    strReason = SiteExchangeText::tr("%1: %2").arg(QDir::toNativeSeparators(strPath), strWhy);
    return false;
}

/// A record or list of JSON begins so; no heading row does.
bool IsJson(const QByteArray& text)
{
    const QByteArray start = (text.startsWith("\xEF\xBB\xBF") ? text.mid(3, 256) : text.left(256)).trimmed();
    return start.startsWith('{') || start.startsWith('[');
}

bool KeepBackup(const QString& strPath, QString& strBackup, QString& strReason)
{
    for (int i = 1; i <= MostBackups; ++i) {
        strBackup = strPath + (i == 1 ? QStringLiteral(".bak") : QStringLiteral(".bak%1").arg(i));
        const QFileInfo info(strBackup);
        if (info.exists() || info.isSymLink()) {
            continue;
        }
        QFile file(strPath);
        if (file.copy(strBackup)) {
            return true;
        }
        if (!QFileInfo::exists(strBackup)) {
            return Fail(strReason, strBackup, file.errorString());
        }
    }
    return Fail(strReason, strPath,
                SiteExchangeText::tr("there are %1 backup copies already; move them away").arg(MostBackups));
}

} // namespace

SiteImportPlan SiteImport::Plan(const QByteArray& text, const Site& before)
{
    SiteImportPlan plan;
    if (IsJson(text)) {
        SiteFileError error;
        if (!SiteFile::Parse(text, QString(), plan.site, error)) {
            plan.problems.Add(error.iLine, error.strReason);
        }
    } else {
        plan.eForm = SiteForm::Csv;
        SiteTable::Parsed parsed = SiteTable::Parse(text, before);
        plan.site = parsed.site;
        plan.problems = parsed.problems;
        plan.lines = parsed.lines;
    }
    if (plan.IsSound()) {
        plan.difference = SiteDifference::Between(before, plan.site);
    } else {
        plan.site = Site();
    }
    return plan;
}

bool SiteImport::ReadFile(const QString& strPath, QByteArray& text, QString& strReason)
{
    const QFileInfo info(strPath);
    if (!info.exists()) {
        return Fail(strReason, strPath, SiteExchangeText::tr("the file does not exist"));
    }
    if (!info.isFile()) { // opening a pipe would wait for its other end
        return Fail(strReason, strPath, SiteExchangeText::tr("this is not a file"));
    }
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly)) {
        return Fail(strReason, strPath, file.errorString());
    }
    const QByteArray bytes = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError) {
        return Fail(strReason, strPath, file.errorString());
    }
    if (bytes.size() > LargestFile) {
        return Fail(strReason, strPath,
                    SiteExchangeText::tr("the file is larger than %1 MB").arg(LargestFile / Megabyte));
    }
    text = bytes;
    return true;
}

bool SiteImport::ReplaceSiteFile(const QString& strPath, const Site& site, const QByteArray& expected,
                                 QString& strBackup, QString& strReason)
{
    strBackup.clear();
    if (QFileInfo::exists(strPath)) {
        QByteArray bytes;
        if (!ReadFile(strPath, bytes, strReason)) {
            return false;
        }
        if (bytes != expected) {
            return Fail(strReason, strPath,
                        SiteExchangeText::tr("the file was changed by somebody else meanwhile"));
        }
        if (!KeepBackup(strPath, strBackup, strReason)) {
            return false;
        }
    } else if (!expected.isEmpty()) {
        return Fail(strReason, strPath, SiteExchangeText::tr("the file does not exist any more"));
    }
    SiteFileError error;
    if (!SiteFile::Write(strPath, site, error)) {
        strReason = error.Text();
        if (!strBackup.isEmpty()) {
            QFile::remove(strBackup);
            strBackup.clear();
        }
        return false;
    }
    return true;
}

QByteArray SiteImport::ToText(const Site& site, SiteForm eForm)
{
    return eForm == SiteForm::Csv ? SiteTable::ToText(site) : SiteFile::ToText(site);
}

bool SiteImport::Export(const QString& strPath, const Site& site, SiteForm eForm, QString& strReason)
{
    QString strWhy;
    return WholeFile::Write(strPath, ToText(site, eForm), strWhy) || Fail(strReason, strPath, strWhy);
}

SiteForm SiteImport::FormOfFile(const QString& strPath)
{
    const QString strEnd = QFileInfo(strPath).suffix().toLower();
    const bool bTable =
        strEnd == QLatin1String("csv") || strEnd == QLatin1String("tsv") || strEnd == QLatin1String("txt");
    return bTable ? SiteForm::Csv : SiteForm::Json;
}
