#include "tools/SchemeWriting.h"

#include "client/store/StoredSchemes.h"
#include "client/store/SystemUser.h"
#include "platform/lxl/DPrintLog.h"
#include "tools/ProgressLine.h"

#include <QTextStream>

#include <chrono>
#include <future>

namespace {

constexpr std::chrono::milliseconds BusyTimeOut{5000};
constexpr std::chrono::milliseconds LookInterval{50};

} // namespace

bool SchemeWriting::Import(const QString& strDatabase, const AlarmInfoMap& schemes, bool bOnly,
                           const QString& strNote, CommandEnvironment& environment)
{
    // The store's log is the client's; what matters of it is said here.
    lxl::DPrintLog::instance().SetStandardError(false);
    SaveProgress written;
    const auto write = [&] {
        StoredSchemes stored(BusyTimeOut, strDatabase);
        const std::optional<QList<AlarmSourceKey>> others =
            bOnly ? std::nullopt : std::make_optional(QList<AlarmSourceKey>());
        return stored.Replace(schemes, others,
                              SaveOrigin{SystemUser::Name(), SchemeHistoryKind::Import, strNote}, written);
    };
    SaveResult result;
    {
        ProgressLine progress(environment, tr("Writing the schemes"));
        std::future<SaveResult> task = std::async(std::launch::async, write);
        while (task.wait_for(LookInterval) != std::future_status::ready)
            progress.Show(written.iWritten, written.iSchemes);
        result = task.get();
    }
    return Tell(result, environment);
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
