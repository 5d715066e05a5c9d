#pragma once

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

/// Work beside the window, one after the other: a newer piece of work makes the one before it void. The end
/// of the object waits for the work, which is asked to stop. User-interface thread only.
class BackgroundJob : public QObject
{
    Q_OBJECT

public:
    /// Becomes true when the result is no longer wanted.
    using Stop = std::atomic<bool>;
    using Result = std::function<void()>;
    /// Runs on another thread, and must not touch what the window uses. What it returns is called on the user
    /// interface's thread, unless it is no longer wanted by then; it may be null.
    using Work = std::function<Result(const Stop& stop)>;

    explicit BackgroundJob(QObject* parent = nullptr);
    ~BackgroundJob() override;

    void Start(const Work& work);
    bool IsRunning() const { return m_stop != nullptr; }

Q_SIGNALS:
    void SignalRunningChanged(bool bRunning);

private:
    void Finish(const std::shared_ptr<Stop>& stop, const Result& result);

    QThreadPool m_pool;
    std::shared_ptr<Stop> m_stop; ///< of the present work; null when there is none
};
