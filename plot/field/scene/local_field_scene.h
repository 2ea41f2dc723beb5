// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/background_task.h"
#include "plot/common/map_scene.h"
#include "plot/field/geometry/block_builder.h"
#include "plot/field/scene/field_scene.h"
#include "plot/field/scene/group_ranges.h"
#include "plot/field/scene/stand_in.h"

#include <memory>
#include <unordered_map>

namespace corvala::plot {

/// A scene whose geometry is made in this process, in two renderers: everything, and in front of it
/// what is seen through it.
class LocalFieldScene : public FieldScene, public MapScene
{
public:
    /// Maps that are drawn at most; each costs memory for its blocks.
    static constexpr CvlInt64 kLargestScene = 20'000;

    LocalFieldScene(vtkRenderer& back, vtkRenderer& front, std::shared_ptr<SurfaceCache> cache,
                    CvlInt64 largestScene = kLargestScene);
    ~LocalFieldScene() override;

    bool advance(int milliseconds) override;
    void cancel() override;
    void setScale(const ViewScale& scale) override;
    void setStandIn(bool standsIn) override;
    vtkBoundingBox bounds() const override;
    CvlInt64 zoneAt(const PickRay& ray) override;
    std::vector<FieldLegend> legends() const override;
    std::array<QString, 3> axisTitles() const override;

    const CompositeLayer& layer(FieldLayer layer) const
    {
        return *m_layers[static_cast<std::size_t>(layer)];
    }
    const ContourGroups& groups() const { return m_groups; }

protected:
    void clear(const host::Frame* frame, Fresh reason) override;
    bool isLayerOn(const host::Frame& frame, std::size_t layer) const override;
    void setLayerVisible(std::size_t layer, bool isVisible) override;
    bool canShow(const host::Frame& frame, CvlInt64 map) const override;
    LayerMask sync(const host::Frame& frame, CvlInt64 map, LayerMask layers, bool isShown) override;
    void forget(CvlInt64 map) override;
    void gather(const host::Frame& frame, CvlInt64 map) override;
    void allGathered(const host::Frame& frame) override;
    void frameStyleChanged(const host::Frame& frame) override;
    host::NumberSet transientMaps(const host::Frame& frame) const override;
    bool handOverValues(const host::Frame& frame, CvlInt64 map) override;
    bool takeBack(const host::Frame& frame, int milliseconds) override;

private:
    /// What another thread makes of a large zone: ranges of values, or the geometry of one block.
    struct Piece
    {
        std::vector<std::pair<GroupRanges::Unknown, GroupRanges::Range>> ranges;
        CvlInt64 map = 0;
        std::optional<BlockRecipe> recipe;
        vtkSmartPointer<vtkPolyData> block;
        std::vector<PlacedSurface> surfaces; ///< of the block's map
    };

    /// True when the block of the map was given to another thread.
    bool handOverBlock(const host::Frame& frame, CvlInt64 map, const BlockRecipe& recipe);
    /// Whether the last piece that came back is this block.
    bool hasPiece(CvlInt64 map, const BlockRecipe& recipe) const
    {
        return m_piece.map == map && m_piece.recipe && *m_piece.recipe == recipe;
    }

    void orderActors(vtkRenderer& renderer) const;

    CvlInt64 nearestZone(const PickRay& ray, const std::vector<FieldLayer>& layers);

    std::shared_ptr<SurfaceCache> m_cache;
    vtkRenderer& m_back;
    vtkRenderer& m_front;
    ViewScale m_scale;
    bool m_flat = false;
    ContourGroups m_groups;
    std::array<std::unique_ptr<CompositeLayer>, kFieldLayerCount> m_layers;
    std::unordered_map<CvlInt64, std::vector<PlacedSurface>> m_surfaces;
    GroupRanges m_ranges;
    bool m_mayWait = false; ///< at present, for as long as it takes: nothing is handed over
    std::unique_ptr<BackgroundTask<Piece>> m_task; ///< null while nothing is handed over
    Piece m_piece; ///< the last that came back
    std::unique_ptr<StandIn> m_standIn; ///< null until it is needed, and after a change
};

} // namespace corvala::plot
