#include "tools/BackupCommand.h"

#include "client/store/DatabaseCopy.h"
#include "client/store/SchemeBackups.h"
#include "tools/CommandInput.h"
#include "tools/JsonList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QUuid>

#include <chrono>
#include <optional>

namespace {

constexpr std::chrono::milliseconds Wait{5000};

using Failure = std::optional<AlarmSchemeStatementFailure>;

/// The file appears whole, or not at all.
Failure CopyTo(const QString& strDatabase, const QString& strFile)
{
    const QString copy = strFile + QLatin1Char('.') + QUuid::createUuid().toString(QUuid::WithoutBraces);
    Failure failure = DatabaseCopy::Copy(strDatabase, copy, Wait);
    if (!failure && !QFile::rename(copy, strFile))
        failure = AlarmSchemeStatementFailure{-1, QStringLiteral("it cannot be named")};
    if (failure) {
        QFile::remove(copy);
        QFile::remove(copy + QLatin1String("-journal"));
    }
    return failure;
}

} // namespace

QString BackupCommand::Name() const
{
    return QStringLiteral("backup");
}

QString BackupCommand::Description() const
{
    return tr("Copies the database.");
}

int BackupCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString output = QStringLiteral("output");
    CommandOptions options(Description(), tr("[--output FILE] [options]"));
    options.Add(output,
                tr("File to make; without it the copy goes to the folder \"backups\" beside the database, "
                   "where the last %1 are kept.")
                    .arg(SchemeBackups::Kept),
                QStringLiteral("FILE"));
    options.AddDatabase();
    options.AddFormat();
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    QString file = options.IsSet(output) ? QFileInfo(options.Value(output)).absoluteFilePath() : QString();
    // Also one that leads nowhere.
    if (!file.isEmpty() && (QFileInfo::exists(file) || QFileInfo(file).isSymLink()))
        return CommandOptions::WrongUse(environment, tr("There is a file \"%1\" already.").arg(file));
    // What is no sound database of schemes is no backup either.
    const std::optional<AlarmInfoMap> schemes =
        CommandInput::ReadSchemes(options.DatabaseFile(), environment);
    if (!schemes)
        return ExitCode::Failure;

    const SchemeBackups backups(options.DatabaseFile());
    const Failure failure = file.isEmpty() ? backups.Make(Wait) : CopyTo(options.DatabaseFile(), file);
    if (failure) {
        environment.err << tr("The backup could not be made: %1").arg(failure->strMessage) << '\n';
        return ExitCode::Failure;
    }
    if (file.isEmpty())
        file = backups.List().value(0).strPath;
    if (options.IsJson()) {
        environment.out << JsonList::Text({{QStringLiteral("format"), QStringLiteral("acs-scheme-backup")},
                                           {QStringLiteral("version"), 1},
                                           {QStringLiteral("schemes"), schemes->size()},
                                           {QStringLiteral("file"), file}});
    } else {
        environment.out << tr("Schemes: %1, copied to %2")
                               .arg(QString::number(schemes->size()), QDir::toNativeSeparators(file))
                        << '\n';
    }
    return ExitCode::Done;
}
