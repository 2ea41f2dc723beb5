// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/layer_looks.h"

namespace corvala::plot {

/// The colour of a number of the style tree; black for one that follows a contour group or RGB.
host::Rgb paletteColor(std::int32_t color);

/// Reads the style of one map, and puts together what looks have in common.
class MapStyle
{
public:
    explicit MapStyle(const ShownMap& shown)
        : m_shown(shown)
    {
    }

    std::int32_t number(host::AttributeId id) const
    {
        return m_shown.frame.fieldInteger(id, m_shown.map);
    }
    bool flag(host::AttributeId id) const { return number(id) != 0; }
    double real(host::AttributeId id) const { return m_shown.frame.fieldReal(id, m_shown.map); }
    // Values of the frame; `index` is from 1 for those that have one.
    std::int32_t frameNumber(style::Key key, int index = -1) const;
    bool frameFlag(style::Key key, int index = -1) const { return frameNumber(key, index) != 0; }
    double frameReal(style::RealKey key, int index = -1) const;
    std::string frameText(style::TextKey key) const;
    /// A number of the frame, or what is proposed for it while it follows from the data.
    std::optional<double> inForce(style::SwitchKey follows, style::RealKey key,
                                  const ContourGroups& groups, int index = -1) const;
    const ShownMap& shown() const { return m_shown; }
    BlankingChoice blanking() const;

    BlockRecipe recipe(BlockKind kind) const;
    /// Of what stands on points of the zone.
    BlockRecipe pointRecipe(BlockKind kind) const;
    ArrowChoice arrows(const ContourGroups& groups) const;
    void setLine(BlockLook& look, host::AttributeId thickness, host::AttributeId pattern,
                 host::AttributeId length) const;
    void setLineColor(BlockLook& look, std::int32_t color, const ContourGroups& groups) const;
    void setSymbol(BlockLook& look, const ContourGroups& groups) const;
    /// Colours faces by a ContourColoring_e; false when that has no variable.
    bool setFlood(BlockLook& look, int coloring, const ContourGroups& groups) const;
    // Whether the map shows a surface in a layer that is on: the faces of hidden lines, shades, and
    // a flood with a variable.
    bool showsHiddenLines() const;
    bool showsShade() const;
    bool showsFlood(const ContourGroups& groups) const;
    /// Of the map's faces, in percent; 0 while they are opaque.
    int translucency() const;
    void setLight(BlockLook& look, host::AttributeId light) const;

private:
    SymbolSizes symbolSizes(const ContourGroups& groups) const;
    void setFill(BlockLook& look, const ContourGroups& groups) const;

    const ShownMap& m_shown;
};

} // namespace corvala::plot
