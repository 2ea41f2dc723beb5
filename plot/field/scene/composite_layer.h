// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/contour_groups.h"
#include "plot/field/geometry/shape_pieces.h"
#include "plot/field/scene/block_look.h"
#include "plot/field/scene/layer_looks.h"

#include <vtkBoundingBox.h>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class vtkActor;
class vtkRenderer;

namespace corvala::plot {

class SlowRelease;

/// Size of what is drawn on the paper.
struct ViewScale
{
    int frameHeight = 1; ///< pixels
    double pixelsPerUnit = 1.0; ///< of the coordinates, at the centre of what is looked at
    double thinnestLine = 1.0; ///< pixels; above 1 when one pixel of the picture has several
    std::array<double, 2> viewport {{1.0, 1.0}}; ///< width and height of the plot, in pixels
    double nearness = 0.0; ///< share of its distance that is as long as a pixel; 0 in a flat plot
    double depthSlope = 1.0; ///< of the depth by the distance from the viewer
    /// Directions of the axes X, Y and Z: to the right, up and towards the viewer.
    std::array<std::array<float, 3>, 3> axes {{{{1, 0, 0}}, {{0, 1, 0}}, {{0, 0, 1}}}};
};

/// Draws one layer of a field plot. The blocks of maps with the same mapper look share a composite
/// mapper; colours are attributes of the blocks. What lies in the same place is covered by the map
/// with the higher number: in space a mapper draws maps between which none looks otherwise, as long
/// as that takes no more than `kMostMappers`. Beyond, and in a flat plot, where maps lie above each
/// other, there is one mapper to a look. What is more than a mapper can draw in a moment, or than
/// `kMostMaps`, is shared among several, one after the other: a mapper that is given other blocks
/// uploads all that it has anew.
class CompositeLayer
{
public:
    static constexpr std::size_t kMostMappers = 100;
    static constexpr CvlInt64 kMostMaps = 64; ///< a power of two

    /// Work done since the layer was made, to see what an edit costs.
    struct Counters
    {
        std::int64_t built = 0; ///< geometries made
        std::int64_t moved = 0; ///< blocks given to another mapper
        std::int64_t recolored = 0;
        std::int64_t removed = 0;
    };
    /// Makes the geometry of a block.
    using Builder = std::function<ShapePieces(const BlockRecipe&)>;

    CompositeLayer(FieldLayer layer, bool flat, vtkRenderer& back, vtkRenderer& front);
    ~CompositeLayer();

    /// Brings the block of a map in line with its look; touches nothing else, and of the block only
    /// what differs.
    void sync(CvlInt64 map, const std::optional<BlockLook>& look, const Builder& build);
    /// Whether `sync` would make geometry.
    bool builds(CvlInt64 map, const std::optional<BlockLook>& look) const;

    void setVisible(bool visible);
    bool isVisible() const { return m_visible; }
    /// Takes what is visible out of the picture for a while.
    void setHidden(bool hidden);
    /// Hands the blocks to mappers in the order of the maps, and fits line widths and patterns to
    /// the view, flood textures to the levels of the groups; call before drawing.
    void prepare(const ViewScale& scale, const ContourGroups& groups);
    /// Width in pixels of the widest line of the layer that faces can hide; 0 without.
    double widestLine() const;
    void setWidestLine(double pixels); ///< of all layers
    /// Contour groups that colour something in this layer, ascending.
    std::vector<int> groupsInUse() const;

    /// Box round all blocks; invalid without any.
    vtkBoundingBox bounds() const;
    bool draws(CvlInt64 map) const;
    bool hasGeometry() const; ///< of any map
    /// What drawing all blocks costs, as shapeCost; 0 while the layer is invisible.
    std::int64_t cost() const;
    /// The geometry of a map's block.
    const ShapePieces& pieces(CvlInt64 map) const;
    /// The first of its pieces, which is all of it unless it is large; null without one.
    vtkPolyData* geometry(CvlInt64 map) const;
    /// Draws nothing any more; the shapes are let go by another.
    void giveUp(SlowRelease& release);
    /// How the block of a map looks that has one.
    const BlockLook& look(CvlInt64 map) const { return m_blocks.at(map).look; }
    /// Whether the block of a map is made from a surface.
    bool uses(CvlInt64 map, const SurfaceChoice& surface) const;
    const Counters& counters() const { return m_counters; }
    /// One actor per mapper, in the order in which they are to be drawn.
    std::vector<vtkActor*> actors() const;
    /// What drawing each of them costs, as shapeCost.
    std::vector<std::int64_t> actorSizes() const;

private:
    class Bucket;
    struct Share;
    struct Block
    {
        BlockLook look;
        ShapePieces pieces;
    };
    /// Maps that look alike, and are drawn in a row.
    using Part = std::vector<std::map<CvlInt64, Block>::const_iterator>;

    std::vector<Part> parts(bool byRun) const;
    static void addShares(Part::const_iterator begin, Part::const_iterator end, CvlInt64 first,
                          CvlInt64 count, std::vector<Share>& shares);
    std::vector<Share> shares() const;
    CvlInt64 mapCount() const;
    void arrange();
    vtkRenderer& rendererOf(const MapperLook& look) { return look.inFront ? m_front : m_back; }
    void updateVisibility();

    FieldLayer m_layer;
    bool m_flat;
    vtkRenderer& m_back;
    vtkRenderer& m_front;
    bool m_visible = true;
    bool m_hidden = false;
    std::map<CvlInt64, Block> m_blocks;
    std::vector<std::unique_ptr<Bucket>> m_buckets; ///< in the order in which they are drawn
    bool m_isArranged = true;
    Counters m_counters;
};

} // namespace corvala::plot
