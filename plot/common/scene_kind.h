// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "vocabulary/layers.h"

namespace corvala::plot {

/// One bit for each layer of a scene, and one for its values: what has to be known of all maps
/// before any of them is drawn.
using LayerMask = std::uint32_t;

/// A layer of a scene, as far as changes of the style go. The switches of the layer, and the values
/// of a map that stand beside its switch there, touch it.
struct SceneLayer
{
    constexpr SceneLayer(const style::Layer* layer, unsigned itUses)
        : name(layer->name)
        , shown(layer->shown)
        , shownForMap(layer->shownForMap)
        , uses(itUses)
    {
    }
    /// A layer of what the frame describes: the values beside the frame's switch touch it, too.
    constexpr SceneLayer(const char* itsName, style::SwitchKey ofFrame, int itsIndex,
                         style::SwitchKey ofMap, unsigned itUses)
        : name(itsName)
        , shown(ofFrame)
        , index(itsIndex)
        , shownForMap(ofMap)
        , isOfFrame(true)
        , uses(itUses)
    {
    }

    const char* name; ///< English, in the translation context "StyleValues"
    style::SwitchKey shown; ///< of the frame
    int index = -1; ///< of the frame's switch, from 1, when there are several
    style::SwitchKey shownForMap;
    bool isOfFrame = false;
    unsigned uses = 0; ///< bits of what else touches it; each kind of scene has its own
};

/// A value of the style, or any value of its group, that layers use besides their own.
struct SharedStyle
{
    style::Key value;
    bool withItsGroup = false;
    /// Layers with one of these bits use it; all layers and the values for 0. What no layer uses
    /// is seen beside them.
    unsigned use = 0;
};

/// Which layers a change of a style value touches.
struct TouchedLayers
{
    LayerMask layers = 0;
    LayerMask switched = 0; ///< are only shown or hidden as a whole
    bool isBeside = false; ///< changes the picture beside them
};

/// What tells scenes of different maps apart.
struct SceneKind
{
    bool (host::Frame::*isOfKind)() const; ///< whether the scene can show a frame
    const host::NumberSet& (host::Frame::*activeMaps)() const;
    StateCode_e mapListChange;
    std::size_t layerCount;
    const SceneLayer& (*layer)(std::size_t number); ///< from back to front
    const SharedStyle* shared;
    std::size_t sharedCount;
    unsigned valueUse; ///< layers that use this show values; 0 when none does
    unsigned jointUse = 0; ///< layers that use this show something of all maps together
    bool namesMaps = false; ///< shows the names of maps

    constexpr LayerMask valuesBit() const { return LayerMask {1} << layerCount; }
    constexpr LayerMask allLayers() const { return valuesBit() - 1; }
    constexpr LayerMask everything() const
    {
        return valueUse != 0 ? allLayers() | valuesBit() : allLayers();
    }
    TouchedLayers touchedBy(style::Key value) const;
    LayerMask jointLayers() const;
};

/// The bit of a layer, given as its number or enumerator.
template<class Layer>
constexpr LayerMask maskOf(Layer layer)
{
    return LayerMask {1} << static_cast<unsigned>(layer);
}

} // namespace corvala::plot
