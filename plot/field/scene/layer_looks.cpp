// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/layer_looks.h"

#include <algorithm>

namespace corvala::plot {

static constexpr int kFirstGroupColor = 101;
static constexpr int kRgbColor = 109;

/// Attributes that field layers are drawn from, looked up once.
struct FieldAttributes
{
    explicit FieldAttributes(const host::Schema& schema);
    static const FieldAttributes& instance();

    host::AttributeId meshShow, meshType, meshColor, meshPattern, meshLength, meshThickness;
    host::AttributeId contourShow, contourType, flood, linesBy, contourColor, contourPattern;
    host::AttributeId contourLength, contourThickness, contourLight;
    host::AttributeId shadeShow, shadeColor, shadeLight;
    host::AttributeId edgeShow, edgeType, edgeColor, edgeThickness;
    std::array<host::AttributeId, 3> borders;
    host::AttributeId surfaces, lightingEffect;
    std::array<std::array<host::AttributeId, 3>, 3> planes; ///< by axis: minimum, maximum, skip
};

FieldAttributes::FieldAttributes(const host::Schema& schema)
{
    const auto find = [&schema](const char* group, const char* name) {
        return schema.find({"FieldMap", group, name});
    };
    meshShow = find("Mesh", "Show");
    meshType = find("Mesh", "MeshType");
    meshColor = find("Mesh", "Color");
    meshPattern = find("Mesh", "LinePattern");
    meshLength = find("Mesh", "PatternLength");
    meshThickness = find("Mesh", "LineThickness");
    contourShow = find("Contour", "Show");
    contourType = find("Contour", "ContourType");
    flood = find("Contour", "FloodColoring");
    linesBy = find("Contour", "LineContourGroup");
    contourColor = find("Contour", "Color");
    contourPattern = find("Contour", "LinePattern");
    contourLength = find("Contour", "PatternLength");
    contourThickness = find("Contour", "LineThickness");
    contourLight = find("Contour", "UseLightingEffect");
    shadeShow = find("Shade", "Show");
    shadeColor = find("Shade", "Color");
    shadeLight = find("Shade", "UseLightingEffect");
    edgeShow = find("EdgeLayer", "Show");
    edgeType = find("EdgeLayer", "EdgeType");
    edgeColor = find("EdgeLayer", "Color");
    edgeThickness = find("EdgeLayer", "LineThickness");
    borders = {find("EdgeLayer", "IBorder"), find("EdgeLayer", "JBorder"),
               find("EdgeLayer", "KBorder")};
    surfaces = find("Surfaces", "SurfacesToPlot");
    lightingEffect = find("Effects", "LightingEffect");
    const char* const ranges[] = {"IRange", "JRange", "KRange"};
    const char* const parts[] = {"Min", "Max", "Skip"};
    for (std::size_t axis = 0; axis < 3; ++axis)
        for (std::size_t part = 0; part < 3; ++part)
            planes[axis][part] = schema.find({"FieldMap", "Surfaces", ranges[axis], parts[part]});
}

const FieldAttributes& FieldAttributes::instance()
{
    static const FieldAttributes attributes(host::Schema::instance());
    return attributes;
}

/// Reads the style of one map.
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

    BlockRecipe recipe(BlockKind kind) const;
    void setLine(BlockLook& look, host::AttributeId thickness, host::AttributeId pattern,
                 host::AttributeId length) const;
    void setLineColor(BlockLook& look, std::int32_t color, const ContourGroups& groups) const;
    void setLight(BlockLook& look, host::AttributeId light) const;

private:
    const ShownMap& m_shown;
};

BlockRecipe MapStyle::recipe(BlockKind kind) const
{
    const FieldAttributes& ids = FieldAttributes::instance();
    BlockRecipe recipe;
    recipe.kind = kind;
    recipe.zone = m_shown.zone;
    SurfaceChoice choice;
    choice.surfaces = static_cast<SurfacesToPlot_e>(number(ids.surfaces));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        choice.planes[axis] = {number(ids.planes[axis][0]), number(ids.planes[axis][1]),
                               number(ids.planes[axis][2])};
    }
    recipe.surfaces = choice.normalized(m_shown.frame.data()->zone(m_shown.zone));
    return recipe;
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

