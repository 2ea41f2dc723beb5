// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/drawing_parts.h"

#include <vtk_glew.h> // for those after it

#include <vtkCuller.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLRenderer.h>
#include <vtkOpenGLState.h>
#include <vtkProp.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <utility>

namespace corvala::plot {

/// What a renderer draws of the picture: it is asked when the renderer is about to draw.
class DrawingParts::Part : public vtkCuller
{
public:
    static Part* New();
    double Cull(vtkRenderer*, vtkProp** props, int& count, int&) override
    {
        // A renderer switches this on only when it clears its layer, and others who draw with the
        // same context switch it off between the parts.
        if (auto* const opengl = vtkOpenGLRenderer::SafeDownCast(renderer))
            opengl->GetState()->vtkglEnable(GL_DEPTH_TEST);
        count = owner->choose(*this, props, count);
        return count;
    }

    DrawingParts* owner = nullptr;
    vtkRenderer* renderer = nullptr;
    int done = 0; ///< props that are drawn; -1 before the renderer begins
};

vtkStandardNewMacro(DrawingParts::Part);

DrawingParts::DrawingParts(const std::vector<vtkRenderer*>& renderers, SizeOf sizeOf)
    : m_sizeOf(std::move(sizeOf))
{
    for (vtkRenderer* const renderer : renderers) {
        const auto part = vtkSmartPointer<Part>::New();
        part->owner = this;
        part->renderer = renderer;
        renderer->AddCuller(part);
        m_parts.push_back(part);
    }
}

DrawingParts::~DrawingParts()
{
    for (const auto& part : m_parts)
        part->renderer->RemoveCuller(part);
}

void DrawingParts::begin(std::int64_t budget)
{
    m_isWhole = false;
    m_drawn = 0;
    for (const auto& part : m_parts)
        part->done = -1;
    goOn(budget);
    m_parts.front()->renderer->EraseOn();
}

void DrawingParts::goOn(std::int64_t budget)
{
    m_left = budget;
    m_hasMore = false;
    for (const auto& part : m_parts)
        part->renderer->EraseOff();
}

/// Renderers are asked one after the other, but for those that show nothing. One of them clears its
/// layer when it begins, and begins when those before it are done. What is translucent is sorted by
/// depth as a whole: it is drawn in one go.
int DrawingParts::choose(Part& part, vtkProp** props, int count)
{
    if (m_isWhole || m_hasMore)
        return m_isWhole ? count : 0;
    if (part.done < 0) {
        part.renderer->EraseOn();
        part.done = 0;
    }
    const int from = part.done;
    bool isIndivisible = false;
    while (part.done < count && (m_left > 0 || isIndivisible)) {
        isIndivisible = props[part.done]->HasTranslucentPolygonalGeometry() != 0;
        const std::int64_t size = m_sizeOf(props[part.done++]);
        m_left -= size;
        m_drawn += size;
    }
    m_hasMore = part.done < count;
    std::copy(props + from, props + part.done, props);
    return part.done - from;
}

} // namespace corvala::plot
