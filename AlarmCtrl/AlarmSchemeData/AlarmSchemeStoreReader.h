#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "alarmschemestore_export.h"

#include <QCoreApplication>
#include <QString>

#include <chrono>
#include <functional>

/// How reading a database file ended.
struct ALARMSCHEMESTORE_EXPORT AlarmSchemeReadOutcome
{
    Q_DECLARE_TR_FUNCTIONS(AlarmSchemeReadOutcome)

public:
    enum class Reason
    {
        None,          ///< it was read
        NotFound,      ///< there is nothing of that name
        NotAFile,      ///< a directory, a pipe, a device
        NoAccess,      ///< it cannot be opened for reading
        NotADatabase,  ///< something else than an SQLite file, or an encrypted one
        NoSchemes,     ///< a database of something else; an empty file too
        UnfinishedJob, ///< a write was cut off, and only a program that may write can take it back
        Locked,        ///< another program held the file for the whole waiting time
        Damaged,       ///< the content is damaged or cut off
        Stopped,       ///< the pulse has asked for it
        Other,         ///< any other failure of a statement
    };

    Reason eReason = Reason::None;
    QString strPath;      ///< the file, as it was named
    QString strTechnical; ///< the database's own words, untranslated; empty when there are none

    bool IsSuccess() const { return eReason == Reason::None; }
    /// One or two translated sentences that name the file; what happened and what to do.
    QString Text() const;
};

/// Reads the schemes of a database file, any file of any name, and leaves it alone: nothing is created,
/// brought up to date or repaired, neither in the file nor beside it. What is read is what the store would
/// load, files from before the mail flag and files of other programs included.
///
/// One object reads one file, as often as asked, on any one thread.
class ALARMSCHEMESTORE_EXPORT AlarmSchemeStoreReader
{
public:
    /// Is called some times a second while the file is being read; false ends the reading.
    using Pulse = std::function<bool()>;

    explicit AlarmSchemeStoreReader(const QString& strPath);

    /// How long Read waits for other programs in all; five seconds unless it is set here.
    void SetBusyTimeOut(std::chrono::milliseconds time) { m_busyTimeOut = time; }
    void SetPulse(Pulse pulse);

    /// Every stored scheme, as of one moment. Without success the map is empty.
    AlarmSchemeReadOutcome Read(AlarmInfoMap& map) const;

private:
    QString m_strPath;
    std::chrono::milliseconds m_busyTimeOut{5000};
    Pulse m_pulse;
};