void MapStyle::setLineColor(BlockLook& look, std::int32_t color, const ContourGroups& groups) const
{
    look.color = paletteColor(color);
    if (color == kRgbColor && groups.hasRgb()) {
        look.recipe.colorGroup = ContourGroups::kRed;
        for (int channel = ContourGroups::kRed; channel <= ContourGroups::kCount; ++channel)
            look.recipe.revision += groups.revision(channel);
    } else if (color >= kFirstGroupColor && color < kRgbColor) {
        const int group = color - kFirstGroupColor + 1;
        if (groups.variable(group) > 0) {
            look.recipe.colorGroup = group;
            look.recipe.revision += groups.revision(group);
        }
    }
    look.mapper.ownColors = look.recipe.colorGroup != 0;
}

/// A map that uses lighting is lit by a plain light; the lighting layer adds highlights and the
/// map's lighting effect.
void MapStyle::setLight(BlockLook& look, host::AttributeId light) const
{
    look.mapper.lit = m_shown.is3D() && flag(light);
    look.mapper.shiny = look.mapper.lit && m_shown.frame.fieldLayer("UseLightingEffect");
    look.mapper.smooth = look.mapper.shiny
        && number(FieldAttributes::instance().lightingEffect) == LightingEffect_Gouraud;
    look.recipe.normals = look.mapper.smooth;
}

static std::optional<BlockLook> backgroundLook(const ShownMap& shown, const ContourGroups&)
{
    const FieldAttributes& ids = FieldAttributes::instance();
    const MapStyle style(shown);
    if (!style.flag(ids.meshShow) || style.number(ids.meshType) != MeshType_HiddenLine)
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::Faces);
    look.color = {255, 255, 255};
    return look;
}

static std::optional<BlockLook> shadeLook(const ShownMap& shown, const ContourGroups&)
{
    const FieldAttributes& ids = FieldAttributes::instance();
    const MapStyle style(shown);
    if (!style.flag(ids.shadeShow))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::Faces);
    look.color = paletteColor(style.number(ids.shadeColor));
    style.setLight(look, ids.shadeLight);
    return look;
}

static std::optional<BlockLook> floodLook(const ShownMap& shown, const ContourGroups& groups)
{
    const FieldAttributes& ids = FieldAttributes::instance();
    const MapStyle style(shown);
    const int type = style.number(ids.contourType);
    const int coloring = style.number(ids.flood);
    const bool hasVariable =
        coloring == ContourColoring_RGB ? groups.hasRgb() : groups.variable(coloring) > 0;
    if (!style.flag(ids.contourShow) || type == ContourType_Lines || !hasVariable)
        return std::nullopt;
    const bool byCell =
        type == ContourType_AverageCellFlood || type == ContourType_PrimaryValueFlood;
    BlockLook look;
    look.recipe = style.recipe(byCell ? BlockKind::CellFlood : BlockKind::Flood);
    look.recipe.primaryValues = type == ContourType_PrimaryValueFlood;
    if (coloring == ContourColoring_RGB) {
        style.setLineColor(look, kRgbColor, groups);
    } else {
        look.mapper.floodGroup = coloring;
        look.recipe.group = coloring;
        // Levels may move without new geometry; another variable may not.
        look.recipe.revision = static_cast<int>(groups.variable(coloring));
    }
    style.setLight(look, ids.contourLight);
    return look;
}

static std::optional<BlockLook> contourLinesLook(const ShownMap& shown, const ContourGroups& groups)
{
    const FieldAttributes& ids = FieldAttributes::instance();
    const MapStyle style(shown);
    const int type = style.number(ids.contourType);
    const int group = style.number(ids.linesBy);
    const bool hasLines = type == ContourType_Lines || type == ContourType_LinesAndFlood;
    if (!style.flag(ids.contourShow) || !hasLines || groups.variable(group) == 0)
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::ContourLines);
    look.recipe.group = group;
    look.recipe.revision = groups.revision(group);
    style.setLine(look, ids.contourThickness, ids.contourPattern, ids.contourLength);
    style.setLineColor(look, style.number(ids.contourColor), groups);
    return look;
}

static std::optional<BlockLook> meshLook(const ShownMap& shown, const ContourGroups& groups)
{
    const FieldAttributes& ids = FieldAttributes::instance();
    const MapStyle style(shown);
    if (!style.flag(ids.meshShow))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::MeshLines);
    look.mapper.inFront = style.number(ids.meshType) == MeshType_WireFrame;
    style.setLine(look, ids.meshThickness, ids.meshPattern, ids.meshLength);
    style.setLineColor(look, style.number(ids.meshColor), groups);
    return look;
}

