// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corvala::plot {

/// Why plots that need OpenGL cannot be drawn, for the user, naming the package to install; empty
/// when they can. Needs the QApplication; looked at once.
QString openGlProblem();

/// Whether OpenGL is drawn by the processor: slowly, and without flawless smoothing by samples.
bool isSoftwareOpenGl();

} // namespace corvala::plot
