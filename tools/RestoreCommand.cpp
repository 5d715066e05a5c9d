#include "tools/RestoreCommand.h"

#include "client/store/SchemeRestore.h"
#include "client/store/SystemUser.h"
#include "platform/lxl/DPrintLog.h"
#include "tools/CommandInput.h"
#include "tools/JsonList.h"
#include "tools/SchemeWriting.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include <chrono>
#include <optional>

namespace {

constexpr std::chrono::milliseconds Wait{5000};

} // namespace

QString RestoreCommand::Name() const
{
    return QStringLiteral("restore");
}

QString RestoreCommand::Description() const
{
    return tr("Puts a copy of a database back.");
}

int RestoreCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    CommandOptions options(Description(), tr("FILE [options]"));
    options.AddDatabase();
    options.AddFormat();
    options.SetArguments(1, 1);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    const QString copy = QFileInfo(options.Arguments().constFirst()).absoluteFilePath();
    const QString database = options.DatabaseFile();
    const QString real = QFileInfo(copy).canonicalFilePath();
    if (!real.isEmpty() && real == QFileInfo(database).canonicalFilePath())
        return CommandOptions::WrongUse(environment, tr("This is the database itself."));
    if (!CommandInput::ReadSchemes(copy, environment)) {
        environment.err << tr("Nothing was changed.") << '\n';
        return ExitCode::Failure;
    }

    lxl::DPrintLog::instance().SetStandardError(false); // what matters of the store's log is said here
    if (!options.DataDirectory().isEmpty())
        QDir().mkpath(QFileInfo(database).path()); // a failure shows in the writing
    SchemeRestore restore(database, Wait);
    const SaveResult result = restore.Restore(
        copy, SaveOrigin{SystemUser::Name(), SchemeHistoryKind::Restore, QFileInfo(copy).fileName()});
    if (!SchemeWriting::Tell(result, environment))
        return ExitCode::Failure;
    if (options.IsJson()) {
        environment.out << JsonList::Text({{QStringLiteral("format"), QStringLiteral("acs-scheme-restore")},
                                           {QStringLiteral("version"), 1},
                                           {QStringLiteral("schemes"), result.iSchemes},
                                           {QStringLiteral("keptAs"), restore.KeptAs()}});
        return ExitCode::Done;
    }
    environment.out << tr("Schemes: %1").arg(result.iSchemes) << '\n';
    if (!restore.KeptAs().isEmpty()) {
        environment.out
            << tr("The damaged database is kept as %1").arg(QDir::toNativeSeparators(restore.KeptAs()))
            << '\n';
    }
    return ExitCode::Done;
}
