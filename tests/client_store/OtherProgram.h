#pragma once

#include "tests/AlarmSchemeData/RawDatabase.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Another program: holds a lock from its making until Release, or until the time is over, on its own thread.
class OtherProgram
{
public:
    OtherProgram(const QString& strPath, const QString& strLock, std::chrono::milliseconds time)
        : m_thread([this, strPath, strLock, time] {
            RawDatabase database(strPath);
            const int result = database.Run(strLock);
            std::unique_lock<std::mutex> lock(m_mutex);
            m_iResult = result;
            m_bHolds = true;
            m_changed.notify_all();
            m_changed.wait_for(lock, time, [this] { return m_bReleased; });
            lock.unlock();
            database.Run(QStringLiteral("rollback"));
        })
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_bHolds; });
    }
    ~OtherProgram() { Release(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    bool Holds() const { return m_iResult == 0; }
    void Release()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_bReleased = true;
        }
        m_changed.notify_all();
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_iResult = -1;
    bool m_bHolds = false;
    bool m_bReleased = false;
    std::thread m_thread; // last: it uses the members above
};
