// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/composite_layer.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkPolyData.h>

namespace corvala::plot {

/// Points of what is drawn, in its colours: quickly drawn in place of a large scene while it is
/// being moved.
class StandIn
{
public:
    /// Points at most, and some more so that no map is missing.
    static constexpr vtkIdType kPoints = 50'000;

    StandIn();

    /// Takes of each map the points of the first layer that draws it.
    void take(const std::vector<const CompositeLayer*>& layers, const host::NumberSet& maps,
              const ContourGroups& groups);

    vtkActor* actor() const { return m_actor; }

private:
    vtkNew<vtkActor> m_actor;
    vtkNew<vtkPolyData> m_cloud;
};

} // namespace corvala::plot
