// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture.h"
#include "plot/field/view/field_view.h"

class QPaintDevice;

namespace corvala::plot {

/// Draws a frame, with the work that it takes, as PaintPicture: the scene is an image everywhere,
/// axes, legends and remarks are lines and texts. Not without OpenGL, or for a device too large for
/// it. `notes` (may be null) gets what there is to wonder at.
QString paintField(CvlUniqueId frame, const CameraState& camera,
                   std::shared_ptr<SurfaceCache> cache, QPaintDevice& device, Paper paper,
                   std::vector<SceneNote>* notes = nullptr, const WorkWatch& watch = {});

} // namespace corvala::plot
