// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/busy_cursor.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QWindow>

#include <X11/Xlib.h>
#include <X11/cursorfont.h>

#include <utility>

namespace corvala::app {

using namespace std::chrono_literals;

static constexpr auto kBetweenQuestions = 50ms;
static constexpr auto kPatience = 150ms; ///< until an answer; with the above, 0.2 s at most

Q_LOGGING_CATEGORY(busyLog, "corvala.busy", QtWarningMsg)

BusyCursor::BusyCursor(QObject* parent)
    : QObject(parent)
{
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        m_display = ::XOpenDisplay(nullptr);
    if (!m_display)
        return;
    m_cursor = ::XCreateFontCursor(m_display, XC_watch);
    qApp->installEventFilter(this);
    m_thread = std::thread([this] { watch(); });
}

BusyCursor::~BusyCursor()
{
    if (!m_display)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_stop.notify_one();
    m_thread.join();
    ::XCloseDisplay(m_display);
}

bool BusyCursor::isShown()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isShown;
}

bool BusyCursor::eventFilter(QObject* watched, QEvent*)
{
    if (watched != this) // its own questions are no work
        m_worked.store(true, std::memory_order_relaxed);
    return false;
}

/// A loop that is idle is not asked.
void BusyCursor::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stop.wait_for(lock, kBetweenQuestions, [this] { return m_isEnding; })) {
        if (!m_isAsked && m_worked.exchange(false)) {
            m_isAsked = true;
            m_askedAt = Clock::now();
            QMetaObject::invokeMethod(
                this, [this] { answer(); }, Qt::QueuedConnection);
        } else if (m_isAsked && !m_isShown && Clock::now() - m_askedAt >= kPatience) {
            showWait();
        }
    }
}

/// The windows cannot go meanwhile: their thread is busy.
void BusyCursor::showWait()
{
    m_isShown = true;
    for (const unsigned long window : m_windows)
        ::XDefineCursor(m_display, window, m_cursor);
    ::XSync(m_display, False);
}

void BusyCursor::answer()
{
    bool wasShown = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isAsked = false;
        wasShown = std::exchange(m_isShown, false);
        m_windows.clear();
        for (const QWindow* window : QGuiApplication::topLevelWindows())
            if (window->isVisible() && window->handle())
                m_windows.push_back(window->winId());
    }
    if (!wasShown)
        return;
    qCDebug(busyLog, "the event loop was held up for %d ms",
            static_cast<int>((Clock::now() - m_askedAt) / 1ms));
    // Makes Qt define the cursor of each window anew.
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

} // namespace corvala::app
