// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style_dialog_command.h"

#include "app/field_keys.h"
#include "app/style_dialog.h"
#include "app/window_place.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QChildEvent>
#include <QScreen>
#include <QTimer>

namespace corvala::app {

using corvala::sdk::ui::dialogs::ZoneStyleDialog;

StyleDialogCommand::StyleDialogCommand(QWidget& mainWindow)
    : QAction(&mainWindow)
    , m_mainWindow(mainWindow)
{
    setObjectName(QStringLiteral("styleDialog"));
    setCheckable(true);
    setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
    setShortcutContext(Qt::ApplicationShortcut);
    keepKeysInFields(*this);
    const auto relevance = ZoneStyleDialog::relevance();
    const auto follow = [this, relevance] {
        setEnabled(relevance->isRelevant());
        if (isEnabled() && m_opensWithData) // when what comes with the data is done
            QTimer::singleShot(0, this, [this] { openWithData(); });
    };
    m_connection = relevance->connectChanged(follow);
    follow();
    mainWindow.installEventFilter(this);
    connect(this, &QAction::triggered, this, &StyleDialogCommand::openOrClose);
}

void StyleDialogCommand::openWithData()
{
    m_opensWithData = !isEnabled();
    if (isEnabled())
        openStyleDialog(m_mainWindow, corvala::dialogs::common::DialogInitialization_None);
}

void StyleDialogCommand::follow(QWidget& dialog)
{
    if (dialog.findChild<WindowPlace*>())
        return;
    new WindowPlace(dialog, QStringLiteral("styleDialog"), [this, &dialog] {
        return placeHidingLeast(m_mainWindow, dialog, m_mainWindow.screen()->availableGeometry());
    });
    dialog.installEventFilter(this);
}

/// The dialog shows that it is there when it is first shown, whoever made it. It grows when it has
/// more to show.
bool StyleDialogCommand::eventFilter(QObject* watched, QEvent* event)
{
    ZoneStyleDialog* const dialog = ZoneStyleDialog::m_dialogInstance;
    if (event->type() == QEvent::ChildPolished
        && static_cast<const QChildEvent*>(event)->child() == dialog)
        follow(*dialog);
    else if (watched == dialog && event->type() == QEvent::Resize && !event->spontaneous())
        QTimer::singleShot(0, dialog, [dialog] { keepOnScreen(*dialog); });
    else if (watched == dialog && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        setChecked(event->type() == QEvent::Show);
    if (watched == dialog && event->type() == QEvent::Show && !event->spontaneous())
        dialog->allowNarrow(); // its preferred size is chosen, its place not yet
    return false;
}

void StyleDialogCommand::openOrClose()
{
    QWidget* const dialog = existingStyleDialog();
    if (dialog && dialog->isVisible() && !dialog->isMinimized())
        dialog->close();
    else if (isEnabled()) // a disabled command can be triggered by code
        openStyleDialog(m_mainWindow, corvala::dialogs::common::DialogInitialization_None);
    setChecked(existingStyleDialog() && existingStyleDialog()->isVisible());
}

} // namespace corvala::app
