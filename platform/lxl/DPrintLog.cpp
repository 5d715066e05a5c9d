#include "platform/lxl/DPrintLog.h"

#include "platform/lxl/LogLine.h"
#include "platform/lxl/LogWriter.h"

#include <QDateTime>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <exception>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace lxl {

namespace {

constexpr std::chrono::milliseconds FatalFlush{1000};
/// Longer messages are cut: one of them must not fill the queue's memory.
constexpr size_t LongestMessage = 65536;

QString Formatted(const char* szFormat, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, szFormat, again);
    va_end(again);
    if (length < 0)
        return QString::fromUtf8(szFormat);
    std::vector<char> text(std::min(static_cast<size_t>(length), LongestMessage) + 1);
    std::vsnprintf(text.data(), text.size(), szFormat, arguments);
    return QString::fromUtf8(text.data());
}

/// Set while this thread runs the listener, which may itself call what logs.
thread_local bool insideListener = false;

} // namespace

class DPrintLog::Private
{
public:
    void Write(const Entry& entry)
    {
        Tell(entry);
        LogItem item;
        item.strLine = LogLine(QDateTime::currentDateTime(), entry.strFile, entry.iLine, entry.strFunction,
                               entry.strModule, entry.iLevel, entry.strMessage);
        {
            const std::lock_guard<std::mutex> lock(mutex);
            item.target = target;
        }
        writer.Append(std::move(item));
        if (entry.iLevel >= LogFatal)
            writer.Flush(FatalFlush);
    }

    bool Passes(int iLevel)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return iLevel >= minimumLevel;
    }

    template <class Change>
    void ChangeTarget(Change change)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        auto changed = std::make_shared<LogTarget>(*target);
        change(*changed);
        target = std::move(changed);
    }

    std::mutex mutex; ///< for the fields below it
    std::shared_ptr<const LogTarget> target = std::make_shared<LogTarget>();
    int minimumLevel = LogInfo;

    /// Held while the listener runs, so that nobody is called after having been removed.
    std::recursive_mutex listenerMutex;
    Listener listener = nullptr;
    void* context = nullptr;

    LogWriter writer;

private:
    void Tell(const Entry& entry)
    {
        if (insideListener)
            return;
        const std::lock_guard<std::recursive_mutex> lock(listenerMutex);
        if (listener == nullptr)
            return;
        insideListener = true;
        try {
            listener(entry, context);
        } catch (const std::exception&) {
            // A listener's trouble is not the caller's.
        }
        insideListener = false;
    }
};

DPrintLog::DPrintLog()
    : d(std::make_unique<Private>())
{
}

DPrintLog::~DPrintLog() = default;

DPrintLog& DPrintLog::instance()
{
    static DPrintLog log;
    return log;
}

void DPrintLog::Log(const char* szFile, int iLine, const char* szFunction, const char* szModule, int iLevel,
                    const char* szFormat, ...)
{
    va_list arguments;
    va_start(arguments, szFormat);
    try {
        if (szFormat != nullptr && d->Passes(iLevel)) {
            d->Write(Entry{QString::fromUtf8(szFile), iLine, QString::fromUtf8(szFunction),
                           QString::fromUtf8(szModule), iLevel, Formatted(szFormat, arguments)});
        }
    } catch (const std::exception&) {
        // Out of memory: the line is lost, the caller goes on.
    }
    va_end(arguments);
}

void DPrintLog::SetFile(const QString& strPath)
{
    d->ChangeTarget([&strPath](LogTarget& target) { target.strFile = strPath; });
}

void DPrintLog::SetRotation(qint64 iLargest, int iKept)
{
    d->ChangeTarget([iLargest, iKept](LogTarget& target) { target.rotation = {iLargest, iKept}; });
}

void DPrintLog::SetStandardError(bool bEnable)
{
    d->ChangeTarget([bEnable](LogTarget& target) { target.bStandardError = bEnable; });
}

void DPrintLog::SetMinimumLevel(int iLevel)
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->minimumLevel = iLevel;
}

void DPrintLog::SetListener(Listener listener, void* pContext)
{
    const std::lock_guard<std::recursive_mutex> lock(d->listenerMutex);
    d->listener = listener;
    d->context = pContext;
}

bool DPrintLog::Flush(int iTimeOutMilliseconds)
{
    return d->writer.Flush(std::chrono::milliseconds(iTimeOutMilliseconds));
}

} // namespace lxl
