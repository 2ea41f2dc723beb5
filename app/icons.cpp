// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/icons.h"

#include <QString>

/// Resources of a static library are not there by themselves; at global scope, as the macro wants.
static void initialiseIcons()
{
    Q_INIT_RESOURCE(command_icons);
}

namespace corvala::app {

QIcon commandIcon(const char* name)
{
    static const bool isReady = (initialiseIcons(), true);
    Q_UNUSED(isReady)
    const QString title = QLatin1String(name);
    return QIcon::fromTheme(title, QIcon(QStringLiteral(":/corvala/icons/%1.svg").arg(title)));
}

} // namespace corvala::app
