// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/block_recipe.h"
#include "plot/field/geometry/contour_groups.h"
#include "plot/field/geometry/shape_pieces.h"
#include "plot/field/geometry/surface_cache.h"

namespace corvala::plot {

/// A surface in the place where it is drawn.
struct PlacedSurface
{
    CvlInt64 zone = 0;
    SurfaceChoice choice;
    std::shared_ptr<const ZoneSurface> surface; ///< null for points that are of no surface
    /// The surface's shape, of one thread only; in a flat plot laid down at the height of its map.
    vtkSmartPointer<vtkPolyData> shape;
};

/// Makes the geometry of blocks from zones. The layers of a map share its surfaces.
class BlockBuilder
{
public:
    BlockBuilder(const host::DataSet& data, const ContourGroups& groups, SurfaceCache& cache)
        : m_data(data)
        , m_groups(groups)
        , m_cache(cache)
    {
    }

    /// The geometry of a block; none when there is nothing to draw. Surfaces are taken from
    /// `placed`, or made and added to it; those of another zone are dropped. `height` lays the
    /// block down at that height in a flat plot; null leaves it as it is. Of streamtraces `start`,
    /// which may be null, tells where they start.
    ShapePieces build(const BlockRecipe& recipe, const double* height,
                      std::vector<PlacedSurface>& placed, StreamStart* start = nullptr) const;

private:
    using Shape = vtkSmartPointer<vtkPolyData>;

    const PlacedSurface* surface(const BlockRecipe& recipe, const double* height,
                                 std::vector<PlacedSurface>& placed) const;
    Shape flood(const BlockRecipe& recipe, const PlacedSurface& placed) const;
    Shape cellFlood(const BlockRecipe& recipe, const PlacedSurface& placed) const;
    Shape contourLines(const BlockRecipe& recipe, const PlacedSurface& placed) const;
    Shape mesh(const BlockRecipe& recipe, const PlacedSurface& placed) const;
    Shape streams(const BlockRecipe& recipe, StreamStart* start) const;
    Shape edges(const BlockRecipe& recipe, const PlacedSurface& placed, const double* height) const;

    /// Points that carry something, and what they are of.
    struct Carriers
    {
        std::shared_ptr<const ZoneSurface> surface; ///< null for points of the whole zone
        GlyphPoints points;
    };
    /// Lays the points down, and adds them to `placed` unless a surface stands for them.
    Carriers carriers(const BlockRecipe& recipe, const double* height,
                      std::vector<PlacedSurface>& placed) const;
    vtkSmartPointer<vtkDoubleArray> vectors(const BlockRecipe& recipe,
                                            const Carriers& carriers) const;
    Shape arrowShapes(const BlockRecipe& recipe, const Carriers& carriers, bool isFlat) const;
    Shape symbolShapes(const BlockRecipe& recipe, const Carriers& carriers) const;
    vtkSmartPointer<vtkDataArray> carrierColors(int group, const BlockRecipe& recipe,
                                                const Carriers& carriers) const;

    vtkSmartPointer<vtkDoubleArray> values(int group, const BlockRecipe& recipe,
                                           const PlacedSurface& placed) const;
    /// Colours by a group, ContourGroups::kRed for RGB; `valuesOf` gives the values of a group.
    /// Null when the zone lacks a variable.
    template<class ValuesOf>
    vtkSmartPointer<vtkDataArray> colorsBy(int group, ValuesOf valuesOf) const;
    vtkSmartPointer<vtkDataArray> colors(const BlockRecipe& recipe,
                                         const PlacedSurface& placed) const;
    /// The same for lines, which are drawn without values, too.
    vtkSmartPointer<vtkDataArray> lineColorsOf(const BlockRecipe& recipe,
                                               const PlacedSurface& placed) const;
    /// What colours a flood: colours, or coordinates in the texture of the group's bands.
    vtkSmartPointer<vtkDataArray> floodArray(const BlockRecipe& recipe,
                                             const PlacedSurface& placed) const;

    const host::DataSet& m_data;
    const ContourGroups& m_groups;
    SurfaceCache& m_cache;
};

} // namespace corvala::plot
