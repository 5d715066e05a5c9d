#pragma once

#include "platform/lxl/LogFile.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>

namespace lxl {

/// Where one line goes.
struct LogTarget
{
    QString strFile; ///< empty: no file
    bool bStandardError = true;
    LogRotation rotation;
};

struct LogItem
{
    std::string strLine; ///< UTF-8 with its line break
    std::shared_ptr<const LogTarget> target;
};

/// Writes lines on a thread of its own, so that a slow or full disk costs lines and never the caller's time.
/// The waiting lines are bounded: what does not fit is dropped and counted, and the count is written as soon
/// as a line gets through again. A file that cannot be opened or written is tried again with the next lines.
class LogWriter
{
public:
    static constexpr size_t MaximumWaiting = 8192;

    LogWriter();
    /// Writes out what waits, for at most a second.
    ~LogWriter();
    LogWriter(const LogWriter&) = delete;
    LogWriter& operator=(const LogWriter&) = delete;

    void Append(LogItem item);
    bool Flush(std::chrono::milliseconds timeOut);

private:
    struct State;
    static void Run(const std::shared_ptr<State>& state);

    // Shared with the thread, which may outlive this object when a write hangs.
    std::shared_ptr<State> m_state;
};

} // namespace lxl
