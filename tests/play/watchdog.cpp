// SPDX-License-Identifier: BSD-3-Clause
#include "tests/play/watchdog.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <thread>

#include <dlfcn.h>
#include <execinfo.h>
#include <pthread.h>
#include <unistd.h>

namespace corvala::tests {

namespace {

/// Of the processor, as a busy machine makes everything late; of the clock for what waits for ever.
constexpr double kLongestWork = 5.0;
constexpr double kLongestWait = 60.0;

char s_about[200];
char s_gesture[1000];
std::atomic<int> s_number {0}; ///< of the gesture that runs; odd from begin() to end()
pthread_t s_watched;
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

static double secondsOf(clockid_t clock)
{
    timespec time {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

static void watch()
{
    int number = 0;
    double work = 0;
    double wait = 0;
    for (;;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        const double workNow = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
        const double waitNow = secondsOf(CLOCK_MONOTONIC);
        const int running = s_number;
        if (running != number || running % 2 == 0) {
            number = running;
            work = workNow;
            wait = waitNow;
        } else if (workNow - work > kLongestWork || waitNow - wait > kLongestWait) {
            pthread_kill(s_watched, SIGUSR1);
            return;
        }
    }
}

void Watchdog::setAbout(const std::string& about)
{
    std::snprintf(s_about, sizeof s_about, "%s", about.c_str());
}

void Watchdog::start(bool traces)
{
    s_traces = traces;
    s_watched = pthread_self();
    std::signal(SIGUSR1, printStackAndExit);
    std::signal(SIGABRT, crash);
    if (!followSanitizers())
        std::signal(SIGSEGV, crash);
    std::thread(watch).detach();
}

void Watchdog::begin(const std::string& gesture)
{
    std::snprintf(s_gesture, sizeof s_gesture, "%s", gesture.c_str());
    if (s_traces)
        printGesture();
    if (s_number % 2 == 0)
        ++s_number;
}

void Watchdog::end()
{
    if (s_number % 2 == 1)
        ++s_number;
}

} // namespace corvala::tests
