// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/background_task.h"
#include "plot/field/geometry/block_builder.h"
#include "plot/field/scene/pick_tree.h"

#include <vtkDoubleArray.h>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace corvala::plot {

/// What is known of a place on a surface. Numbers are from 1; 0 where they are not known.
struct SurfacePlace
{
    CvlInt64 zone = 0;
    std::array<double, 3> place {};
    std::int64_t cell = 0;
    std::int64_t point = 0; ///< of the zone, nearest among the corners of the cell
    std::optional<double> value; ///< of the variable that was asked for
};

/// Tells what a ray meets on surfaces, however many cells they have: search trees and values of
/// large ones are made by another thread, one surface at a time.
class SurfaceProbe
{
public:
    /// A surface whose box the ray meets, and where it enters that.
    struct Candidate
    {
        const PlacedSurface* surface;
        double entry;
    };

    /// What the ray meets first; nothing where it meets nothing, and while isPending.
    std::optional<SurfacePlace> probe(const PickRay& ray, std::vector<Candidate> candidates,
                                      const std::shared_ptr<const host::DataSet>& data,
                                      CvlInt64 variable);
    /// Whether something is being made for what was asked last: ask again.
    bool isPending() const { return m_isPending; }
    void clear();

private:
    struct Known
    {
        std::shared_ptr<const PickTree> tree;
        CvlInt64 variable = 0;
        vtkSmartPointer<vtkDoubleArray> values; ///< null where the zone has none
        bool areOfCells = false;
    };
    using Shape = vtkSmartPointer<vtkPolyData>; ///< kept, so that no other has its address

    using KnownPointer = std::shared_ptr<const Known>; ///< null while another thread makes it

    KnownPointer known(const PlacedSurface& placed,
                       const std::shared_ptr<const host::DataSet>& data, CvlInt64 variable);
    KnownPointer keep(const Shape& shape, Known known);
    void takeBack();
    static SurfacePlace describe(const PickRay& ray, const PickRay::Hit& hit,
                                 const PlacedSurface& placed, const Known& known,
                                 const host::DataSet& data);

    std::map<Shape, KnownPointer> m_known;
    vtkIdType m_cells = 0; ///< of all trees
    vtkIdType m_patience = 0; ///< cells that may be looked at while somebody waits
    bool m_isPending = false;
    Shape m_handed; ///< what the task works for
    std::unique_ptr<BackgroundTask<Known>> m_task; ///< null while nothing is made
};

} // namespace corvala::plot
