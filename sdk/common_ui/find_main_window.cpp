// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/find_main_window.h"

#include <QPointer>
#include <QWidget>

namespace corvala::ui {

static QPointer<QWidget>& mainWindow()
{
    static QPointer<QWidget> window;
    return window;
}

QWidget& findMainWindow()
{
    // The hidden window has no owner: QApplication deletes the windows that are left at its end.
    if (!mainWindow())
        mainWindow() = new QWidget;
    return *mainWindow();
}

void setMainWindow(QWidget* window)
{
    mainWindow() = window;
}

} // namespace corvala::ui
