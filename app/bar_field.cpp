// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/bar_field.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace corvala::app {

void goToField(QToolBar& bar, QComboBox& field)
{
    // Qt gives the button for the rest of a toolbar no other handle than its name.
    auto* const rest = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    if (!field.isVisible() && rest && rest->isVisible() && !rest->isChecked())
        rest->click();
    QTimer::singleShot(0, &field, [&field] { // the bar is laid out by then
        field.window()->activateWindow();
        field.setFocus(Qt::ShortcutFocusReason);
        if (field.lineEdit())
            field.lineEdit()->selectAll();
        field.showPopup();
    });
}

} // namespace corvala::app
