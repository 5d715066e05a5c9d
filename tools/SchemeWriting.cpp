#include "tools/SchemeWriting.h"

#include "client/store/FreshFiles.h"
#include "client/store/SystemUser.h"
#include "platform/lxl/DPrintLog.h"
#include "tools/ProgressLine.h"

#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <future>

namespace {

constexpr std::chrono::milliseconds BusyTimeOut{5000};
constexpr std::chrono::milliseconds LookInterval{50};

} // namespace

SaveResult SchemeWriting::Write(const QString& strDatabase, const Work& work, CommandEnvironment& environment)
{
    // The store's log is the client's; what matters of it is said here.
    lxl::DPrintLog::instance().SetStandardError(false);
    SaveProgress written;
    const auto write = [&] {
        const FreshFiles fresh(strDatabase);
        SaveResult result;
        {
            StoredSchemes stored(BusyTimeOut, strDatabase);
            result = work(stored, written);
        }
        if (result.eReason != SchemeStoreOutcome::Reason::None)
            fresh.Remove();
        return result;
    };
    ProgressLine progress(environment, tr("Writing the schemes"));
    std::future<SaveResult> task = std::async(std::launch::async, write);
    while (task.wait_for(LookInterval) != std::future_status::ready)
        progress.Show(written.iWritten, std::max<int>(written.iSchemes, 1));
    return task.get();
}

bool SchemeWriting::Import(const QString& strDatabase, const AlarmInfoMap& schemes, bool bOnly,
                           const QString& strNote, CommandEnvironment& environment)
{
    const auto import = [&](StoredSchemes& stored, SaveProgress& written) {
        const std::optional<QList<AlarmSourceKey>> others =
            bOnly ? std::nullopt : std::make_optional(QList<AlarmSourceKey>());
        return stored.Replace(schemes, others,
                              SaveOrigin{SystemUser::Name(), SchemeHistoryKind::Import, strNote}, written);
    };
    return Tell(Write(strDatabase, import, environment), environment);
}

std::optional<SaveResult> SchemeWriting::Revert(const QString& strDatabase, qint64 iStep,
                                                const QString& strNote, CommandEnvironment& environment)
{
    const auto revert = [&](StoredSchemes& stored, SaveProgress& written) {
        return stored.Revert(iStep, SaveOrigin{SystemUser::Name(), SchemeHistoryKind::Revert, strNote},
                             written);
    };
    const SaveResult result = Write(strDatabase, revert, environment);
    return Tell(result, environment) ? std::make_optional(result) : std::nullopt;
}

bool SchemeWriting::Tell(const SaveResult& result, CommandEnvironment& environment)
{
    if (result.eReason != SchemeStoreOutcome::Reason::None) {
        const SchemeStoreOutcome outcome = SchemeStoreOutcome::Failure(SchemeStoreOutcome::Operation::Save,
                                                                       result.eReason, result.strTechnical);
        environment.err << outcome.strWhat << '\n';
        if (!outcome.strTechnical.isEmpty())
            environment.err << outcome.strTechnical << '\n';
        return false;
    }
    if (result.noBackup) {
        environment.err
            << tr("There is no backup of what was there before: %1").arg(result.noBackup->strMessage) << '\n';
    }
    if (!result.strHistoryFailure.isEmpty()) {
        environment.err << tr("The history does not tell of it: %1").arg(result.strHistoryFailure) << '\n';
    }
    return true;
}
