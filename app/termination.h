// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <iterator>

class QSocketNotifier;

namespace corvala::app {

/// Ends the program in good order when the system asks for its end (SIGTERM, SIGINT, SIGHUP): event
/// loops end, reading is given up, temporary folders go. A second signal ends it at once. Needs the
/// application object.
class Termination
{
public:
    Termination();
    ~Termination();
    Termination(const Termination&) = delete;
    Termination& operator=(const Termination&) = delete;

    /// What a shell expects of a program that a signal ended, or `usual` without a signal.
    static int exitCode(int usual);

private:
    static constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

    QSocketNotifier* m_notifier = nullptr;
    struct sigaction m_before[std::size(kSignals)] {}; ///< what was done about each
};

} // namespace corvala::app
