// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/events/state_event.h"
#include "plot/common/scene_kind.h"
#include "plot/common/scene_note.h"
#include "plot/common/work_watch.h"

#include <QCoreApplication>

#include <optional>
#include <utility>
#include <vector>

namespace corvala::plot {

/// What a canvas shows of a frame: maps that are brought up to date one by one, in the layers that
/// a change names. Changes are taken note of at once, and worked off in slices. Layers that are off
/// are left as they are until they are on again; maps beyond the largest scene, and work that was
/// cancelled, wait.
class MapScene
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::MapScene)

public:
    virtual ~MapScene() = default;

    CvlUniqueId frameId() const { return m_frame; }
    /// Shows this frame from now on, from scratch; 0, or the ID of no frame that it can show, shows
    /// nothing.
    void setFrame(CvlUniqueId frame);
    /// Takes note of a change of the document; true when the picture may differ.
    bool apply(const host::StateEvent& event);

    /// Works for about `milliseconds`; negative works until all is done. True while work is left.
    virtual bool advance(int milliseconds);
    /// Works until all is done; false when the watch ended it before.
    bool finish(const WorkWatch& watch);
    virtual bool hasWork() const;
    /// Pieces of work since there was none, done and in all.
    virtual std::pair<CvlInt64, CvlInt64> progress() const;
    /// Puts the work that is left aside; what it would have changed stays as it is.
    virtual void cancel();
    /// Takes up again what was put aside.
    virtual void resume();
    /// A remark for the user on what is not shown; empty without one.
    virtual QString notice() const;
    /// What the user may wonder at in the complete picture, the gravest first; none while it is not
    /// complete.
    virtual std::vector<SceneNote> notes() const { return {}; }

protected:
    /// Why a scene starts again; each includes those before.
    enum class Fresh {
        Maps, ///< other maps, zones or plot type
        Frame, ///< another frame
        Data ///< other data, or none
    };

    MapScene(const SceneKind& kind, CvlInt64 largestScene);

    /// The frame, while it is of this kind and has data; else null.
    const host::Frame* frame() const;
    const host::NumberSet& shownMaps() const { return m_shown; }
    /// Asks for maps to be brought up to date in some layers.
    void pend(LayerMask layers, const host::NumberSet& maps);

    /// Empties the scene; `frame` may be null.
    virtual void clear(const host::Frame* frame, Fresh reason) = 0;
    /// Takes over what the style says of the frame as a whole, and shows the layers that are on;
    /// returns these.
    virtual LayerMask showLayers(const host::Frame& frame) = 0;
    /// Whether there is anything of an active map to show.
    virtual bool canShow(const host::Frame& frame, CvlInt64 map) const = 0;
    /// Brings a map up to date in some layers, or takes note of its values; one that is not shown
    /// is taken out of them. The layers that are done: the others are asked for again when other
    /// threads have given back.
    virtual LayerMask sync(const host::Frame& frame, CvlInt64 map, LayerMask layers,
                           bool isShown) = 0;
    virtual void forget(CvlInt64 map) = 0; ///< a map that is no longer shown
    /// The values of all maps have been noted.
    virtual void valuesKnown(const host::Frame&) { }
    /// Waits at most so long for what other threads make, negative to the end; true when none
    /// works.
    virtual bool takeBack(const host::Frame&, int /*milliseconds*/) { return true; }
    /// Active maps that may look different at another solution time.
    virtual host::NumberSet transientMaps(const host::Frame&) const { return {}; }

private:
    void rebuild(Fresh reason);
    void pendAtOtherTime(const host::Frame& drawn);
    bool applyStyle(const host::StateEvent& event);
    bool applyChange(const host::Frame& frame, const host::StyleChange& change);
    void takeFrameStyle(const host::Frame& frame);
    bool take(const host::Frame& frame, CvlInt64 map);
    void drop(CvlInt64 map);
    void work(const host::Frame& frame);
    bool isPending(LayerMask layers) const;
    LayerMask pendingLayers(CvlInt64 map, LayerMask layers) const;
    CvlInt64 nextMap(LayerMask layers) const;

    const host::NumberSet& activeMaps(const host::Frame& frame) const
    {
        return (frame.*m_kind.activeMaps)();
    }

    const SceneKind& m_kind;
    CvlInt64 m_largestScene;
    CvlUniqueId m_frame = 0;
    LayerMask m_visible = 0; ///< layers, and the values
    // By layer, the values last.
    std::vector<host::NumberSet> m_pending; ///< for layers that are invisible, until they are not
    std::vector<host::NumberSet> m_cancelled;
    host::NumberSet m_shown;
    host::NumberSet m_refused; ///< active, but beyond the largest scene
    CvlInt64 m_done = 0;
};

} // namespace corvala::plot
