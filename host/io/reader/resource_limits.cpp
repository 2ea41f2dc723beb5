// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/resource_limits.h"

#include <algorithm>
#include <csignal>
#include <fstream>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace corvala::host::io::reader {

static constexpr std::int64_t kLeastBytes = std::int64_t(2) << 30;

static std::int64_t usualLimit()
{
    const std::int64_t machine = std::int64_t(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return std::max(kLeastBytes, machine / 4 * 3);
}

static void setLimit(int resource, std::int64_t value)
{
    const auto bytes = static_cast<rlim_t>(value);
    const rlimit limit {bytes, bytes};
    setrlimit(static_cast<decltype(RLIMIT_AS)>(resource), &limit);
}

std::int64_t limitResources(std::int64_t memoryBytes)
{
    const std::int64_t bytes = memoryBytes > 0 ? memoryBytes : usualLimit();
    setLimit(RLIMIT_AS, bytes);
    setLimit(RLIMIT_CORE, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    setpgid(0, 0); // what a terminal tells its programs is for the parent to hear
    std::ofstream("/proc/self/oom_score_adj") << 1000;
    return bytes;
}

std::int64_t memoryLimit()
{
    rlimit limit {};
    getrlimit(RLIMIT_AS, &limit);
    return limit.rlim_cur == RLIM_INFINITY ? usualLimit()
                                           : static_cast<std::int64_t>(limit.rlim_cur);
}

} // namespace corvala::host::io::reader
