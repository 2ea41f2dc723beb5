// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkCompositePolyDataMapper2.h>

#include <utility>
#include <vector>

namespace corvala::plot {

/// A composite mapper whose blocks can lie behind each other: shaders that declare the uniform
/// `stepsBack` are told for each block how many steps it moves away from the viewer.
class BlockMapper : public vtkCompositePolyDataMapper2
{
public:
    static BlockMapper* New();

    /// By block, in the order of a flat multi-block input.
    void setStepsBack(std::vector<float> steps) { m_steps = std::move(steps); }

protected:
    vtkCompositeMapperHelper2* CreateHelper() override;

private:
    class Helper;

    std::vector<float> m_steps;
};

} // namespace corvala::plot
