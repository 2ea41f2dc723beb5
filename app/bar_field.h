// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QComboBox;
class QToolBar;

namespace corvala::app {

/// Takes the user to a field of a toolbar in which names are typed; also where the bar is too
/// narrow to show the field, in what the bar has for that, until the focus goes elsewhere.
void goToField(QToolBar& bar, QComboBox& field);

/// Takes the user back to the plot from such a field, so that keys are those of commands again.
void leaveField(QComboBox& field);

} // namespace corvala::app
