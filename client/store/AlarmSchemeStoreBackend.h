#pragma once

#include "client/store/SchemeStoreOutcome.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"

#include <QString>

#include <functional>
#include <memory>

class StoreConnection;

/// Keeps the schemes of the client in "AlarmScheme.db".
///
/// Made after SystemPaths::SetDataDirectory: creates the database directory and opens the store. What could
/// not be opened then is tried again by the next Load. A save is all or nothing, and it is refused unless the
/// last load read every stored scheme: a map that misses schemes would switch the missing ones off. Another
/// process that holds the database is waited for, up to five seconds in all for one load or save; the calling
/// thread waits. User-interface thread only.
class AlarmSchemeStoreBackend : public IAlarmSchemeBackend
{
public:
    /// Longest time that one load or save waits for other processes, in milliseconds.
    static constexpr int BusyTimeOut = 5000;

    using OutcomeHandler = std::function<void(const SchemeStoreOutcome&)>;

    AlarmSchemeStoreBackend();
    ~AlarmSchemeStoreBackend() override;
    AlarmSchemeStoreBackend(const AlarmSchemeStoreBackend&) = delete;
    AlarmSchemeStoreBackend& operator=(const AlarmSchemeStoreBackend&) = delete;

    /// 0 when every stored scheme was read. Otherwise -1, and the map holds what could be read.
    int Load(AlarmInfoMap& map) override;
    /// 0 when the whole map was written. Otherwise -1, and the file holds exactly the old schemes.
    int Save(const AlarmInfoMap& map) override;

    /// Is called at the end of every load and save, before it returns. Null removes it.
    void SetOutcomeHandler(OutcomeHandler handler);
    /// How the last load or save ended; before the first one a load that is still to come (NotLoaded).
    const SchemeStoreOutcome& LastOutcome() const;

    bool IsOpen() const;
    QString GetPath() const; ///< of the open database; empty while it is closed

private:
    SchemeStoreOutcome DoLoad(AlarmInfoMap& map);
    SchemeStoreOutcome DoSave(const AlarmInfoMap& map);
    int Report(const SchemeStoreOutcome& outcome);

    std::unique_ptr<StoreConnection> m_connection;
    SchemeStoreOutcome m_lastLoad; ///< decides whether a save is allowed
    SchemeStoreOutcome m_last;
    OutcomeHandler m_handler;
};
