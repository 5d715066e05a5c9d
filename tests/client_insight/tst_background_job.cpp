#include "client/insight/BackgroundJob.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

class BackgroundJobTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWorkRunsElsewhereAndItsResultHere();
    void aNewerPieceOfWorkMakesTheOlderOneVoid();
    void theEndStopsAndWaitsForTheWork();
    void aResultMayStartMoreWork();
    void aResultMayDestroyTheJob();
    void workWithoutAResultEndsToo();
};

void BackgroundJobTest::theWorkRunsElsewhereAndItsResultHere()
{
    BackgroundJob job;
    QSignalSpy running(&job, &BackgroundJob::SignalRunningChanged);
    QThread* worked = nullptr;
    QThread* told = nullptr;
    job.Start([&](const BackgroundJob::Stop&) -> BackgroundJob::Result {
        worked = QThread::currentThread();
        return [&] { told = QThread::currentThread(); };
    });
    QVERIFY(job.IsRunning());
    QTRY_VERIFY(told != nullptr);
    QVERIFY(told == thread());
    QVERIFY(worked != thread());
    QVERIFY(!job.IsRunning());
    QCOMPARE(running.size(), 2);
}

void BackgroundJobTest::aNewerPieceOfWorkMakesTheOlderOneVoid()
{
    BackgroundJob job;
    QSemaphore begun;
    bool stopped = false;
    QStringList told;
    job.Start([&](const BackgroundJob::Stop& stop) -> BackgroundJob::Result {
        begun.release();
        while (!stop)
            QThread::yieldCurrentThread();
        stopped = true;
        return [&] { told += QStringLiteral("old"); };
    });
    begun.acquire();
    // Not even begun when the third one comes.
    job.Start([&](const BackgroundJob::Stop&) -> BackgroundJob::Result {
        return [&] { told += QStringLiteral("between"); };
    });
    job.Start([&](const BackgroundJob::Stop&) -> BackgroundJob::Result {
        return [&] { told += QStringLiteral("new"); };
    });
    QTRY_VERIFY(!job.IsRunning());
    QVERIFY(stopped);
    QCOMPARE(told, QStringList{QStringLiteral("new")});
}

void BackgroundJobTest::theEndStopsAndWaitsForTheWork()
{
    std::atomic<bool> ended{false};
    bool told = false;
    QSemaphore begun;
    {
        BackgroundJob job;
        job.Start([&](const BackgroundJob::Stop& stop) -> BackgroundJob::Result {
            begun.release();
            while (!stop)
                QThread::yieldCurrentThread();
            ended = true;
            return [&] { told = true; };
        });
        begun.acquire();
    }
    QVERIFY(ended);
    QCoreApplication::sendPostedEvents();
    QVERIFY(!told);
}

void BackgroundJobTest::aResultMayStartMoreWork()
{
    BackgroundJob job;
    QSignalSpy running(&job, &BackgroundJob::SignalRunningChanged);
    bool done = false;
    job.Start([&](const BackgroundJob::Stop&) -> BackgroundJob::Result {
        return [&] {
            job.Start(
                [&](const BackgroundJob::Stop&) -> BackgroundJob::Result { return [&] { done = true; }; });
        };
    });
    QTRY_VERIFY(done);
    QCOMPARE(running.size(), 2);
}

void BackgroundJobTest::aResultMayDestroyTheJob()
{
    auto* job = new BackgroundJob;
    QSignalSpy gone(job, &QObject::destroyed);
    job->Start([&](const BackgroundJob::Stop&) -> BackgroundJob::Result { return [job] { delete job; }; });
    QTRY_COMPARE(gone.size(), 1);
}

void BackgroundJobTest::workWithoutAResultEndsToo()
{
    BackgroundJob job;
    job.Start([](const BackgroundJob::Stop&) { return BackgroundJob::Result(); });
    QTRY_VERIFY(!job.IsRunning());
}

QTEST_GUILESS_MAIN(BackgroundJobTest)
#include "tst_background_job.moc"
