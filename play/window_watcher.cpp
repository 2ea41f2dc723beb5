// SPDX-License-Identifier: BSD-3-Clause
#include "play/window_watcher.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMenu>
#include <QTimer>

#include <utility>

namespace corvala::play {

WindowWatcher::WindowWatcher(const QWidget* mainWindow)
    : m_mainWindow(mainWindow)
{
    qApp->installEventFilter(this);
}

WindowWatcher::~WindowWatcher()
{
    qApp->removeEventFilter(this);
}

WindowWatcher::Handler WindowWatcher::setHandler(Kind kind, Handler handler)
{
    return std::exchange(m_handlers[kind], std::move(handler));
}

void WindowWatcher::check()
{
    if (m_error.isEmpty())
        return;
    const QString error = m_error;
    m_error.clear();
    throw ScriptError(error);
}

QWidget* WindowWatcher::modelessWindow() const
{
    return m_modeless && m_modeless->isVisible() ? m_modeless.data() : nullptr;
}

bool WindowWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto& widget = static_cast<QWidget&>(*watched);
        if (widget.isWindow() && &widget != m_mainWindow)
            noteShown(widget);
    }
    return false;
}

/// No kind for modeless windows, and for the lists that combo boxes open.
std::optional<WindowWatcher::Kind> WindowWatcher::kindOf(const QWidget& window) const
{
    if (qobject_cast<const QMenu*>(&window))
        return Menu;
    if (window.windowType() == Qt::Popup && window.inherits("QDialog"))
        return Popup;
    if (window.isModal())
        return Prompt;
    return {};
}

void WindowWatcher::noteShown(QWidget& window)
{
    if (const std::optional<Kind> kind = kindOf(window)) {
        const QPointer<QWidget> shown = &window;
        QTimer::singleShot(0, this, [this, kind, shown] {
            if (shown && shown->isVisible())
                handle(*kind, *shown);
        });
        return;
    }
    const bool isDialog = window.windowType() == Qt::Dialog || window.windowType() == Qt::Window;
    if (isDialog && window.objectName() != QLatin1String("ZoneStyle"))
        m_modeless = &window;
}

void WindowWatcher::handle(Kind kind, QWidget& window)
{
    static const char* const names[] = {
        QT_TRANSLATE_NOOP("Script", "a menu opened that the script does not expect"),
        QT_TRANSLATE_NOOP("Script", "an editor opened that the script does not expect"),
        QT_TRANSLATE_NOOP("Script", "a prompt opened that the script does not expect")};
    const QPointer<QWidget> guard = &window;
    QString error = Text::tr(names[kind]);
    if (const Handler handler = m_handlers[kind]) { // which may set another one
        error.clear();
        try {
            handler(window);
        } catch (const std::exception& problem) {
            error = QString::fromUtf8(problem.what());
        }
    }
    if (error.isEmpty())
        return;
    if (m_error.isEmpty())
        m_error = error;
    if (!guard)
        return;
    if (auto* dialog = qobject_cast<QDialog*>(guard.data()))
        dialog->reject();
    else
        guard->close();
}

} // namespace corvala::play
