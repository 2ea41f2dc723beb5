// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "plot/common/scene.h"
#include "vocabulary/style.h"

#include <QCoreApplication>

#include <vector>

namespace corvala::plot {

/// One bit for each layer of a scene, and one for its values: what has to be known of all maps
/// before any of them is drawn.
using LayerMask = std::uint8_t;

/// What a change of a style value, or of any value of its group, touches.
struct AffectedLayers
{
    style::Key value;
    bool withItsGroup = false;
    LayerMask layers = 0;
    bool isSwitch = false; ///< shows or hides the layers as a whole
};

/// What tells scenes of different maps apart.
struct SceneKind
{
    std::size_t layerCount = 0;
    bool hasValues = false;
    bool (host::Frame::*isOfKind)() const = nullptr; ///< whether the scene can show a frame
    const host::NumberSet& (host::Frame::*activeMaps)() const = nullptr;
    StateCode_e mapListChange = StateCode_FieldMapListChanged;
    const AffectedLayers* affected = nullptr; ///< the first row that fits a value counts
    std::size_t affectedCount = 0;

    constexpr LayerMask valuesBit() const
    {
        return hasValues ? static_cast<LayerMask>(1U << layerCount) : LayerMask(0);
    }
    constexpr LayerMask allLayers() const { return static_cast<LayerMask>((1U << layerCount) - 1); }
    constexpr LayerMask everything() const
    {
        return static_cast<LayerMask>(allLayers() | valuesBit());
    }
    /// The row for a value; null when it is not drawn.
    const AffectedLayers* affectedBy(style::Key value) const;
};

/// A scene whose maps are brought up to date one by one, in the layers that a change names. Layers
/// that are off are left as they are until they are on again; maps beyond the largest scene, and
/// work that was cancelled, wait.
class MapScene : public virtual Scene
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::MapScene)

public:
    void setFrame(CvlUniqueId frame) override;
    bool apply(const host::StateEvent& event) override;
    bool advance(int milliseconds) override;
    bool hasWork() const override;
    std::pair<CvlInt64, CvlInt64> progress() const override { return {m_done, m_total}; }
    void cancel() override;
    void resume() override;
    QString notice() const override;

protected:
    /// Why a scene starts again.
    enum class Fresh {
        Frame, ///< another frame
        Data, ///< other data, or none
        Values, ///< the same zones with other values
        Maps ///< other maps, zones or plot type
    };

    MapScene(const SceneKind& kind, CvlInt64 largestScene);

    /// The frame, while it is of this kind and has data; else null.
    const host::Frame* frame() const;
    const host::NumberSet& shownMaps() const { return m_shown; }
    bool isLayerVisible(std::size_t layer) const { return m_isVisible[layer]; }
    /// Starts from scratch.
    void rebuild(Fresh reason);
    void pend(LayerMask layers, const host::NumberSet& maps);

    /// Empties the scene; `frame` may be null.
    virtual void clear(const host::Frame* frame, Fresh reason) = 0;
    virtual bool isLayerOn(const host::Frame& frame, std::size_t layer) const = 0;
    virtual void setLayerVisible(std::size_t layer, bool isVisible) = 0;
    /// Whether there is anything of an active map to show.
    virtual bool canShow(const host::Frame& frame, CvlInt64 map) const = 0;
    /// Brings a map up to date in some layers; one that is not shown is taken out of them. The
    /// layers that are done: the others are asked for again when other threads have given back.
    virtual LayerMask sync(const host::Frame& frame, CvlInt64 map, LayerMask layers,
                           bool isShown) = 0;
    virtual void forget(CvlInt64 map) = 0; ///< a map that is no longer shown

    /// Notes the values of a map that is shown.
    virtual void gather(const host::Frame&, CvlInt64 /*map*/) { }
    virtual void allGathered(const host::Frame&) { }
    virtual void frameStyleChanged(const host::Frame&) { }
    /// True when the values of a map were given to another thread; they are asked for again.
    virtual bool handOverValues(const host::Frame&, CvlInt64 /*map*/) { return false; }
    /// Waits at most so long for what other threads make, negative to the end; true when none
    /// works.
    virtual bool takeBack(const host::Frame&, int /*milliseconds*/) { return true; }
    /// Active maps that may look different at another solution time.
    virtual host::NumberSet transientMaps(const host::Frame&) const { return {}; }

private:
    bool applyStyle(const host::StateEvent& event);
    bool applyChange(const host::Frame& frame, const host::StyleChange& change);
    void updateVisibility(const host::Frame& frame);
    bool take(const host::Frame& frame, CvlInt64 map);
    void drop(CvlInt64 map);
    void workOnValues(const host::Frame& frame); ///< of the next map
    void workOnMap(const host::Frame& frame); ///< the next one, in all layers

    const host::NumberSet& activeMaps(const host::Frame& frame) const
    {
        return (frame.*m_kind.activeMaps)();
    }

    const SceneKind& m_kind;
    CvlInt64 m_largestScene;
    CvlUniqueId m_frame = 0;
    std::vector<bool> m_isVisible; ///< by layer
    // By layer, the values last.
    std::vector<host::NumberSet> m_pending;
    std::vector<host::NumberSet> m_stale; ///< not brought up to date while invisible
    std::vector<host::NumberSet> m_cancelled;
    host::NumberSet m_shown;
    host::NumberSet m_refused; ///< active, but beyond the largest scene
    CvlInt64 m_done = 0;
    CvlInt64 m_total = 0;
};

} // namespace corvala::plot
