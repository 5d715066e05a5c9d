#include "client/ClientOptions.h"

#include <QCommandLineParser>
#include <QDir>

namespace {

QString AbsolutePath(const QString& strWorkingDirectory, const QString& strPath)
{
    return strPath.isEmpty() ? QString()
                             : QDir::cleanPath(QDir(strWorkingDirectory).absoluteFilePath(strPath));
}

ParsedOptions Refused(const QString& strReason)
{
    ParsedOptions parsed;
    parsed.outcome = ParsedOptions::Outcome::Refuse;
    parsed.strText = QStringLiteral("acs-client: ") + strReason + QLatin1Char('\n');
    return parsed;
}

} // namespace

ParsedOptions ClientOptionParser::Parse(const QStringList& arguments, const QString& strWorkingDirectory)
{
    const QCommandLineOption dataDir(QStringLiteral("data-dir"),
                                     tr("Keep settings, site and databases in this directory."),
                                     QStringLiteral("DIR"));
    const QCommandLineOption site(QStringLiteral("site"),
                                  tr("Read the site from this file instead of the data directory."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption role(QStringLiteral("role"), tr("Work as administrator or operator."),
                                  QStringLiteral("administrator|operator"), QStringLiteral("administrator"));
    const QCommandLineOption language(QStringLiteral("language"), tr("Show all texts in this language."),
                                      QStringLiteral("en|zh_cn"));
    const QCommandLineOption theme(QStringLiteral("theme"), tr("Use the dark or the light theme."),
                                   QStringLiteral("dark|light"));
    const QCommandLineOption open(QStringLiteral("open"), tr("Open the page of this module at the start."),
                                  QStringLiteral("MODULE"));
    const QCommandLineOption picture(
        QStringLiteral("picture"),
        tr("Draw the window into this PNG file once everything is shown, and end."), QStringLiteral("FILE"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")},
                                  tr("Print this help and end."));
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")},
                                     tr("Print the version and end."));

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Client for configuring the alarm schemes of a site."));
    const QList<QCommandLineOption> valued{dataDir, site, role, language, theme, open, picture};
    parser.addOptions(valued);
    parser.addOption(help);
    parser.addOption(version);

    const QStringList ours =
        WithoutToolkitArguments(arguments.isEmpty() ? QStringList{QStringLiteral("acs-client")} : arguments);
    if (!parser.parse(ours)) {
        return Refused(parser.errorText());
    }
    ParsedOptions parsed;
    if (parser.isSet(help)) {
        parsed.outcome = ParsedOptions::Outcome::Print;
        parsed.strText = parser.helpText();
        return parsed;
    }
    if (parser.isSet(version)) {
        parsed.outcome = ParsedOptions::Outcome::Print;
        parsed.strText = QStringLiteral("acs-client " ACS_CLIENT_VERSION "\n");
        return parsed;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return Refused(tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst()));
    }
    for (const QCommandLineOption& option : valued) {
        if (parser.isSet(option) && parser.value(option).trimmed().isEmpty()) {
            return Refused(tr("The option --%1 needs a value.").arg(option.names().constFirst()));
        }
        if (parser.values(option).size() > 1 && parser.isSet(option)) {
            return Refused(tr("The option --%1 is given more than once.").arg(option.names().constFirst()));
        }
    }

    const auto oneOf = [&parser, &parsed](const QCommandLineOption& option, const QStringList& allowed) {
        const QString strValue = parser.value(option);
        if (!parser.isSet(option) || allowed.contains(strValue)) {
            return true;
        }
        parsed = Refused(tr("\"%1\" is no value for --%2; use one of: %3.")
                             .arg(strValue, option.names().constFirst(), allowed.join(QStringLiteral(", "))));
        return false;
    };
    if (!oneOf(role, {QStringLiteral("administrator"), QStringLiteral("operator")}) ||
        !oneOf(language, {QStringLiteral("en"), QStringLiteral("zh_cn")}) ||
        !oneOf(theme, {QStringLiteral("dark"), QStringLiteral("light")})) {
        return parsed;
    }

    ClientOptions& options = parsed.options;
    options.strDataDirectory = AbsolutePath(strWorkingDirectory, parser.value(dataDir));
    options.strSiteFile = AbsolutePath(strWorkingDirectory, parser.value(site));
    options.role =
        parser.value(role) == QLatin1String("operator") ? UserRole::Operator : UserRole::Administrator;
    options.strLanguage = parser.value(language);
    options.strTheme = parser.value(theme);
    options.strOpenModule = parser.value(open);
    options.strPictureFile = AbsolutePath(strWorkingDirectory, parser.value(picture));
    return parsed;
}

QStringList ClientOptionParser::WithoutToolkitArguments(const QStringList& arguments)
{
    const QStringList valued{QStringLiteral("-platform"), QStringLiteral("-platformtheme"),
                             QStringLiteral("-style"),    QStringLiteral("-display"),
                             QStringLiteral("-geometry"), QStringLiteral("-session")};
    QStringList kept;
    for (int i = 0; i < arguments.size(); ++i) {
        if (i > 0 && valued.contains(arguments.at(i))) {
            ++i;
            continue;
        }
        kept.append(arguments.at(i));
    }
    return kept;
}
