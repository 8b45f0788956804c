// SPDX-License-Identifier: MIT
// A clock that a test puts forward, so that it need not wait. For one source file of a program; Linux.
#pragma once

#include <QCoreApplication>

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace Clock {

inline std::atomic<long> s_forwardSeconds = 0;

/// All timers that are due by then have fired when this returns.
inline void putForward(int nSeconds)
{
    s_forwardSeconds += nSeconds;
    QCoreApplication::processEvents();
}

} // namespace Clock

/// In place of the C library's: what this program and its libraries call to know how much time has passed.
extern "C" Q_DECL_EXPORT int clock_gettime(clockid_t id, timespec *pTime) noexcept
{
    const long result = syscall(SYS_clock_gettime, id, pTime);
    if (id == CLOCK_MONOTONIC || id == CLOCK_REALTIME)
        pTime->tv_sec += Clock::s_forwardSeconds;
    return static_cast<int>(result);
}

extern "C" Q_DECL_EXPORT int gettimeofday(timeval *pTime, void *) noexcept
{
    timespec now {};
    const int nResult = clock_gettime(CLOCK_REALTIME, &now);
    *pTime = {now.tv_sec, now.tv_nsec / 1000};
    return nResult;
}
