// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/script.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace corvala::play {

/// Sees every window that the program opens while a script runs and hands menus, pop-ups and
/// prompts to those who wait for them. A handler runs in the event loop of its window, so its
/// ScriptError is kept and thrown by check() once that loop is left.
class WindowWatcher : public QObject
{
    Q_OBJECT

public:
    enum Kind { Menu, Popup, Prompt, KindCount };
    using Handler = std::function<void(QWidget&)>;

    /// The main window, if any, is none of those that open.
    explicit WindowWatcher(const QWidget* mainWindow = nullptr);
    ~WindowWatcher() override;

    /// Handles windows of the kind until the next call. An empty handler lets none open: it is
    /// closed, and an error. Gives back the handler before it.
    Handler setHandler(Kind kind, Handler handler);

    /// Throws what a handler threw since the last call.
    void check();

    /// The modeless window that opened last and is still open; null for none.
    QWidget* modelessWindow() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::optional<Kind> kindOf(const QWidget& window) const;
    void handle(Kind kind, QWidget& window);
    void noteShown(QWidget& window);

    const QWidget* m_mainWindow;
    Handler m_handlers[KindCount];
    QPointer<QWidget> m_modeless;
    QString m_error;
};

} // namespace corvala::play
