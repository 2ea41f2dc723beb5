// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/display.h"

#include <QCoreApplication>

#include <X11/Xlib.h>

namespace corvala::app {

static const char* const kPlatform = "QT_QPA_PLATFORM";

static bool hasXServer()
{
    ::Display* connection = ::XOpenDisplay(nullptr);
    if (connection)
        ::XCloseDisplay(connection);
    return connection != nullptr;
}

/// A script opens windows, which must not come to the user's screen when a picture is drawn.
QString Display::preparePicture(const Options& options)
{
    const QByteArray platform = qgetenv(kPlatform);
    const bool canUseScreen = (platform.isEmpty() || platform == "xcb") && hasXServer();
    if (!canUseScreen || !options.script.isEmpty()) {
        const QString error = m_server.start();
        if (error.isEmpty())
            qputenv("DISPLAY", m_server.display().toLatin1());
        else if (!canUseScreen)
            return error;
    }
    qputenv(kPlatform, "xcb");
    return {};
}

QString Display::prepare(const Options& options)
{
    if (!options.picture.isEmpty())
        return preparePicture(options);
    if (!qEnvironmentVariableIsEmpty(kPlatform))
        return {};
    const bool needsNoScreen = !options.report.isEmpty() && options.script.isEmpty();
    if (!needsNoScreen && hasXServer()) {
        qputenv(kPlatform, "xcb");
        return {};
    }
    if (options.isBatch()) {
        qputenv(kPlatform, "offscreen");
        return {};
    }
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return {};
    return QCoreApplication::translate(
        "Display",
        "there is no screen to show a window on; --play, --report and --render need none");
}

} // namespace corvala::app
