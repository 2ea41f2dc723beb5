// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QWidget>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

/// Gives a widget the focus back that it loses while pages change or it moves to another one.
class FocusKeeper
{
public:
    FocusKeeper(const QWidget& window, QWidget& widget)
        : m_widget(widget)
        , m_hadFocus(window.focusWidget() == &widget)
    {
    }
    ~FocusKeeper()
    {
        if (m_hadFocus)
            m_widget.setFocus();
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    QWidget& m_widget;
    bool m_hadFocus;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
