// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/field_keys.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>

namespace corvala::app {

namespace {

/// Lets no field claim the keys before they are offered to the commands.
class Keeper : public QObject
{
public:
    explicit Keeper(QAction& command)
        : QObject(&command)
        , m_command(command)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride || !m_command.isEnabled())
            return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (QKeySequence(key.key() | static_cast<int>(key.modifiers())) != m_command.shortcut())
            return false;
        event->ignore();
        return true;
    }

private:
    QAction& m_command;
};

} // namespace

void keepKeysInFields(QAction& command)
{
    new Keeper(command);
}

} // namespace corvala::app
