// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window_place.h"

#include "app/user_settings.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace corvala::app {

static constexpr int kNotingMilliseconds = 200;

QSize frameOf(const QWidget& window)
{
    constexpr QSize kLikely(10, 36);
    const QMargins margins =
        window.windowHandle() ? window.windowHandle()->frameMargins() : QMargins();
    return margins.isNull()
        ? kLikely
        : QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

static QList<QRect> availableScreens()
{
    QList<QRect> screens;
    for (const QScreen* const screen : QGuiApplication::screens())
        screens << screen->availableGeometry();
    return screens;
}

/// More is better.
static std::pair<int, int> suits(const QRect& screen, const QRect& area)
{
    const QRect common = screen & area;
    return {common.isEmpty() ? 0 : common.width() * common.height(),
            -(screen.center() - area.center()).manhattanLength()};
}

QRect fitted(const QRect& area, const QList<QRect>& screens)
{
    const auto best =
        std::max_element(screens.begin(), screens.end(), [&](const QRect& one, const QRect& other) {
            return suits(one, area) < suits(other, area);
        });
    if (best == screens.end())
        return area;
    const QSize size = area.size().boundedTo(best->size());
    const QSize room = best->size() - size;
    return {std::clamp(area.left(), best->left(), best->left() + room.width()),
            std::clamp(area.top(), best->top(), best->top() + room.height()), size.width(),
            size.height()};
}

/// The place has the corner of the frame and the size within. Whether all of the size fits.
static bool put(QWidget& window, const QRect& place, const QSize& frame)
{
    const QRect area = fitted({place.topLeft(), place.size() + frame}, availableScreens());
    if (window.size() != area.size() - frame)
        window.resize(area.size() - frame);
    if (window.pos() != area.topLeft() || !window.testAttribute(Qt::WA_Moved))
        window.move(area.topLeft());
    return area.size() == place.size() + frame;
}

void keepOnScreen(QWidget& window)
{
    auto* const place = window.findChild<WindowPlace*>({}, Qt::FindDirectChildrenOnly);
    if (!put(window, {window.pos(), window.size()}, frameOf(window)) && place)
        place->takeAsFitted();
}

static QString placeKey(const QString& name)
{
    return QStringLiteral("windows/%1Place").arg(name);
}

static QString frameKey(const QString& name)
{
    return QStringLiteral("windows/%1Frame").arg(name);
}

static QString maximizedKey(const QString& name)
{
    return QStringLiteral("windows/%1IsMaximized").arg(name);
}

WindowPlace::WindowPlace(QWidget& window, const QString& name, std::function<QRect()> first)
    : QObject(&window)
    , m_window(window)
    , m_name(name)
    , m_first(std::move(first))
    , m_place(userSettings().value(placeKey(name)).toRect())
    , m_frame(userSettings().value(frameKey(name)).toSize())
{
    if (!m_place.isNull() && !put(window, m_place, m_frame)) // to which a maximised window returns
        takeAsFitted();
    if (userSettings().value(maximizedKey(name)).toBool())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    m_noting.setSingleShot(true);
    m_noting.setInterval(kNotingMilliseconds);
    connect(&m_noting, &QTimer::timeout, this, &WindowPlace::note);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (m_window.isVisible()) // else it was closed
            save();
    });
    window.installEventFilter(this);
}

bool WindowPlace::isNormal() const
{
    return !(m_window.windowState()
             & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen));
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOfWidget = watched == &m_window;
    if (!isOfWidget && event->type() == QEvent::Expose && m_window.windowHandle()->isExposed())
        settle();
    else if (isOfWidget && event->type() == QEvent::Show && !event->spontaneous())
        come();
    else if (isOfWidget && event->type() == QEvent::Hide && !event->spontaneous())
        save();
    else if (isOfWidget && m_isSettled
             && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        m_noting.start();
    return false;
}

/// The window is about to be mapped.
void WindowPlace::come()
{
    m_isSettled = false;
    m_window.windowHandle()->removeEventFilter(this);
    m_window.windowHandle()->installEventFilter(this);
    m_wanted = m_place.isNull() ? m_first() : m_place;
    if (isNormal())
        put(m_window, m_wanted, m_frame.isEmpty() ? frameOf(m_window) : m_frame);
}

/// The window has a frame now, and stands where the window manager wants it.
void WindowPlace::settle()
{
    if (std::exchange(m_isSettled, true))
        return;
    if (!isNormal())
        return;
    m_fitted = {};
    if (!put(m_window, m_wanted, frameOf(m_window)) || m_place.isNull())
        takeAsFitted();
}

void WindowPlace::takeAsFitted()
{
    m_fitted = {m_window.pos(), m_window.size()};
}

void WindowPlace::note()
{
    if (!isNormal() || !m_window.windowHandle())
        return;
    const QRect place(m_window.windowHandle()->framePosition(), m_window.size());
    if (place == m_fitted)
        return;
    if (place.size() == m_fitted.size() && !m_place.isNull())
        m_place.moveTopLeft(place.topLeft());
    else
        m_place = place;
    m_frame = frameOf(m_window);
}

void WindowPlace::save()
{
    if (m_noting.isActive()) {
        m_noting.stop();
        note();
    }
    QSettings settings = userSettings();
    settings.setValue(placeKey(m_name), m_place);
    settings.setValue(frameKey(m_name), m_frame);
    settings.setValue(maximizedKey(m_name), m_window.isMaximized());
}

} // namespace corvala::app
