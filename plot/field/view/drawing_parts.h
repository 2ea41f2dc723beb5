// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkSmartPointer.h>

#include <cstdint>
#include <functional>
#include <vector>

class vtkProp;
class vtkRenderer;

namespace corvala::plot {

/// Lets renderers draw a large picture in parts, each over what is there already: the same picture
/// as in one go, while other things can happen in between.
class DrawingParts
{
public:
    /// What drawing a prop costs, in units of the budget.
    using SizeOf = std::function<std::int64_t(vtkProp*)>;

    /// The renderers, in the order in which their layers are drawn, must outlive it.
    DrawingParts(const std::vector<vtkRenderer*>& renderers, SizeOf sizeOf);
    ~DrawingParts();

    /// The next rendering begins a picture, and draws as much of it as the budget allows, at least
    /// one prop. Without a call, every rendering draws everything.
    void begin(std::int64_t budget);
    /// The next rendering goes on with the picture.
    void goOn(std::int64_t budget);
    /// Whether the last rendering left something of the picture.
    bool hasMore() const { return m_hasMore; }
    /// Cost of what is drawn of the picture.
    std::int64_t drawn() const { return m_drawn; }

private:
    class Part;
    int choose(Part& part, vtkProp** props, int count);

    SizeOf m_sizeOf;
    std::vector<vtkSmartPointer<Part>> m_parts;
    bool m_isWhole = true; ///< everything is drawn at once
    std::int64_t m_left = 0; ///< of the budget of this rendering
    std::int64_t m_drawn = 0;
    bool m_hasMore = false;
};

} // namespace corvala::plot
