// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace corvala::app {

/// All that a widget writes from the press of a mouse button until it is let go is one undo step,
/// such as the steps of a held arrow.
void mergeStepsWhileHeld(QWidget& widget);

} // namespace corvala::app
