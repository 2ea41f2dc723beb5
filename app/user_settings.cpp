// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/user_settings.h"

namespace corvala::app {

QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("corvala"),
                     QStringLiteral("corvala"));
}

} // namespace corvala::app
