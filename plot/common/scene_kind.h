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
    const style::Layer* style = nullptr;
    unsigned uses = 0; ///< bits of what else touches it; each kind of scene has its own
};

/// A value of the style, or any value of its group, that layers use besides their own.
struct SharedStyle
{
    style::Key value;
    bool withItsGroup = false;
    unsigned use = 0; ///< layers with one of these bits use it; all layers and the values for 0
};

/// Which layers a change of a style value touches.
struct TouchedLayers
{
    LayerMask layers = 0;
    bool isSwitch = false; ///< shows or hides them as a whole
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

    constexpr LayerMask valuesBit() const { return LayerMask {1} << layerCount; }
    constexpr LayerMask allLayers() const { return valuesBit() - 1; }
    constexpr LayerMask everything() const
    {
        return valueUse != 0 ? allLayers() | valuesBit() : allLayers();
    }
    TouchedLayers touchedBy(style::Key value) const;
};

/// The bit of a layer, given as its number or enumerator.
template<class Layer>
constexpr LayerMask maskOf(Layer layer)
{
    return LayerMask {1} << static_cast<unsigned>(layer);
}

} // namespace corvala::plot
