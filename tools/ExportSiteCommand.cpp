#include "tools/ExportSiteCommand.h"

#include "platform/SiteLibrary/SiteFile.h"
#include "scheme_services/site/SiteImport.h"
#include "tools/CommandOptions.h"
#include "tools/SiteArgument.h"

#include <QFileInfo>
#include <QTextStream>

QString ExportSiteCommand::Name() const
{
    return QStringLiteral("export-site");
}

QString ExportSiteCommand::Description() const
{
    return tr("Writes the client's site as a table or a site file.");
}

int ExportSiteCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString format = QStringLiteral("format");
    const QString output = QStringLiteral("output");
    CommandOptions options(Description(),
                           tr("[--format csv|json] [--output FILE] [--data-dir DIR | --site FILE]"));
    options.Add(format, tr("The form; without it the one that goes with the file's name, or csv."),
                QStringLiteral("csv|json"));
    options.Add(output, tr("File to write; without it the site goes to the standard output."),
                QStringLiteral("FILE"));
    SiteArgument::AddTo(options);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const std::optional<QString> siteFile = SiteArgument::FileOf(options, environment);
    if (!siteFile)
        return ExitCode::WrongUse;
    const QString file = options.Value(output);
    SiteForm form = file.isEmpty() ? SiteForm::Csv : SiteImport::FormOfFile(file);
    if (options.IsSet(format)) {
        const QString word = options.Value(format);
        if (word != QLatin1String("csv") && word != QLatin1String("json"))
            return CommandOptions::WrongUse(environment, tr("--format takes \"csv\" or \"json\"."));
        form = word == QLatin1String("csv") ? SiteForm::Csv : SiteForm::Json;
    }
    if (!file.isEmpty() && QFileInfo(file) == QFileInfo(*siteFile))
        return CommandOptions::WrongUse(environment, tr("--output names the site file itself."));

    Site site;
    SiteFileError error;
    if (!SiteFile::Read(*siteFile, site, error)) {
        environment.err << error.Text() << '\n';
        return ExitCode::Failure;
    }
    if (file.isEmpty()) {
        // The mark of UTF-8 is for spreadsheets; in the way of a shell it would only be dirt.
        QByteArray text = SiteImport::ToText(site, form);
        if (text.startsWith("\xEF\xBB\xBF"))
            text.remove(0, 3);
        environment.out << QString::fromUtf8(text);
        return ExitCode::Done;
    }
    QString reason;
    if (!SiteImport::Export(file, site, form, reason)) {
        environment.err << reason << '\n';
        return ExitCode::Failure;
    }
    return ExitCode::Done;
}
