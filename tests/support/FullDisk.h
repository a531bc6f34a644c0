#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/** Limits the size of all files that this process writes, as on a full disk, while it exists. */
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit smaller{bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &smaller);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    void (*m_handler)(int);
    rlimit m_limit{};
};
