// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/background_task.h"
#include "plot/common/map_scene.h"
#include "plot/common/time_text.h"
#include "plot/field/scene/axes_style.h"
#include "plot/field/scene/composite_layer.h"
#include "plot/field/scene/pick_ray.h"
#include "plot/field/scene/scene_piece.h"
#include "plot/field/scene/slow_release.h"
#include "plot/field/scene/stand_in.h"
#include "plot/field/scene/surface_probe.h"
#include "plot/field/scene/volume_looks.h"

#include <vtkBoundingBox.h>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <unordered_map>

namespace corvala::plot {

/// Colours of a contour group that the scene shows.
struct FieldLegend
{
    QString title;
    std::optional<ContourLevels> levels; ///< nothing when no value is shown
    ColorScale colors = {};
    int group = 0; ///< of contours
    /// Upper left corner, from that of the picture, as shares of it; nothing: beside the plot.
    std::optional<std::array<double, 2>> place = {};
};

/// What the arrows of a scene stand for.
struct VectorKey
{
    QString title; ///< name of the vector
    double lengthOfOne = 0.0; ///< of magnitude 1, in the unit of the coordinates
    double wanted = 0.0; ///< magnitude of the arrow that explains them; 0 for a proposed one
    double headSize = 0.25; ///< share of the length
    double headAngle = 20.0; ///< in degrees
};

/// What a field canvas shows of a frame, in two renderers: everything, and in front of it what is
/// seen through it.
class FieldScene : public MapScene
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::FieldScene)

public:
    /// Maps that are drawn at most; each costs memory for its blocks.
    static constexpr CvlInt64 kLargestScene = 20'000;

    FieldScene(vtkRenderer& back, vtkRenderer& front, std::shared_ptr<SurfaceCache> cache,
               CvlInt64 largestScene = kLargestScene);
    ~FieldScene() override;

    bool advance(int milliseconds) override;
    void cancel() override;
    QString notice() const override;
    std::vector<SceneNote> notes() const override;

    /// Puts what is drawn in order and fits it to the view; call before drawing.
    void prepare(const ViewScale& scale);
    /// What drawing one of its props costs, as shapeCost, since it was put in order; 0 for
    /// others.
    std::int64_t drawingCost(vtkProp* prop) const;
    /// The same of everything that is visible.
    std::int64_t drawingCost() const;
    /// The same of everything that is translucent.
    std::int64_t translucentCost() const;
    /// The same of everything that is shown, before it is put in order.
    std::int64_t expectedCost() const;
    /// Draws a few points in place of everything, until this is taken back: for a scene that takes
    /// too long to be drawn while it is moved.
    void setStandIn(bool standsIn);
    bool isStandInShown() const { return m_standIn != nullptr; }
    /// Box round everything that is shown; invalid when nothing is.
    vtkBoundingBox bounds() const;
    /// Box round what is shown of some maps.
    vtkBoundingBox boundsOf(const host::NumberSet& maps) const;
    /// The same round each of them, up to so many; else one box.
    std::vector<vtkBoundingBox> boxesOf(const host::NumberSet& maps, std::size_t most) const;
    /// Whether the box of anything that is shown passes a test; the first one that does decides.
    bool hasBoxIn(const std::function<bool(const vtkBoundingBox&)>& test) const;
    /// The same with what reaches out of that.
    vtkBoundingBox drawnBounds() const;
    /// The zone that is seen along a ray, nearest first; 0 for none. A zone is hit anywhere on its
    /// surface, also where only lines are drawn of it, and a zone of which more than its edges are
    /// drawn before one that shows nothing else.
    CvlInt64 zoneAt(const PickRay& ray) { return hitOf(ray).zone; }
    /// Where `zoneAt` hits, a little behind the surface, so that it is within the zone.
    std::optional<std::array<double, 3>> placeAt(const PickRay& ray);
    /// The same with what is known of it, and of the variable of the first contour group there, in
    /// a moment: nothing while that is being made (isProbing).
    std::optional<SurfacePlace> probe(const PickRay& ray);
    bool isProbing() const { return m_probe.isPending(); }
    /// Whether faces may be translucent.
    bool isTranslucent() const;
    /// Where the light comes from, seen from the viewer: to the right, up and towards the viewer.
    std::array<double, 3> lightDirection() const;
    std::vector<FieldLegend> legends() const;
    /// Nothing when no arrows are shown, or none that tells their length is wanted.
    std::optional<VectorKey> vectorKey() const;
    AxesStyle axes() const;
    TimeText timeText() const;
    /// What the scene takes for a value of the style that follows from the data, such as a level of
    /// a contour group; nothing when that is not known.
    std::optional<double> proposal(style::Key value, int index) const;

    const CompositeLayer& layer(FieldLayer layer) const
    {
        return *m_layers[static_cast<std::size_t>(layer)];
    }
    const ContourGroups& groups() const { return m_groups; }

