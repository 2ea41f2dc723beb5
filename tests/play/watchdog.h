// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <string>

namespace corvala::tests {

/// Names the gesture that runs now. When it crashes, is stopped by a sanitizer, or does not end,
/// its name is printed, in the last case with the stack.
class Watchdog
{
public:
    /// Begins to watch the calling thread. With `traces` every gesture is printed.
    static void start(bool traces);

    /// What stands before the name of the gesture.
    static void setAbout(const std::string& about);

    static void begin(const std::string& gesture);
    static void end();
};

} // namespace corvala::tests
