// SPDX-License-Identifier: BSD-3-Clause
#include "process_cost.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvala::bench {

static constexpr std::chrono::milliseconds kBetweenLooks {5};

static std::string inProc(pid_t process, const std::string& file)
{
    return "/proc/" + std::to_string(process) + '/' + file;
}

/// Resident pages of a process and of what it started. What two of them have in common, code of
/// libraries above all, counts for both.
static double residentMegabytes(pid_t process)
{
    double size = 0.0;
    double pages = 0.0;
    std::ifstream(inProc(process, "statm")) >> size >> pages;
    double megabytes = pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
    std::ifstream children(inProc(process, "task/" + std::to_string(process) + "/children"));
    for (pid_t child = 0; children >> child;)
        megabytes += residentMegabytes(child);
    return megabytes;
}

static double secondsOf(const rusage& used)
{
    double seconds = 0.0;
    for (const timeval& time : {used.ru_utime, used.ru_stime})
        seconds += static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    return seconds;
}

Cost costOf(const std::function<bool()>& work)
{
    const pid_t process = fork();
    if (process == 0)
        _exit(work() ? 0 : 1);
    Cost cost;
    int status = -1;
    rusage used {};
    while (wait4(process, &status, WNOHANG, &used) == 0) {
        cost.megabytes = std::max(cost.megabytes, residentMegabytes(process));
        std::this_thread::sleep_for(kBetweenLooks);
    }
    cost.seconds = secondsOf(used);
    cost.isOk = status == 0;
    return cost;
}

Cost costOf(const std::vector<std::string>& command)
{
    return costOf([&] {
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        execv(arguments.front(), arguments.data());
        return false;
    });
}

} // namespace corvala::bench
