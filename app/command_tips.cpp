// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_tips.h"

#include <QAction>
#include <QCoreApplication>

namespace corvala::app {

void describe(QAction& command, const QString& what)
{
    const QString keys = command.shortcut().toString(QKeySequence::NativeText);
    command.setStatusTip(what);
    command.setToolTip(keys.isEmpty() ? what
                                      : QCoreApplication::translate("CommandTips", "%1 (%2)",
                                                                    "a command and its keys")
                                            .arg(what, keys));
}

void setUpCommand(QAction& command, const char* name, const QKeySequence& keys, const QString& what)
{
    command.setObjectName(QLatin1String(name));
    command.setShortcut(keys);
    command.setShortcutContext(Qt::ApplicationShortcut);
    describe(command, what);
}

} // namespace corvala::app
