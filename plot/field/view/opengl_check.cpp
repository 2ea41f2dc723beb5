// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/opengl_check.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

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

/// What was found by making a context.
struct OpenGlState
{
    QString problem;
    bool isSoftware = false;
};

/// Name of the renderer; null when there is no context of the version needed.
static QByteArray findRenderer()
{
    QOpenGLContext context;
    context.setFormat(wantedFormat());
    QOffscreenSurface surface;
    if (!context.create())
        return {};
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface)
        || context.format().version() < qMakePair(kMajor, kMinor))
        return {};
    return reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
}

static OpenGlState findState()
{
    // The renderer draws through X itself: on another platform it draws nothing, or ends the
    // process.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return {
            QCoreApplication::translate(
                "corvala::plot", "Field plots need an X server; the window system here is \"%1\"")
                .arg(QGuiApplication::platformName())};
    const QByteArray renderer = findRenderer();
    if (renderer.isNull())
        return {QCoreApplication::translate(
            "corvala::plot", "OpenGL 3.2 is not available; install the package libgl1-mesa-dri")};
    OpenGlState state;
    for (const char* name : {"llvmpipe", "softpipe", "swr", "Software"})
        state.isSoftware = state.isSoftware || renderer.contains(name);
    return state;
}

static const OpenGlState& state()
{
    static const OpenGlState found = findState();
    return found;
}

QString openGlProblem()
{
    return state().problem;
}

bool isSoftwareOpenGl()
{
    return state().isSoftware;
}

} // namespace corvala::plot
