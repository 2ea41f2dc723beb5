// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corvala::app {

class MainWindow;
struct Options;

/// The whole program. Its exit code: 0 success, 1 failure, 2 wrong usage.
int runProgram(int argc, char** argv);

/// Shows the window and opens the data that were asked for; the window tells what cannot be read.
void startInteractive(MainWindow& window, const Options& options);

} // namespace corvala::app
