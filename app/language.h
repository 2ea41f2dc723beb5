// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corvala::app {

/// Shows the program, and what Qt says in it, in the first language of the user's that there is;
/// English is always there. Before the first window.
void setUpLanguage();

} // namespace corvala::app
