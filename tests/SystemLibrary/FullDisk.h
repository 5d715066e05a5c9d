#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

/// While it stands no file of this program may grow beyond so many bytes: what is written is refused in the
/// middle, as on a full disk. Where the system knows no such limit, Holds() is false.
class FullDisk
{
public:
    explicit FullDisk(quint64 iMostBytes)
    {
#ifdef Q_OS_UNIX
        struct rlimit limit = {};
        m_bHolds = getrlimit(RLIMIT_FSIZE, &m_old) == 0;
        limit = m_old;
        limit.rlim_cur = static_cast<rlim_t>(iMostBytes);
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        m_bHolds = m_bHolds && setrlimit(RLIMIT_FSIZE, &limit) == 0;
#else
        Q_UNUSED(iMostBytes)
#endif
    }
    ~FullDisk()
    {
#ifdef Q_OS_UNIX
        if (m_bHolds)
            setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
#endif
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    bool Holds() const
    {
        return m_bHolds;
    }

private:
    bool m_bHolds = false;
#ifdef Q_OS_UNIX
    struct rlimit m_old = {};
    void (*m_oldHandler)(int) = SIG_DFL;
#endif
};
