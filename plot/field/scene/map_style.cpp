// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/map_style.h"

#include "host/style/schema.h"
#include "plot/field/scene/proposals.h"

namespace corvala::plot {

static constexpr const auto& kMap = style::fieldMap;
static constexpr const style::IndexRange* kPlanes[] = {
    &kMap.surfaces.ranges.iRange, &kMap.surfaces.ranges.jRange, &kMap.surfaces.ranges.kRange};

std::int32_t MapStyle::frameNumber(style::Key key, int index) const
{
    return m_shown.frame.integer(key, index);
}

double MapStyle::frameReal(style::RealKey key, int index) const
{
    return m_shown.frame.real(key, index);
}

std::string MapStyle::frameText(style::TextKey key) const
{
    return m_shown.frame.text(key);
}

std::optional<double> MapStyle::inForce(style::SwitchKey follows, style::RealKey key,
                                        const ContourGroups& groups, int index) const
{
    return frameFlag(follows, index) ? proposedValue(m_shown.frame, groups, key, index)
                                     : std::optional(frameReal(key, index));
}

/// The constraints that are in force for the map. Its switch counts while one of those but the last
/// is included, as its cell in the tables shows.
BlankingChoice MapStyle::blanking() const
{
    constexpr const auto& value = style::blanking.value;
    constexpr const auto& constraint = value.constraint;
    BlankingChoice choice;
    if (!frameFlag(value.include))
        return choice;
    const host::DataSet& data = *m_shown.frame.data();
    bool hasSwitch = false;
    for (int i = 1; i <= constraint.kCount; ++i) {
        if (!frameFlag(constraint.include, i))
            continue;
        hasSwitch = hasSwitch || i < constraint.kCount;
        const bool comparesVariable =
            frameNumber(constraint.comparedWith, i) == ComparedWith_Variable;
        const BlankingTest test {frameNumber(constraint.var, i),
                                 static_cast<Relation_e>(frameNumber(constraint.relation, i)),
                                 comparesVariable ? frameNumber(constraint.comparedVar, i) : 0,
                                 comparesVariable ? 0.0 : frameReal(constraint.constant, i)};
        if (data.hasVariable(test.variable)
            && (!comparesVariable || data.hasVariable(test.comparedVariable)))
            choice.tests.push_back(test);
    }
    if (choice.tests.empty() || (hasSwitch && !flag(kMap.effects.useValueBlanking)))
        return {};
    choice.cells = static_cast<BlankedCells_e>(frameNumber(value.blankedCells));
    return choice;
}

BlockRecipe MapStyle::recipe(BlockKind kind) const
{
    BlockRecipe recipe;
    recipe.kind = kind;
    recipe.zone = m_shown.zone;
    SurfaceChoice choice;
    choice.surfaces = static_cast<SurfacesToPlot_e>(number(kMap.surfaces.surfacesToPlot));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        choice.planes[axis] = {number(kPlanes[axis]->min), number(kPlanes[axis]->max),
                               number(kPlanes[axis]->skip)};
    }
    choice.blanking = blanking();
    recipe.surfaces = choice.normalized(m_shown.frame.data()->zone(m_shown.zone));
    return recipe;
}

BlockRecipe MapStyle::pointRecipe(BlockKind kind) const
{
    const auto& points = kMap.points;
    BlockRecipe result = recipe(kind);
    result.points.points = static_cast<PointsToPlot_e>(number(points.pointsToPlot));
    result.points.skip = {
        {number(points.ijkSkip.i), number(points.ijkSkip.j), number(points.ijkSkip.k)}};
    result.points = result.points.normalized(m_shown.frame.data()->zone(m_shown.zone));
    if (!result.points.isOfSurface()) {
        SurfaceChoice any;
        any.blanking = result.surfaces.blanking;
        result.surfaces = any;
    }
    return result;
}

