#pragma once

#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/SaveAndWait.h"
#include "tests/store_faults/DiskContent.h"

#include <QString>

#include <optional>

struct sqlite3;

/// Two states of a file, for saving the one over the other.
struct SchemeChange
{
    AlarmInfoMap before; ///< stored
    AlarmInfoMap after;  ///< to be saved: some schemes changed, some new, some left out
    AlarmInfoMap stored; ///< what is stored then: those that were left out are disabled
};

namespace FaultTestKit {

/// So few changes that they are saved part by part.
SchemeChange FewSchemes();
/// So many that they are saved together.
SchemeChange ManySchemes();

/// The schemes that a client finds which starts now. Empty when it loads them from a sound file, otherwise
/// what is wrong.
QString Read(AlarmInfoMap& map);
/// Empty when the file of the current data directory is sound and holds exactly these schemes, otherwise
/// what is wrong.
QString Differs(const AlarmInfoMap& expected);
/// Empty when it is sound and holds exactly the one or exactly the other schemes of a change.
QString IsTornBetween(const SchemeChange& change);

/// Empty when the history beside the file is sound and ends with exactly these schemes; otherwise what is
/// wrong.
QString EndOfHistoryDiffers(const AlarmInfoMap& stored);
/// The same, and it tells of nobody from outside: schemes and history have reached the disk together, or not
/// at all.
QString HistoryDiffers(const AlarmInfoMap& stored);

/// What one of several clients does in a round: a scheme that only it changes, and a new one.
void ChangeForRound(AlarmInfoMap& map, int iClient, int iRound);
/// Empty when every change of these clients is there.
QString LostRound(const AlarmInfoMap& map, int iClients, int iRounds);

/// The current data directory gets a file with these schemes, closed.
void MakeFile(const AlarmInfoMap& schemes);

} // namespace FaultTestKit

/// Knows the connections that are opened during its life.
class WatchedConnections
{
public:
    WatchedConnections();
    ~WatchedConnections();
    WatchedConnections(const WatchedConnections&) = delete;
    WatchedConnections& operator=(const WatchedConnections&) = delete;

    /// The connection that was opened last, which has to be open and idle, keeps so few pages in memory that
    /// a large save reaches the file before its end.
    void KeepFewPages() const;
};
