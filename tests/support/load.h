// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>

/// Processor time of this thread and not the clock's: the machine may be busy with other tests.
inline double threadMs()
{
#ifdef CLOCK_THREAD_CPUTIME_ID
    timespec now {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
#else
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
#endif
}