ArrowChoice MapStyle::arrows(const ContourGroups& groups) const
{
    ArrowChoice arrows;
    for (int axis = 0; axis < (m_shown.is3D() ? 3 : 2); ++axis)
        arrows.variables[static_cast<std::size_t>(axis)] =
            groups.variable(ContourGroups::kVector + axis);
    arrows.isUniform = frameFlag(style::globalVector.isUniform);
    arrows.scale = arrowScale(m_shown.frame, groups);
    arrows.headSize = frameReal(style::globalVector.headSize) / 100.0;
    arrows.headAngle = frameReal(style::globalVector.headAngle);
    arrows.type = static_cast<VectorType_e>(number(kMap.vector.vectorType));
    arrows.head = static_cast<ArrowheadStyle_e>(number(kMap.vector.arrowheadStyle));
    arrows.isTangent = flag(kMap.vector.isTangent);
    return arrows;
}

void MapStyle::setLine(BlockLook& look, host::AttributeId thickness, host::AttributeId pattern,
                       host::AttributeId length) const
{
    look.mapper.thickness = real(thickness);
    look.mapper.pattern = number(pattern);
    if (look.mapper.pattern != LinePattern_Solid) {
        look.mapper.patternLength = real(length);
        look.recipe.arcLength = true;
    }
}

/// The group that a colour follows, or the first of those for RGB; 0 for none. Adds to the revision
/// what the colours depend on.
static int colorGroupOf(std::int32_t color, const ContourGroups& groups, int& revision)
{
    const int group = style::contourGroupOf(color);
    if (color == style::kRgbColor && groups.hasRgb()) {
        for (int channel = ContourGroups::kRed; channel <= ContourGroups::kBlue; ++channel)
            revision += groups.revision(channel);
        return ContourGroups::kRed;
    }
    if (group <= 0 || groups.variable(group) == 0)
        return 0;
    revision += groups.colorRevision(group);
    return group;
}

void MapStyle::setLineColor(BlockLook& look, std::int32_t color, const ContourGroups& groups) const
{
    look.color = paletteColor(color);
    look.recipe.colorGroup = colorGroupOf(color, groups, look.recipe.revision);
    look.mapper.ownColors = look.recipe.colorGroup != 0;
}

bool MapStyle::setFlood(BlockLook& look, int coloring, const ContourGroups& groups) const
{
    if (coloring == ContourColoring_RGB) {
        setLineColor(look, style::kRgbColor, groups);
        return groups.hasRgb();
    }
    look.mapper.floodGroup = coloring;
    look.recipe.group = coloring;
    // Levels may move without new geometry; another variable may not.
    look.recipe.revision = static_cast<int>(groups.variable(coloring));
    return groups.variable(coloring) > 0;
}

bool MapStyle::showsHiddenLines() const
{
    return m_shown.frame.isOn(style::fieldLayers.showMesh) && flag(kMap.mesh.show)
        && number(kMap.mesh.meshType) == MeshType_HiddenLine;
}

bool MapStyle::showsShade() const
{
    return m_shown.frame.isOn(style::fieldLayers.showShade) && flag(kMap.shade.show);
}

bool MapStyle::showsFlood(const ContourGroups& groups) const
{
    const int coloring = number(kMap.contour.floodColoring);
    return m_shown.frame.isOn(style::fieldLayers.showContour) && flag(kMap.contour.show)
        && number(kMap.contour.contourType) != ContourType_Lines
        && (coloring == ContourColoring_RGB ? groups.hasRgb() : groups.variable(coloring) > 0);
}

int MapStyle::translucency() const
{
    const bool isOn = m_shown.is3D() && m_shown.frame.isOn(style::fieldLayers.useTranslucency)
        && flag(kMap.effects.useTranslucency);
    return isOn ? number(kMap.effects.surfaceTranslucency) : 0;
}

