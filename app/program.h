// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corvala::app {

/// The whole program. Its exit code: 0 success, 1 failure, 2 wrong usage.
int runProgram(int argc, char** argv);

} // namespace corvala::app
