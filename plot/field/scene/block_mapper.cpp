// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/block_mapper.h"

#include <vtk_glew.h> // for the next one

#include <vtkCompositeMapperHelper2.h>
#include <vtkObjectFactory.h>
#include <vtkShaderProgram.h>

namespace corvala::plot {

/// Draws the blocks of a mapper, one after the other.
class BlockMapper::Helper : public vtkCompositeMapperHelper2
{
public:
    static Helper* New();

protected:
    void SetShaderValues(vtkShaderProgram* program, vtkCompositeMapperHelperData* block,
                         size_t primitives) override
    {
        vtkCompositeMapperHelper2::SetShaderValues(program, block, primitives);
        const std::vector<float>& steps = static_cast<BlockMapper*>(Parent)->m_steps;
        const std::size_t number = block->FlatIndex - 1; // the first is that of the input itself
        if (number < steps.size() && program->IsUniformUsed("stepsBack"))
            program->SetUniformf("stepsBack", steps[number]);
    }
};

vtkStandardNewMacro(BlockMapper::Helper);
vtkStandardNewMacro(BlockMapper);

vtkCompositeMapperHelper2* BlockMapper::CreateHelper()
{
    return Helper::New();
}

} // namespace corvala::plot
