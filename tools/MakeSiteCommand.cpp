#include "tools/MakeSiteCommand.h"

#include "platform/SiteLibrary/SiteFile.h"
#include "tools/CommandOptions.h"
#include "tools/SiteMaker.h"

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

int MakeSiteCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString doors = QStringLiteral("doors");
    const QString seed = QStringLiteral("seed");
    const QString output = QStringLiteral("output");
    CommandOptions options(Description(), tr("--doors N [--seed S] [--output FILE]"));
    options.Add(doors, tr("Number of doors, 1 to %1.").arg(SiteMaker::MaxDoors), QStringLiteral("N"));
    options.Add(
        seed, tr("Which of the many sites of that size, 0 to 4294967295; the same seed gives the same site."),
        QStringLiteral("S"));
    options.Add(output, tr("File to write; without it the site goes to the standard output."),
                QStringLiteral("FILE"));
    // A site is JSON whichever is asked for.
    options.AddFormat();
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;

    if (!options.IsSet(doors))
        return CommandOptions::WrongUse(environment, tr("--doors is missing."));
    const auto doorCount = Number(options.Value(doors), 1, SiteMaker::MaxDoors);
    if (!doorCount) {
        return CommandOptions::WrongUse(
            environment, tr("--doors takes a whole number from 1 to %1.").arg(SiteMaker::MaxDoors));
    }
    const QString strSeed = options.IsSet(seed) ? options.Value(seed) : QStringLiteral("1");
    const auto seedValue = Number(strSeed, 0, std::numeric_limits<uint32_t>::max());
    if (!seedValue)
        return CommandOptions::WrongUse(environment, tr("--seed takes a whole number from 0 to 4294967295."));

    const Site site = SiteMaker::MakeSite(static_cast<int>(*doorCount), static_cast<uint32_t>(*seedValue));
    if (!options.IsSet(output)) {
        environment.out << QString::fromUtf8(SiteFile::ToText(site));
        return ExitCode::Done;
    }
    SiteFileError error;
    if (!SiteFile::Write(options.Value(output), site, error)) {
        environment.err << error.Text() << '\n';
        return ExitCode::Failure;
    }
    return ExitCode::Done;
}
