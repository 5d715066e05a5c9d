#include "client/insight/BackgroundJob.h"

#include <QPointer>

BackgroundJob::BackgroundJob(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

BackgroundJob::~BackgroundJob()
{
    if (m_stop) {
        *m_stop = true;
    }
    m_pool.clear();
    m_pool.waitForDone();
}

void BackgroundJob::Start(const Work& work)
{
    const bool bWasRunning = IsRunning();
    if (m_stop) {
        *m_stop = true;
    }
    const auto stop = std::make_shared<Stop>(false);
    m_stop = stop;
    m_pool.start([this, work, stop] {
        const Result result = *stop ? Result() : work(*stop);
        // The object stands: its end waits for this thread.
        QMetaObject::invokeMethod(
            this, [this, stop, result] { Finish(stop, result); }, Qt::QueuedConnection);
    });
    if (!bWasRunning) {
        Q_EMIT SignalRunningChanged(true);
    }
}

void BackgroundJob::Finish(const std::shared_ptr<Stop>& stop, const Result& result)
{
    if (stop != m_stop) {
        return;
    }
    const QPointer<BackgroundJob> self(this);
    if (result) {
        result();
    }
    // The result may have started more work, or destroyed the job.
    if (!self.isNull() && stop == m_stop) {
        m_stop.reset();
        Q_EMIT SignalRunningChanged(false);
    }
}
