// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/view/opengl_check.h"
#include "sdk/base/types.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace corvala::plot {

/// Draws a frame of the document, the whole of it in view, as an image of `size` pixels. Null, with
/// the reason in `error` (may be null), for an ID of no frame, a frame without data, an empty size,
/// or a machine without OpenGL. Field plots need an X server.
QImage renderToImage(CvlUniqueId frame, const QSize& size, QString* error);

} // namespace corvala::plot
