#include "tools/MakeSiteCommand.h"

#include "platform/SiteLibrary/SiteFile.h"
#include "tools/SiteMaker.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

// Plain digits within bounds and nothing else: no sign, no blank, no separator.
std::optional<qulonglong> Number(const QString& strText, qulonglong min, qulonglong max)
{
    const bool digits = !strText.isEmpty() && std::all_of(strText.begin(), strText.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    bool ok = false;
    const qulonglong value = strText.toULongLong(&ok);
    if (!digits || !ok || value < min || value > max)
        return std::nullopt;
    return value;
}

} // namespace

QString MakeSiteCommand::Name() const
{
    return QStringLiteral("make-site");
}

QString MakeSiteCommand::Description() const
{
    return tr("Writes the site file of a made-up site.");
}

int MakeSiteCommand::Run(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const QCommandLineOption doors(QStringLiteral("doors"),
                                   tr("Number of doors, 1 to %1.").arg(SiteMaker::MaxDoors),
                                   QStringLiteral("N"));
    const QCommandLineOption seed(
        QStringLiteral("seed"),
        tr("Which of the many sites of that size, 0 to 4294967295; the same seed gives the same site."),
        QStringLiteral("S"), QStringLiteral("1"));
    const QCommandLineOption output(QStringLiteral("output"),
                                    tr("File to write; without it the site goes to the standard output."),
                                    QStringLiteral("FILE"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this help."));
    QCommandLineParser parser;
    parser.setApplicationDescription(Description());
    parser.addOptions({doors, seed, output, help});

    const auto wrongUse = [&err](const QString& strWhy) {
        err << strWhy << '\n';
        return ExitCode::WrongUse;
    };
    if (!parser.parse(arguments))
        return wrongUse(parser.errorText());
    if (parser.isSet(help)) {
        // The parser names the program only; the rest of its text is what is wanted here.
        const QString strText = parser.helpText();
        out << tr("Usage: %1 --doors N [--seed S] [--output FILE]").arg(arguments.first())
            << strText.mid(strText.indexOf(QLatin1Char('\n')));
        return ExitCode::Done;
    }
    if (!parser.positionalArguments().isEmpty())
        return wrongUse(tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst()));
    if (!parser.isSet(doors))
        return wrongUse(tr("--doors is missing."));
    const auto doorCount = Number(parser.value(doors), 1, SiteMaker::MaxDoors);
    if (!doorCount)
        return wrongUse(tr("--doors takes a whole number from 1 to %1.").arg(SiteMaker::MaxDoors));
    const auto seedValue = Number(parser.value(seed), 0, std::numeric_limits<uint32_t>::max());
    if (!seedValue)
        return wrongUse(tr("--seed takes a whole number from 0 to 4294967295."));
    if (parser.isSet(output) && parser.value(output).isEmpty())
        return wrongUse(tr("--output takes the name of a file."));

    const Site site = SiteMaker::MakeSite(static_cast<int>(*doorCount), static_cast<uint32_t>(*seedValue));
    if (!parser.isSet(output)) {
        out << QString::fromUtf8(SiteFile::ToText(site));
        return ExitCode::Done;
    }
    SiteFileError error;
    if (!SiteFile::Write(parser.value(output), site, error)) {
        err << error.Text() << '\n';
        return ExitCode::Failure;
    }
    return ExitCode::Done;
}
