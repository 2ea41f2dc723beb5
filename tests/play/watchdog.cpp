// SPDX-License-Identifier: BSD-3-Clause
#include "tests/play/watchdog.h"

#include <csignal>
#include <cstdio>
#include <cstring>

#include <dlfcn.h>
#include <execinfo.h>
#include <sys/time.h>
#include <unistd.h>

namespace corvala::tests {

namespace {

/// Seconds of the processor, as a busy machine makes everything late; of the clock for what waits
/// for ever.
constexpr int kLongestWork = 5;
constexpr int kLongestWait = 60;

char s_about[200];
char s_gesture[1000];
bool s_runs = false; ///< from begin() to end()
bool s_traces = false;

} // namespace

static void print(const char* text)
{
    if (write(STDERR_FILENO, text, std::strlen(text)) < 0)
        return;
}

static void printGesture()
{
    print(s_about);
    print(s_gesture);
    print("\n");
}

static void printStackAndExit(int)
{
    print("This gesture does not end. ");
    printGesture();
    void* frames[100];
    backtrace_symbols_fd(frames, backtrace(frames, 100), STDERR_FILENO);
    _exit(3);
}

static void crash(int signal)
{
    printGesture();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// Each of the sanitizers has a copy of the function that is called before it ends the program.
static bool followSanitizers()
{
    using SetCallback = void (*)(void (*callback)());
    bool hasOne = false;
    for (const char* library : {"libasan.so.8", "libubsan.so.1"}) {
        void* loaded = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
        void* function = loaded ? dlsym(loaded, "__sanitizer_set_death_callback") : nullptr;
        if (function)
            reinterpret_cast<SetCallback>(function)(printGesture);
        hasOne = hasOne || function;
    }
    return hasOne;
}

/// Zeros stop it.
static void setLimits(int work, int wait)
{
    const itimerval limit {{0, 0}, {work, 0}};
    setitimer(ITIMER_PROF, &limit, nullptr);
    alarm(static_cast<unsigned>(wait));
}

void Watchdog::setAbout(const std::string& about)
{
    std::snprintf(s_about, sizeof s_about, "%s", about.c_str());
}

void Watchdog::start(bool traces)
{
    s_traces = traces;
    std::signal(SIGPROF, printStackAndExit);
    std::signal(SIGALRM, printStackAndExit);
    std::signal(SIGABRT, crash);
    if (!followSanitizers())
        std::signal(SIGSEGV, crash);
}

void Watchdog::begin(const std::string& gesture)
{
    std::snprintf(s_gesture, sizeof s_gesture, "%s", gesture.c_str());
    if (s_traces)
        printGesture();
    if (!s_runs)
        setLimits(kLongestWork, kLongestWait);
    s_runs = true;
}

void Watchdog::end()
{
    setLimits(0, 0);
    s_runs = false;
}

} // namespace corvala::tests
