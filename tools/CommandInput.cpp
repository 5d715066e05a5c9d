#include "tools/CommandInput.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"
#include "platform/SiteLibrary/SiteFile.h"
#include "tools/ProgressLine.h"

#include <QFileInfo>
#include <QTextStream>

std::optional<AlarmInfoMap> CommandInput::ReadSchemes(const QString& strDatabase,
                                                      CommandEnvironment& environment)
{
    AlarmInfoMap map;
    AlarmSchemeReadOutcome outcome;
    {
        ProgressLine progress(environment, tr("Reading the schemes"));
        AlarmSchemeStoreReader reader(strDatabase);
        reader.SetPulse([&progress]() {
            progress.Show();
            return true;
        });
        outcome = reader.Read(map);
    }
    if (!outcome.IsSuccess()) {
        environment.err << outcome.Text() << '\n';
        return std::nullopt;
    }
    return map;
}

std::optional<Site> CommandInput::ReadSite(const CommandOptions& options, CommandEnvironment& environment)
{
    Site site;
    const QString strFile = options.SiteFile();
    if (strFile.isEmpty() || (!options.IsSet(QStringLiteral("site")) && !QFileInfo::exists(strFile)))
        return site;
    SiteFileError error;
    if (!SiteFile::Read(strFile, site, error)) {
        environment.err << error.Text() << '\n';
        return std::nullopt;
    }
    return site;
}
