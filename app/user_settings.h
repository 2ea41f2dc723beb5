// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>

namespace corvala::app {

/// What the user chose in former runs.
QSettings userSettings();

} // namespace corvala::app
