// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_note.h"
#include "plot/field/view/opengl_check.h"
#include "sdk/base/types.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <vector>

namespace corvala::plot {

/// Draws a frame of the document, the whole of it in view, as an image of `size` pixels. Null, with
/// the reason in `error` (may be null), for an ID of no frame, a frame without data, an empty size,
/// or a machine without OpenGL. Field plots need an X server. `notes` (may be null) gets what there
/// is to wonder at in a field plot.
QImage renderToImage(CvlUniqueId frame, const QSize& size, QString* error,
                     std::vector<SceneNote>* notes = nullptr);

} // namespace corvala::plot