static std::optional<BlockLook> edgesLook(const ShownMap& shown, const ContourGroups&)
{
    const FieldAttributes& ids = FieldAttributes::instance();
    const MapStyle style(shown);
    if (!style.flag(ids.edgeShow))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::Edges);
    // Edges belong to the zone, whatever surfaces of it are drawn: a volume that draws none of its
    // surfaces still shows where it is.
    look.recipe.surfaces = SurfaceChoice();
    look.recipe.edges.type = static_cast<EdgeType_e>(style.number(ids.edgeType));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        look.recipe.edges.borders[axis] =
            static_cast<BorderLocation_e>(style.number(ids.borders[axis]));
    }
    look.mapper.thickness = style.real(ids.edgeThickness);
    look.color = paletteColor(style.number(ids.edgeColor));
    return look;
}

/// What tells the layers apart, in the order of FieldLayer.
struct LayerDescription
{
    const char* layer; ///< name in "FieldLayers"
    std::optional<BlockLook> (*look)(const ShownMap&, const ContourGroups&);
};
static constexpr LayerDescription kLayers[kFieldLayerCount] = {
    {"ShowMesh", backgroundLook},      {"ShowShade", shadeLook}, {"ShowContour", floodLook},
    {"ShowContour", contourLinesLook}, {"ShowMesh", meshLook},   {"ShowEdge", edgesLook},
};

static const LayerDescription& describe(FieldLayer layer)
{
    return kLayers[static_cast<std::size_t>(layer)];
}

std::optional<BlockLook> lookOf(FieldLayer layer, const ShownMap& map, const ContourGroups& groups)
{
    return describe(layer).look(map, groups);
}

bool isLayerOn(const host::Frame& frame, FieldLayer layer)
{
    return frame.fieldLayer(describe(layer).layer);
}

std::vector<int> groupsShown(const ShownMap& shown, const ContourGroups& groups)
{
    std::vector<int> result;
    for (const FieldLayer layer : {FieldLayer::Flood, FieldLayer::ContourLines, FieldLayer::Mesh}) {
        const auto look =
            isLayerOn(shown.frame, layer) ? lookOf(layer, shown, groups) : std::nullopt;
        for (const int group : {look ? look->recipe.group : 0, look ? look->recipe.colorGroup : 0})
            if (group == ContourGroups::kRed)
                result.insert(result.end(), {group, group + 1, group + 2});
            else if (group != 0)
                result.push_back(group);
    }
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

/// Layers by the beginning of a path; the first that fits counts.
struct AffectedRow
{
    const char* first;
    const char* second; ///< null fits all
    LayerMask layers;
};
static constexpr LayerMask kContourMask =
    maskOf(FieldLayer::Flood) | maskOf(FieldLayer::ContourLines) | kGroupValues;
static constexpr LayerMask kMeshMask =
    maskOf(FieldLayer::Mesh) | maskOf(FieldLayer::Background) | kGroupValues;
static constexpr LayerMask kLitMask = maskOf(FieldLayer::Shade) | maskOf(FieldLayer::Flood);
static constexpr AffectedRow kAffected[] = {
    {"FieldMap", "Mesh", kMeshMask},
    {"FieldMap", "Contour", kContourMask},
    {"FieldMap", "Shade", maskOf(FieldLayer::Shade)},
    {"FieldMap", "EdgeLayer", maskOf(FieldLayer::Edges)},
    {"FieldMap", "Surfaces", kAllLayers& static_cast<LayerMask>(~maskOf(FieldLayer::Edges))},
    {"FieldMap", "Effects", kLitMask},
    {"FieldLayers", "ShowMesh", kMeshMask},
    {"FieldLayers", "ShowContour", kContourMask},
    {"FieldLayers", "ShowShade", maskOf(FieldLayer::Shade)},
    {"FieldLayers", "ShowEdge", maskOf(FieldLayer::Edges)},
    {"FieldLayers", "UseLightingEffect", kLitMask},
    {"ContourGroups", nullptr, kContourMask | kMeshMask},
    {"GlobalRGB", nullptr, kContourMask | kMeshMask},
    {"ActiveFieldMaps", nullptr, kAllLayers | kGroupValues},
    {"ActiveFieldZones", nullptr, kAllLayers | kGroupValues},
};

LayerMask affectedBy(host::AttributeId attribute)
{
    if (attribute < 0)
        return 0;
    const std::vector<std::string>& names = host::Schema::instance().at(attribute).names;
    for (const AffectedRow& row : kAffected)
        if (names[0] == row.first && (!row.second || (names.size() > 1 && names[1] == row.second)))
            return row.layers;
    return 0;
}

host::Rgb paletteColor(std::int32_t color)
{
    return color < kFirstGroupColor ? host::Document::instance().color(color) : host::Rgb {0, 0, 0};
}

} // namespace corvala::plot
