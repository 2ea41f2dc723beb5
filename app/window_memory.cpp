// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window_memory.h"

#include "app/style_dialog.h"
#include "app/user_settings.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

namespace corvala::app {

static const QString kPanels = QStringLiteral("windows/panels");
static const QString kDialogIsOpen = QStringLiteral("windows/styleDialogIsOpen");

WindowMemory::WindowMemory(QMainWindow& window, const QAction& styleDialog)
    : m_window(window)
    , m_styleDialog(styleDialog)
    , m_isDialogOpen(styleDialog.isChecked())
{
    window.installEventFilter(this);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (m_window.isVisible()) // else it was closed, with all that belongs to it
            save();
    });
    // Quitting closes all windows, in any order.
    connect(
        &styleDialog, &QAction::toggled, this,
        [this] {
            if (m_window.isVisible())
                m_isDialogOpen = m_styleDialog.isChecked();
        },
        Qt::QueuedConnection);
}

bool WindowMemory::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Close)
        save();
    return false;
}

void WindowMemory::save()
{
    QSettings settings = userSettings();
    settings.setValue(kPanels, m_window.saveState());
    if (existingStyleDialog())
        settings.setValue(kDialogIsOpen, m_isDialogOpen);
}

void restorePanels(QMainWindow& window)
{
    window.restoreState(userSettings().value(kPanels).toByteArray());
}

bool wasStyleDialogOpen()
{
    return userSettings().value(kDialogIsOpen, false).toBool();
}

} // namespace corvala::app
