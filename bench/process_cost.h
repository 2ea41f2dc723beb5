// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace corvala::bench {

/// What a process and those that it started took.
struct Cost
{
    double seconds = 0.0; ///< of processors
    double megabytes = 0.0; ///< of all of them together at the worst moment, as far as it was seen
    bool isOk = false; ///< the process ended with 0
};

/// Runs a function in a copy of this process, which must have no threads.
Cost costOf(const std::function<bool()>& work);

/// Runs a program, by its path and its arguments.
Cost costOf(const std::vector<std::string>& command);

} // namespace corvala::bench
