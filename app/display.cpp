// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/display.h"

#include <QCoreApplication>

#include <X11/Xlib.h>

namespace corvala::app {

static const char* const kPlatform = "QT_QPA_PLATFORM";

Display::~Display()
{
    if (m_connection)
        ::XCloseDisplay(m_connection);
}

bool Display::findXServer()
{
    if (!m_connection)
        m_connection = ::XOpenDisplay(nullptr);
    return m_connection != nullptr;
}

static QString message(const char* text)
{
    return QCoreApplication::translate("Display", text);
}

/// A script and a report open windows, which must not come to the user's screen when a picture is
/// drawn.
QString Display::preparePicture(const Options& options)
{
    const QByteArray platform = qgetenv(kPlatform);
    const bool canUseScreen = (platform.isEmpty() || platform == "xcb") && findXServer();
    if (!canUseScreen || !options.script.isEmpty() || !options.report.isEmpty()) {
        const QString error = m_server.launch();
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
    const QByteArray platform = qgetenv(kPlatform);
    if (!platform.isEmpty() && platform != "xcb")
        return {};
    const bool needsNoScreen = !options.report.isEmpty() && options.script.isEmpty();
    if ((!platform.isEmpty() || !needsNoScreen) && findXServer()) {
        qputenv(kPlatform, "xcb");
        return {};
    }
    if (options.isBatch()) {
        qputenv(kPlatform, "offscreen");
        return {};
    }
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return message(QT_TRANSLATE_NOOP(
            "Display", "plots are drawn through an X server: install the package xwayland"));
    return message(QT_TRANSLATE_NOOP(
        "Display",
        "there is no screen to show a window on; --play, --report and --render need none"));
}

} // namespace corvala::app
