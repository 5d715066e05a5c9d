#pragma once

#include <QFile>
#include <QString>

#include <string>

namespace lxl {

/// When a log file gives way to a new one, and how many of the old ones stay.
struct LogRotation
{
    qint64 iLargest = qint64(5) * 1024 * 1024; ///< bytes of one file; 0: no limit
    int iKept = 5;                             ///< old files beside the present one; 0: none
};

/// The file end of the log: appends lines, and begins a new file before one becomes too large. Old files are
/// named "<file>.1" (the newest) to "<file>.<kept>". Several programs may write to the same file: each looks
/// before it renames, so that what another has just begun stays. One thread.
class LogFile
{
public:
    /// Appends the line to the file of that path; false when it could not.
    bool Write(const QString& strPath, const std::string& strLine, const LogRotation& rotation);

private:
    bool Open(const QString& strPath);
    void Rotate(const QString& strPath, qint64 iLine, const LogRotation& rotation);

    QFile m_file;
    bool m_bTorn = false;      ///< the last write ended inside a line
    qint64 m_iNextAttempt = 0; ///< size of the file at which renaming it is tried again after a failure
};

} // namespace lxl
