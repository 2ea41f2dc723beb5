// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QComboBox;
class QToolBar;

namespace corvala::app {

/// Takes the user to a field of a toolbar in which names are typed; also where the bar is too
/// narrow to show the field, in what the bar has for that, until the focus goes elsewhere.
void goToField(QToolBar& bar, QComboBox& field);

} // namespace corvala::app
