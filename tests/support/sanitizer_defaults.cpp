// SPDX-License-Identifier: BSD-3-Clause
/// What the sanitizers do in the tests, wherever these are started from. Without a sanitizer
/// nobody asks.

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED const char* __asan_default_options();
EXPORTED const char* __lsan_default_options();
EXPORTED const char* __lsan_default_suppressions();
EXPORTED const char* __ubsan_default_options();

const char* __asan_default_options()
{
    return "detect_leaks=1:fast_unwind_on_malloc=0";
}

const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

/// Qt's offscreen platform plug-in does not free its one screen.
const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n";
}

const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}
