// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QWidget;

namespace corvala::ui {

/// The main window of the program, on which dialogs without another parent are made. A program
/// without one gets a hidden one.
QWidget& findMainWindow();

/// Registers the main window (not owned); it is forgotten when it is destroyed.
void setMainWindow(QWidget* window);

} // namespace corvala::ui
