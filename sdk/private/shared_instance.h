// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/common_ui/find_main_window.h>

#include <QPointer>
#include <QWidget>

namespace corvala::dialogs::common {

/// The one instance of a prompt, on the given parent (null: the main window). `make` makes it anew
/// when there is none, its parent having died, or it has another parent.
template<class Dialog, class Make>
Dialog& sharedInstance(QPointer<Dialog>& instance, QWidget* parent, Make make)
{
    QWidget* owner = parent ? parent : &ui::findMainWindow();
    if (instance && instance->parentWidget() != owner) {
        // It may be waiting for its user, further up the call stack.
        instance->close();
        instance->deleteLater();
        instance.clear();
    }
    if (!instance)
        instance = make(owner);
    return *instance;
}

} // namespace corvala::dialogs::common
