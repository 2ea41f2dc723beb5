// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/events/state_event.h"
#include "plot/common/scene.h"
#include "plot/field/scene/composite_layer.h"

#include <QString>

#include <vtkBoundingBox.h>

#include <array>
#include <optional>
#include <vector>

namespace corvala::plot {

/// A line of sight through a point of the picture.
struct PickRay
{
    std::array<double, 3> from; ///< nearest point that can be seen
    std::array<double, 3> to;
    double tolerance = 0.0; ///< distance that still counts as a hit, in the unit of the coordinates
};

/// Colours of a contour group that the scene shows.
struct FieldLegend
{
    QString title; ///< name of the variable
    std::optional<ContourLevels> levels; ///< nothing when no value is shown
};

/// What a field canvas shows of a frame. A canvas knows its scene through this class only, so that
/// the geometry need not be made in this process.
class FieldScene : public virtual Scene
{
public:
    /// Fits what is drawn to the view; call before drawing.
    virtual void setScale(const ViewScale& scale) = 0;

    /// Draws a few points in place of everything, until this is taken back: for a scene that takes
    /// too long to be drawn while it is moved.
    virtual void setStandIn(bool standsIn) = 0;

    /// Box round everything that is shown; invalid when nothing is.
    virtual vtkBoundingBox bounds() const = 0;

    /// The zone that is seen along a ray, nearest first; 0 for none. A zone is hit anywhere on its
    /// surface, also where only lines are drawn of it, and a zone of which more than its edges are
    /// drawn before one that shows nothing else.
    virtual CvlInt64 zoneAt(const PickRay& ray) = 0;

    virtual std::vector<FieldLegend> legends() const = 0;
    /// Names of the coordinates X, Y, Z.
    virtual std::array<QString, 3> axisTitles() const = 0;
};

} // namespace corvala::plot
