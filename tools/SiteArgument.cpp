#include "tools/SiteArgument.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString& DataDir()
{
    static const QString name = QStringLiteral("data-dir");
    return name;
}

const QString& SiteOption()
{
    static const QString name = QStringLiteral("site");
    return name;
}

} // namespace

void SiteArgument::AddTo(CommandOptions& options)
{
    options.Add(DataDir(), tr("Works on the site of this directory instead of the client's own."),
                QStringLiteral("DIR"));
    options.Add(SiteOption(), tr("Works on this site file."), QStringLiteral("FILE"));
}

std::optional<QString> SiteArgument::FileOf(const CommandOptions& options, CommandEnvironment& environment)
{
    if (options.IsSet(DataDir()) && options.IsSet(SiteOption())) {
        CommandOptions::WrongUse(environment, tr("--site and --data-dir exclude each other."));
        return std::nullopt;
    }
    if (options.IsSet(SiteOption()))
        return QFileInfo(options.Value(SiteOption())).absoluteFilePath();
    const QString directory =
        options.IsSet(DataDir()) ? options.Value(DataDir()) : environment.strDefaultDataDirectory;
    return QFileInfo(QDir(directory).filePath(QStringLiteral("site.json"))).absoluteFilePath();
}
