// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture.h"
#include "plot/common/scene_note.h"
#include "plot/field/view/opengl_check.h"
#include "sdk/base/types.h"

#include <vector>

namespace corvala::plot {

/// Draws a frame of the document, as it was seen when it was saved or else the whole of it in view,
/// as PaintPicture; not for an ID of no frame, a frame without data, or a field plot on a machine
/// without OpenGL. Field plots need an X server. `notes` (may be null) gets what there is to wonder
/// at.
QString paintFrame(CvlUniqueId frame, QPaintDevice& device, Paper paper,
                   std::vector<SceneNote>* notes = nullptr);

/// The same, as pictureImage.
QImage renderToImage(CvlUniqueId frame, const QSize& size, QString* error);

} // namespace corvala::plot
