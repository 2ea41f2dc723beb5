// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/opengl_check.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>

namespace corvala::plot {

static constexpr int kMajor = 3;
static constexpr int kMinor = 2;

static QSurfaceFormat wantedFormat()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(kMajor, kMinor);
    format.setProfile(QSurfaceFormat::CoreProfile);
    return format;
}

static bool hasOpenGl()
{
    QOpenGLContext context;
    context.setFormat(wantedFormat());
    if (!context.create())
        return false;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface))
        return false;
    return context.format().version() >= qMakePair(kMajor, kMinor);
}

static QString findProblem()
{
    // The renderer draws through X itself: on another platform it draws nothing, or ends the
    // process.
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        return QCoreApplication::translate(
                   "corvala::plot",
                   "Field plots need an X server; the window system here is \"%1\"")
            .arg(QGuiApplication::platformName());
    }
    if (!hasOpenGl()) {
        return QCoreApplication::translate(
            "corvala::plot", "OpenGL 3.2 is not available; install the package libgl1-mesa-dri");
    }
    return {};
}

QString openGlProblem()
{
    static const QString problem = findProblem();
    return problem;
}

} // namespace corvala::plot
