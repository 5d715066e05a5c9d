#pragma once

#include <QObject>

#include <functional>

/// Between the desktop's session manager and the client: a session does not end over unsaved edits where the
/// operator may still be asked, and what is open comes back with the next session. Needs a QGuiApplication.
/// User-interface thread only.
class SessionEnd : public QObject
{
    Q_OBJECT

public:
    /// `mayEnd` is called with whether the operator may be asked, and tells whether the session may end;
    /// `remember` keeps what the next start needs.
    SessionEnd(std::function<bool(bool)> mayEnd, std::function<void()> remember, QObject* parent = nullptr);
    ~SessionEnd() override;

    /// What is done when the manager asks the programs to save their data; a QSessionManager, or what has the
    /// same operations.
    template <typename Manager>
    void OnCommitData(Manager& manager) const
    {
        const bool bMayAsk = manager.allowsInteraction();
        const bool bMayEnd = m_mayEnd(bMayAsk);
        if (bMayAsk) {
            manager.release();
        }
        if (bMayEnd) {
            m_remember();
        } else {
            manager.cancel();
        }
    }

private:
    std::function<bool(bool)> m_mayEnd;
    std::function<void()> m_remember;
};
