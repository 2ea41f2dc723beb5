// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPointer>
#include <QWidget>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

/// Gives a widget the focus back that it, or an editor in it, loses while pages change or it moves
/// to another one.
class FocusKeeper
{
public:
    FocusKeeper(const QWidget& window, QWidget& widget)
        : m_window(window)
        , m_widget(widget)
        , m_before(window.focusWidget())
        , m_hadFocus(m_before && (m_before == &widget || widget.isAncestorOf(m_before)))
    {
    }
    /// Where nothing changed nothing is touched: a pop-up over the window would lose its keys.
    ~FocusKeeper()
    {
        if (m_hadFocus && (!m_before || m_window.focusWidget() != m_before))
            m_widget.setFocus();
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    const QWidget& m_window;
    QWidget& m_widget;
    QPointer<QWidget> m_before;
    bool m_hadFocus;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
