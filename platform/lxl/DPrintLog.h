#pragma once

#include "lxl_export.h"

#include <QString>

#include <memory>

namespace lxl {

/// Severity of a message, ascending. The numbers are part of the contract with the modules.
enum LogLevel : int
{
    LogTrace = 1,
    LogDebug = 2,
    LogInfo = 3,
    LogNotice = 4,
    LogWarning = 5,
    LogError = 6,
    LogFatal = 7,
};

/// The log of the program: one line a message with time, level, source and function, to standard error and,
/// once a file is set, to that file. May be called from any thread. Never throws; a full disk or a file that
/// cannot be written costs the line, never the caller's time.
class LXL_EXPORT DPrintLog
{
public:
    static DPrintLog& instance();

    /// Writes one message; `szFormat` and what follows are as for printf, texts in UTF-8. Line breaks inside
    /// the message are written as "\n", so that one message stays one line.
#if defined(__GNUC__)
    __attribute__((format(printf, 7, 8)))
#endif
    void
    Log(const char* szFile, int iLine, const char* szFunction, const char* szModule, int iLevel,
        const char* szFormat, ...);

    void SetFile(const QString& strPath); ///< empty: standard error only
    /// Before a file grows beyond so many bytes (0: no limit) it becomes "<file>.1", an older one of that
    /// name
    /// "<file>.2" and so on, and the oldest beyond the number kept goes. At first 5 MiB and 5 old files.
    void SetRotation(qint64 iLargest, int iKept);
    void SetMinimumLevel(int iLevel);    ///< messages below it are dropped; at first LogInfo
    void SetStandardError(bool bEnable); ///< on at first

    /// Is handed every message that passes the level, without its time: for tests and for a host that shows
    /// its log. Called on the logging thread. Null removes it.
    struct Entry
    {
        QString strFile;
        int iLine = 0;
        QString strFunction;
        QString strModule;
        int iLevel = 0;
        QString strMessage;
    };
    using Listener = void (*)(const Entry& entry, void* pContext);
    void SetListener(Listener listener, void* pContext);

    /// Waits until everything logged before is written or dropped; false when that took longer. A message of
    /// level LogFatal and the end of the program wait so by themselves, for at most a second.
    bool Flush(int iTimeOutMilliseconds);

    DPrintLog(const DPrintLog&) = delete;
    DPrintLog& operator=(const DPrintLog&) = delete;

private:
    DPrintLog();
    ~DPrintLog();
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace lxl