protected:
    void clear(const host::Frame* frame, Fresh reason) override;
    LayerMask showLayers(const host::Frame& frame) override;
    bool canShow(const host::Frame& frame, CvlInt64 map) const override;
    LayerMask sync(const host::Frame& frame, CvlInt64 map, LayerMask layers, bool isShown) override;
    void forget(CvlInt64 map) override;
    void valuesKnown(const host::Frame& frame) override;
    bool takeBack(const host::Frame& frame, int milliseconds) override;
    host::NumberSet transientMaps(const host::Frame& frame) const override;

private:
    /// A block that could not be made; it is not tried again.
    struct Failure
    {
        BlockRecipe recipe;
        QString text; ///< for the user
    };
    /// What another thread makes at present.
    struct Handed
    {
        CvlInt64 map = 0;
        std::size_t layer = kFieldLayerCount; ///< of a block
        BlockRecipe recipe;
        std::vector<GroupRanges::Unknown> values;
    };

    /// Notes why a block, or values, could not be made, and does without.
    void giveUp(const host::Frame& frame, const Handed& handed, const char* reason);
    bool isGivenUp(CvlInt64 map, std::size_t layer, const std::optional<BlockLook>& look);
    void syncLayer(const host::Frame& frame, CvlInt64 map, std::size_t layer,
                   const std::optional<BlockLook>& look);
    /// True when the values, or the block, of the map were given to another thread.
    bool handOverValues(const host::Frame& frame, const ShownMap& map);
    bool handOverBlock(const host::Frame& frame, CvlInt64 map, std::size_t layer,
                       const BlockRecipe& recipe);
    /// False when the values of the map were given to another thread.
    bool noteValues(const host::Frame& frame, CvlInt64 map);
    std::optional<BlockLook> lookIn(std::size_t layer, const ShownMap& shown);
    CompositeLayer::Builder builderOf(const host::Frame& frame, CvlInt64 map);
    bool isAllBlanked() const;
    /// Lets go of surfaces of which nothing is drawn any more.
    void dropSurfaces(CvlInt64 map);
    void orderActors(vtkRenderer& renderer) const;
    void weighActors();
    struct Hit
    {
        CvlInt64 zone = 0; ///< 0 for none
        double position = 0.0; ///< on the ray, from 0 to 1
    };
    Hit nearestHit(const PickRay& ray, LayerMask layers);
    Hit hitOf(const PickRay& ray);
    bool isSeen(CvlInt64 map, LayerMask layers) const;
    std::optional<SurfacePlace> probe(const PickRay& ray, LayerMask layers);

    std::shared_ptr<SurfaceCache> m_cache;
    vtkRenderer& m_back;
    vtkRenderer& m_front;
    bool m_flat = false;
    ContourGroups m_groups;
    SlowRelease m_release; ///< of what was drawn before
    std::array<std::unique_ptr<CompositeLayer>, kFieldLayerCount> m_layers;
    std::unordered_map<CvlInt64, std::vector<PlacedSurface>> m_surfaces;
    GroupRanges m_ranges;
    std::optional<std::vector<StreamMap>> m_streamMaps; ///< nothing until they are needed
    StreamStart m_streamStart; ///< of the streamtraces that were made last
    bool m_mayWait = false; ///< at present, for as long as it takes: nothing is handed over
    std::unique_ptr<BackgroundTask<ScenePiece>> m_task; ///< null while nothing is handed over
    Handed m_handed; ///< while there is a task
    std::map<std::pair<CvlInt64, std::size_t>, Failure> m_failures; ///< by map and layer
    ScenePiece m_piece; ///< the last that came back
    SurfaceProbe m_probe;
    std::unordered_map<vtkProp*, std::int64_t> m_costs;
    std::unique_ptr<StandIn> m_standIn; ///< null until it is needed, and after a change
};

} // namespace corvala::plot
