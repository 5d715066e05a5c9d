#include "platform/lxl/LogWriter.h"

#include <cstdio>
#include <exception>
#include <thread>
#include <utility>

namespace lxl {

namespace {

constexpr std::chrono::milliseconds LongestFarewell{1000};

std::string LostLine(uint64_t iLost)
{
    return "(" + std::to_string(iLost) + " messages could not be written)\n";
}

} // namespace

struct LogWriter::State
{
    std::mutex mutex;
    std::condition_variable work;
    std::condition_variable progress;
    std::deque<LogItem> waiting;
    uint64_t iAccepted = 0; ///< lines ever queued
    uint64_t iDone = 0;     ///< of these, written or dropped
    uint64_t iOverflow = 0; ///< lines refused by a full queue, not yet told
    bool bEnd = false;
    bool bRunning = false;
};

LogWriter::LogWriter()
    : m_state(std::make_shared<State>())
{
    try {
        m_state->bRunning = true;
        std::thread([state = m_state] { Run(state); }).detach();
    } catch (const std::exception&) {
        m_state->bRunning = false; // no thread, no log
    }
}

LogWriter::~LogWriter()
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    m_state->bEnd = true;
    m_state->work.notify_all();
    m_state->progress.wait_for(lock, LongestFarewell, [this] { return !m_state->bRunning; });
}

void LogWriter::Append(LogItem item)
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    if (!m_state->bRunning)
        return;
    if (m_state->waiting.size() >= MaximumWaiting) {
        ++m_state->iOverflow;
        return;
    }
    m_state->waiting.push_back(std::move(item));
    ++m_state->iAccepted;
    m_state->work.notify_one();
}

bool LogWriter::Flush(std::chrono::milliseconds timeOut)
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    const uint64_t until = m_state->iAccepted;
    return m_state->progress.wait_for(
        lock, timeOut, [this, until] { return m_state->iDone >= until || !m_state->bRunning; });
}

void LogWriter::Run(const std::shared_ptr<State>& state)
{
    LogFile file;
    uint64_t lost = 0;
    std::unique_lock<std::mutex> lock(state->mutex);
    for (;;) {
        state->work.wait(lock, [&state] { return state->bEnd || !state->waiting.empty(); });
        if (state->waiting.empty())
            break;
        const std::deque<LogItem> batch = std::exchange(state->waiting, {});
        lost += std::exchange(state->iOverflow, 0);
        lock.unlock();
        for (const LogItem& item : batch) {
            if (item.target->bStandardError)
                std::fwrite(item.strLine.data(), 1, item.strLine.size(), stderr);
            if (item.target->strFile.isEmpty())
                continue;
            if (lost > 0 && file.Write(item.target->strFile, LostLine(lost), item.target->rotation))
                lost = 0;
            if (lost > 0 || !file.Write(item.target->strFile, item.strLine, item.target->rotation))
                ++lost;
        }
        lock.lock();
        state->iDone += batch.size();
        state->progress.notify_all();
    }
    state->bRunning = false;
    state->progress.notify_all();
}

} // namespace lxl
