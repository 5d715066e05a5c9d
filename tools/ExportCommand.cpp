#include "tools/ExportCommand.h"

#include "scheme_services/exchange/SchemeFiles.h"
#include "scheme_services/exchange/SchemeTextWriter.h"
#include "tools/CommandInput.h"
#include "tools/JsonList.h"
#include "tools/ProgressLine.h"

#include <QTextStream>

#include <optional>

QString ExportCommand::Name() const
{
    return QStringLiteral("export");
}

QString ExportCommand::Description() const
{
    return tr("Writes the schemes as a JSON text.");
}

int ExportCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString output = QStringLiteral("output");
    CommandOptions options(Description(), tr("[--output FILE] [options]"));
    options.Add(output, tr("File to write; without it the text goes to the standard output."),
                QStringLiteral("FILE"));
    options.AddDatabase();
    options.AddFormat(); // of what is said about the writing; the text itself is JSON in any case
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const std::optional<AlarmInfoMap> schemes =
        CommandInput::ReadSchemes(options.DatabaseFile(), environment);
    if (!schemes)
        return ExitCode::Failure;

    ProgressLine progress(environment, tr("Writing the schemes"));
    if (!options.IsSet(output)) {
        SchemeTextWriter writer;
        writer.SetProgress([&progress](int iDone, int iAll) { progress.Show(iDone, iAll); });
        const bool written = writer.Write(*schemes, [&environment](const QByteArray& piece) {
            environment.out << QString::fromUtf8(piece);
            return environment.out.status() == QTextStream::Ok;
        });
        if (!written && !writer.Failure().isEmpty()) {
            environment.err << writer.Failure() << '\n';
            return ExitCode::Failure;
        }
        return ExitCode::Done; // a stream that fails is the program's matter
    }
    const SchemeFileProblems problems =
        SchemeFiles::WriteText(options.Value(output), *schemes,
                               [&progress](qint64 iDone, qint64 iAll) { progress.Show(iDone, iAll); });
    for (const SchemeFileProblem& problem : problems)
        environment.err << problem.Text() << '\n';
    if (!problems.isEmpty())
        return ExitCode::Failure;
    if (options.IsJson()) {
        environment.out << JsonList::Text({{QStringLiteral("format"), QStringLiteral("acs-scheme-export")},
                                           {QStringLiteral("version"), 1},
                                           {QStringLiteral("schemes"), schemes->size()},
                                           {QStringLiteral("file"), options.Value(output)}});
    } else {
        environment.out << tr("Schemes written: %1").arg(schemes->size()) << '\n';
    }
    return ExitCode::Done;
}