SymbolSizes MapStyle::symbolSizes(const ContourGroups& groups) const
{
    constexpr const auto& scatter = style::globalScatter;
    SymbolSizes sizes;
    sizes.areOwn = flag(kMap.scatter.sizeByVariable) && groups.variable(ContourGroups::kSize) > 0;
    if (!sizes.areOwn)
        return sizes;
    sizes.lowest = inForce(scatter.automaticRange, scatter.rangeMin, groups).value_or(0.0);
    sizes.highest = inForce(scatter.automaticRange, scatter.rangeMax, groups).value_or(0.0);
    sizes.smallest = frameReal(scatter.smallestSize);
    sizes.largest = frameReal(scatter.largestSize);
    return sizes;
}

void MapStyle::setFill(BlockLook& look, const ContourGroups& groups) const
{
    constexpr std::uint32_t kPaper = 0xFFFFFF;
    SymbolLook& symbol = look.mapper.symbol;
    const int mode = number(kMap.scatter.fillMode);
    if (mode == FillMode_None)
        return;
    symbol.fill = mode == FillMode_LineColor ? SymbolFill::Line : SymbolFill::Color;
    symbol.fillColor = mode == FillMode_BackgroundColor ? kPaper : 0;
    if (mode != FillMode_SpecificColor)
        return;
    const std::int32_t color = number(kMap.scatter.fillColor);
    const host::Rgb palette = paletteColor(color);
    look.recipe.fillGroup = colorGroupOf(color, groups, look.recipe.revision);
    if (look.recipe.fillGroup != 0)
        symbol.fill = SymbolFill::Points;
    else
        symbol.fillColor = palette.red * 65536U + palette.green * 256U + palette.blue;
}

/// What stands for a body in a flat plot.
static int flatShape(int shape)
{
    switch (shape) {
    case GeomShape_Cube: return GeomShape_Square;
    case GeomShape_Sphere: return GeomShape_Circle;
    case GeomShape_Octahedron: return GeomShape_Diamond;
    default: return shape;
    }
}

void MapStyle::setSymbol(BlockLook& look, const ContourGroups& groups) const
{
    const auto& shape = kMap.scatter.symbolShape;
    SymbolLook& symbol = look.mapper.symbol;
    const bool isCharacter = flag(shape.isAscii);
    symbol.shape = isCharacter ? int(GeomShape_Character) : number(shape.geomShape);
    symbol.isSolid =
        m_shown.is3D() && symbol.shape >= GeomShape_Cube && symbol.shape <= GeomShape_Octahedron;
    if (!symbol.isSolid)
        symbol.shape = flatShape(symbol.shape);
    if (symbol.shape == GeomShape_Point) {
        symbol.fill = SymbolFill::Line;
        return;
    }
    look.recipe.sizes = symbolSizes(groups);
    symbol.hasOwnSizes = look.recipe.sizes.areOwn;
    symbol.size = symbol.hasOwnSizes ? 0.0 : real(kMap.scatter.frameSize);
    if (symbol.isSolid)
        return;
    look.mapper.thickness = real(kMap.scatter.lineThickness);
    setFill(look, groups);
    if (isCharacter) {
        symbol.character = m_shown.frame.fieldStyle().text(
            host::Schema::instance().at(shape.asciiShape.asciiChar), m_shown.map);
        symbol.font = flag(shape.asciiShape.useBaseFont) ? int(FontOverride_None)
                                                         : number(shape.asciiShape.fontOverride);
    }
}

/// A map that uses lighting is lit by a plain light; the lighting layer adds highlights and the
/// map's lighting effect.
void MapStyle::setLight(BlockLook& look, host::AttributeId light) const
{
    look.mapper.lit = m_shown.is3D() && flag(light);
    look.mapper.shiny = look.mapper.lit && m_shown.frame.isOn(style::fieldLayers.useLightingEffect);
    look.mapper.smooth =
        look.mapper.shiny && number(kMap.effects.lightingEffect) == LightingEffect_Gouraud;
    look.recipe.normals = look.mapper.smooth;
}

host::Rgb paletteColor(std::int32_t color)
{
    return style::isPaletteColor(color) ? host::Document::instance().color(color)
                                        : host::Rgb {0, 0, 0};
}

} // namespace corvala::plot
