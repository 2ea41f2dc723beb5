// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/view/field_view.h"

#include <QImage>

namespace corvala::plot {

/// Draws a frame, with the work that it takes, as an image of `size` pixels. Null, with the reason
/// in `error` (may be null), without OpenGL, for an empty size or one too large for it. `notes`
/// (may be null) gets what there is to wonder at.
QImage drawFieldImage(CvlUniqueId frame, const CameraState& camera,
                      std::shared_ptr<SurfaceCache> cache, const QSize& size, QString* error,
                      std::vector<SceneNote>* notes = nullptr);

} // namespace corvala::plot
