// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/background_task.h"
#include "plot/field/geometry/block_builder.h"
#include "plot/field/scene/field_scene.h"
#include "plot/field/scene/group_ranges.h"
#include "plot/field/scene/stand_in.h"

#include <QCoreApplication>

#include <memory>
#include <unordered_map>

namespace corvala::plot {

/// A scene whose geometry is made in this process, in two renderers: everything, and in front of it
/// what is seen through it.
class LocalFieldScene : public FieldScene
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::LocalFieldScene)

public:
    /// Maps that are drawn at most; each costs memory for its blocks.
    static constexpr CvlInt64 kLargestScene = 20'000;

    LocalFieldScene(vtkRenderer& back, vtkRenderer& front, std::shared_ptr<SurfaceCache> cache,
                    CvlInt64 largestScene = kLargestScene);
    ~LocalFieldScene() override;

    void setFrame(CvlUniqueId frame) override;
    bool apply(const host::StateEvent& event) override;
    bool advance(int milliseconds) override;
    bool hasWork() const override;
    std::pair<CvlInt64, CvlInt64> progress() const override { return {m_done, m_total}; }
    void cancel() override;
    void resume() override;
    void setScale(const ViewScale& scale) override;
    void setStandIn(bool standsIn) override;
    vtkBoundingBox bounds() const override;
    CvlInt64 zoneAt(const PickRay& ray) override;
    std::vector<FieldLegend> legends() const override;
    std::array<QString, 3> axisTitles() const override;
    QString notice() const override;

    const CompositeLayer& layer(FieldLayer layer) const
    {
        return *m_layers[static_cast<std::size_t>(layer)];
    }
    const ContourGroups& groups() const { return m_groups; }

private:
    /// Position of the group values among what is pending, after the layers.
    static constexpr std::size_t kGroupStage = kFieldLayerCount;
    const host::Frame* frame() const;
    void rebuild();
    bool applyStyle(const host::StateEvent& event);
    bool applyStyleChange(const host::Frame& frame, const host::StyleChange& change);
    void pend(LayerMask layers, const host::NumberSet& maps);
    void pendTransient(const host::Frame& frame);
    void updateVisibility(const host::Frame& frame);

    /// The map as it is to be drawn; nothing when it is not.
    std::optional<ShownMap> shown(const host::Frame& frame, CvlInt64 map);
    void forget(CvlInt64 map);
    /// What another thread makes of a large zone: ranges of values, or the geometry of one block.
    struct Piece
    {
        std::vector<std::pair<GroupRanges::Unknown, GroupRanges::Range>> ranges;
        CvlInt64 map = 0;
        std::optional<BlockRecipe> recipe;
        vtkSmartPointer<vtkPolyData> block;
        std::vector<PlacedSurface> surfaces; ///< of the block's map
    };

    void workOnValues(const host::Frame& frame); ///< of the next map
    void workOnMap(const host::Frame& frame); ///< the next one, in all layers
    /// True when the values of the map were given to another thread.
    bool handOverValues(const host::Frame& frame, const ShownMap& map);
    /// True when the block of the map was given to another thread.
    bool handOverBlock(const host::Frame& frame, CvlInt64 map, const BlockRecipe& recipe);
    /// Whether the last piece that came back is this block.
    bool hasPiece(CvlInt64 map, const BlockRecipe& recipe) const
    {
        return m_piece.map == map && m_piece.recipe && *m_piece.recipe == recipe;
    }
    bool takePiece(const host::Frame& frame, int milliseconds);

    void orderActors(vtkRenderer& renderer) const;

    CvlInt64 nearestZone(const PickRay& ray, const std::vector<FieldLayer>& layers);

    std::shared_ptr<SurfaceCache> m_cache;
    CvlInt64 m_largestScene;
    vtkRenderer& m_back;
    vtkRenderer& m_front;
    ViewScale m_scale;
    CvlUniqueId m_frame = 0;
    bool m_flat = false;
    ContourGroups m_groups;
    std::array<std::unique_ptr<CompositeLayer>, kFieldLayerCount> m_layers;
    std::unordered_map<CvlInt64, std::vector<PlacedSurface>> m_surfaces;
    GroupRanges m_ranges;
    bool m_mayWait = false; ///< at present, for as long as it takes: nothing is handed over
    std::unique_ptr<BackgroundTask<Piece>> m_task; ///< null while nothing is handed over
    Piece m_piece; ///< the last that came back
    std::unique_ptr<StandIn> m_standIn; ///< null until it is needed, and after a change
    std::array<host::NumberSet, kFieldLayerCount + 1> m_pending;
    std::array<host::NumberSet, kFieldLayerCount>
        m_stale; ///< not brought up to date while invisible
    std::array<host::NumberSet, kFieldLayerCount + 1> m_cancelled;
    host::NumberSet m_shown;
    host::NumberSet m_refused; ///< active, but beyond the largest scene
    CvlInt64 m_done = 0;
    CvlInt64 m_total = 0;
};

} // namespace corvala::plot
