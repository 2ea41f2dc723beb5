// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/layer_looks.h"

#include "host/style/schema.h"
#include "plot/field/scene/map_style.h"
#include "plot/field/scene/volume_looks.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace corvala::plot {

static constexpr const auto& kMap = style::fieldMap;
static constexpr style::Key kBorders[] = {kMap.edgeLayer.iBorder, kMap.edgeLayer.jBorder,
                                          kMap.edgeLayer.kBorder};
static std::optional<BlockLook> backgroundLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle style(shown);
    if (!style.flag(kMap.mesh.show) || style.number(kMap.mesh.meshType) != MeshType_HiddenLine)
        return std::nullopt;
    // What would be covered is not to shine through what covers it.
    if (style.translucency() > 0 && (style.showsShade() || style.showsFlood(groups)))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::Faces);
    look.color = {255, 255, 255};
    look.mapper.translucency = style.translucency();
    return look;
}

static std::optional<BlockLook> shadeLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle style(shown);
    if (!style.flag(kMap.shade.show) || (style.translucency() > 0 && style.showsFlood(groups)))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::Faces);
    look.color = paletteColor(style.number(kMap.shade.color));
    look.mapper.translucency = style.translucency();
    style.setLight(look, kMap.shade.useLightingEffect);
    return look;
}

static std::optional<BlockLook> floodLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle map(shown);
    const int type = map.number(kMap.contour.contourType);
    if (!map.flag(kMap.contour.show) || type == ContourType_Lines)
        return std::nullopt;
    const bool byCell =
        type == ContourType_AverageCellFlood || type == ContourType_PrimaryValueFlood;
    BlockLook look;
    look.recipe = map.recipe(byCell ? BlockKind::CellFlood : BlockKind::Flood);
    look.recipe.primaryValues = type == ContourType_PrimaryValueFlood;
    if (!map.setFlood(look, map.number(kMap.contour.floodColoring), groups))
        return std::nullopt;
    look.mapper.translucency = map.translucency();
    map.setLight(look, kMap.contour.useLightingEffect);
    return look;
}

static std::optional<BlockLook> contourLinesLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle style(shown);
    const int type = style.number(kMap.contour.contourType);
    const int group = style.number(kMap.contour.lineContourGroup);
    const bool hasLines = type == ContourType_Lines || type == ContourType_LinesAndFlood;
    if (!style.flag(kMap.contour.show) || !hasLines || groups.variable(group) == 0)
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::ContourLines);
    look.recipe.group = group;
    look.recipe.revision = groups.revision(group);
    style.setLine(look, kMap.contour.lineThickness, kMap.contour.linePattern,
                  kMap.contour.patternLength);
    style.setLineColor(look, style.number(kMap.contour.color), groups);
    return look;
}

static std::optional<BlockLook> meshLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle style(shown);
    if (!style.flag(kMap.mesh.show))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::MeshLines);
    look.mapper.inFront = style.number(kMap.mesh.meshType) == MeshType_WireFrame;
    style.setLine(look, kMap.mesh.lineThickness, kMap.mesh.linePattern, kMap.mesh.patternLength);
    style.setLineColor(look, style.number(kMap.mesh.color), groups);
    return look;
}

/// Whether edges have the colour and the thickness of the style: those of volume zones without an
/// order do not, as their cells in the tables show.
static bool hasEdgeStyle(const ShownMap& shown)
{
    const auto& maps = shown.frame.fieldMaps();
    return maps.hasOrderedZones(shown.map) || !maps.hasVolumeZones(shown.map);
}

static std::optional<BlockLook> edgesLook(const ShownMap& shown, const ContourGroups&)
{
    constexpr double kThinEdge = 0.2; // as in the first look
    const MapStyle style(shown);
    if (!style.flag(kMap.edgeLayer.show))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.recipe(BlockKind::Edges);
    // Edges belong to the zone, whatever surfaces of it are drawn: a volume that draws none of its
    // surfaces still shows where it is.
    const BlankingChoice blanking = look.recipe.surfaces.blanking;
    look.recipe.surfaces = SurfaceChoice();
    look.recipe.surfaces.blanking = blanking;
    look.recipe.edges.type = static_cast<EdgeType_e>(style.number(kMap.edgeLayer.edgeType));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        look.recipe.edges.borders[axis] =
            static_cast<BorderLocation_e>(style.number(kBorders[axis]));
    }
    look.recipe.edges.creaseAngle = style.frameReal(style::edgeDetails.creaseAngle);
    look.mapper.thickness = kThinEdge;
    if (hasEdgeStyle(shown)) {
        look.mapper.thickness = style.real(kMap.edgeLayer.lineThickness);
        look.color = paletteColor(style.number(kMap.edgeLayer.color));
    }
    return look;
}

static std::optional<BlockLook> vectorsLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle style(shown);
    if (!style.flag(kMap.vector.show) || !groups.hasVector(shown.is3D()))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.pointRecipe(BlockKind::Arrows);
    look.recipe.arrows = style.arrows(groups);
    style.setLine(look, kMap.vector.lineThickness, kMap.vector.linePattern,
                  kMap.vector.patternLength);
    style.setLineColor(look, style.number(kMap.vector.color), groups);
    return look;
}

static std::optional<BlockLook> scatterLook(const ShownMap& shown, const ContourGroups& groups)
{
    const MapStyle style(shown);
    if (!style.flag(kMap.scatter.show))
        return std::nullopt;
    BlockLook look;
    look.recipe = style.pointRecipe(BlockKind::Symbols);
    style.setLineColor(look, style.number(kMap.scatter.color), groups);
    style.setSymbol(look, groups);
    return look;
}

/// What layers use besides the values of their own, and what they are.
enum Use : unsigned {
    Surfaces = 1, ///< of volume zones
    Light = 2,
    Values = 4, ///< of contour groups and RGB channels
    Faces = 8, ///< is made of faces, and not of lines or points
    Outline = 16, ///< shows where a zone is, and nothing of what is on it
    Cells = 32, ///< is made of cells, some of which may be blanked
    Points = 64, ///< that carry something
    Vectors = 128,
    Within = 256, ///< lies within zones, and not on their surfaces
    Joint = 512, ///< shows something of all maps together
    Beside = 1024, ///< looks otherwise beside other surfaces of the map
    Sizes = 2048, ///< of symbols by a variable
    Around = 4096 ///< no layer: axes and texts
};
static constexpr SharedStyle kShared[] = {
    {kMap.surfaces.surfacesToPlot, true, Surfaces},
    {kMap.effects.lightingEffect, true, Light},
    {style::fieldLayers.useLightingEffect, false, Light},
    {style::lightSource.azimuth, true, Light},
    {style::contourGroups.var, true, Values},
    {style::blanking.value.include, true, Cells},
    {kMap.effects.useValueBlanking, false, Cells},
    {style::edgeDetails.creaseAngle, false, Outline},
    {style::fieldLayers.useTranslucency, false, Faces},
    {kMap.effects.useTranslucency, false, Faces},
    {kMap.effects.surfaceTranslucency, false, Faces},
    {style::fieldLayers.showMesh, false, Beside},
    {style::fieldLayers.showContour, false, Beside},
    {style::fieldLayers.showShade, false, Beside},
    {kMap.mesh.show, false, Beside},
    {kMap.mesh.meshType, false, Beside},
    {kMap.contour.show, false, Beside},
    {kMap.contour.contourType, false, Beside},
    {kMap.contour.floodColoring, false, Beside},
    {kMap.shade.show, false, Beside},
    {style::contourGroups.var, false, Beside},
    {style::globalRgb.redVar, true, Beside},
    {style::globalVector.uVar, false, Joint},
    {style::globalVector.vVar, false, Joint},
    {style::globalVector.wVar, false, Joint},
    {style::globalRgb.redVar, true, Values},
    {style::globalVector.uVar, true, Vectors},
    {style::globalScatter.var, true, Sizes},
    {kMap.points.pointsToPlot, true, Points},
    {style::fieldAxes.fontSize, true, Around},
    {style::timeText.show, true, Around},
    {style::activeFieldMaps, false},
    {style::activeFieldZones, false},
};

/// What tells the layers apart, from back to front.
struct LayerDescription
{
    FieldLayer id;
    int standIn; ///< rank, when points of one layer stand in for a map
    SceneLayer layer;
    std::optional<BlockLook> (*look)(const ShownMap&, const ContourGroups&);
};

template<int number>
static constexpr LayerDescription slice()
{
    return {static_cast<FieldLayer>(static_cast<int>(FieldLayer::Slice1) + number - 1),
            2 + number,
            {CV_TEXT("Slice"), style::slices.show, number, kMap.volumeObjects.showSlices,
             Within | Cells | Light | Values | Faces | Beside},
            [](const ShownMap& shown, const ContourGroups& groups) {
                return sliceLook(number, shown, groups);
            }};
}

static constexpr LayerDescription kLayers[] = {
    {FieldLayer::Background,
     14,
     {&style::kMeshLayer, Surfaces | Cells | Faces | Beside},
     backgroundLook},
    {FieldLayer::Shade,
     2,
     {&style::kShadeLayer, Surfaces | Cells | Light | Faces | Beside},
     shadeLook},
    {FieldLayer::Flood,
     1,
     {&style::kContourLayer, Surfaces | Cells | Light | Values | Faces},
     floodLook},
    slice<1>(),
    slice<2>(),
    slice<3>(),
    slice<4>(),
    slice<5>(),
    slice<6>(),
    slice<7>(),
    slice<8>(),
    {FieldLayer::IsoSurfaces,
     11,
     {CV_TEXT("Iso-surfaces"), style::isoSurfaces.show, -1, kMap.volumeObjects.showIsosurfaces,
      Within | Cells | Light | Values | Faces | Beside},
     isoSurfacesLook},
    {FieldLayer::ContourLines,
     12,
     {&style::kContourLayer, Surfaces | Cells | Values},
     contourLinesLook},
    {FieldLayer::Mesh, 13, {&style::kMeshLayer, Surfaces | Cells | Values}, meshLook},
    {FieldLayer::Edges, 16, {&style::kEdgeLayer, Outline | Cells}, edgesLook},
    {FieldLayer::Vectors,
     17,
     {&style::kVectorLayer, Surfaces | Cells | Points | Values | Vectors},
     vectorsLook},
    {FieldLayer::Streamtraces,
     15,
     {CV_TEXT("Streamtraces"), style::streamtraces.show, -1, kMap.volumeObjects.showStreamtraces,
      Within | Cells | Joint | Values},
     streamtracesLook},
    {FieldLayer::Scatter,
     18,
     {&style::kScatterLayer, Surfaces | Cells | Points | Values | Sizes},
     scatterLook},
};

static constexpr bool areLayersInOrder()
{
    int lines = 0;
    for (std::size_t i = 0; i < std::size(kLayers); ++i) {
        if (kLayers[i].id != static_cast<FieldLayer>(i))
            return false;
        lines += kLayers[i].layer.uses & (Faces | Within) ? 0 : 1;
    }
    return std::size(kLayers) == kFieldLayerCount && lines <= kMostLineLayers;
}
static_assert(areLayersInOrder());

static const SceneLayer& layerAt(std::size_t number)
{
    return kLayers[number].layer;
}

const SceneKind& fieldSceneKind()
{
    static constexpr SceneKind kKind {&host::Frame::isFieldPlot,
                                      &host::Frame::activeFieldMaps,
                                      StateCode_FieldMapListChanged,
                                      kFieldLayerCount,
                                      layerAt,
                                      kShared,
                                      std::size(kShared),
                                      Values | Vectors | Sizes,
                                      Joint};
    return kKind;
}

std::optional<BlockLook> lookOf(FieldLayer layer, const ShownMap& map, const ContourGroups& groups)
{
    return kLayers[static_cast<std::size_t>(layer)].look(map, groups);
}

double arrowScale(const host::Frame& frame, const ContourGroups& groups)
{
    const VectorScale scale = groups.vectorScale();
    const bool isUniform = frame.isOn(style::globalVector.isUniform);
    return (isUniform ? scale.length : scale.lengthOfOne)
        * frame.real(style::globalVector.relativeLength);
}

bool isLayerOn(const host::Frame& frame, FieldLayer layer)
{
    const SceneLayer& it = layerAt(static_cast<std::size_t>(layer));
    return frame.integer(it.shown, it.index) != 0;
}

QString layerName(FieldLayer layer)
{
    return QCoreApplication::translate("StyleValues",
                                       layerAt(static_cast<std::size_t>(layer)).name);
}

static LayerMask layersWith(unsigned use)
{
    LayerMask layers = 0;
    for (std::size_t i = 0; i < kFieldLayerCount; ++i)
        layers |= kLayers[i].layer.uses & use ? maskOf(i) : 0;
    return layers;
}

LayerMask coloredLayers()
{
    return layersWith(Values | Vectors | Sizes);
}

LayerMask outlineLayers()
{
    return layersWith(Outline);
}

LayerPlace placeOf(FieldLayer layer)
{
    const auto has = [](std::size_t number, unsigned use) {
        return (kLayers[number].layer.uses & use) != 0;
    };
    LayerPlace place;
    place.number = static_cast<std::size_t>(layer);
    place.isOfFaces = has(place.number, Faces);
    place.isWithin = has(place.number, Within);
    for (std::size_t i = place.number + 1; i < kFieldLayerCount && !place.isWithin; ++i)
        place.inFront += has(i, Faces) == place.isOfFaces && !has(i, Within) ? 1 : 0;
    return place;
}

std::vector<FieldLayer> layersToStandIn()
{
    std::vector<LayerDescription> ranked(std::begin(kLayers), std::end(kLayers));
    std::sort(ranked.begin(), ranked.end(),
              [](const auto& one, const auto& other) { return one.standIn < other.standIn; });
    std::vector<FieldLayer> layers;
    for (const LayerDescription& layer : ranked)
        layers.push_back(layer.id);
    return layers;
}

/// The first of those that come in threes; 0 for none.
static std::vector<int> groupsOf(const std::optional<BlockLook>& look)
{
    if (!look)
        return {};
    std::vector<int> groups = {look->recipe.group, look->recipe.colorGroup, look->recipe.fillGroup,
                               look->recipe.placeGroup};
    if (look->recipe.sizes.areOwn)
        groups.push_back(ContourGroups::kSize);
    if (look->recipe.kind == BlockKind::Arrows)
        groups.insert(groups.end(), {ContourGroups::kVector, ContourGroups::kPlace});
    return groups;
}

std::vector<int> groupsShown(const ShownMap& shown, const ContourGroups& groups)
{
    std::vector<int> result;
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        const bool isColored = (coloredLayers() & maskOf(i)) != 0;
        const auto look = isColored && isLayerOn(shown.frame, static_cast<FieldLayer>(i))
            ? kLayers[i].look(shown, groups)
            : std::nullopt;
        for (const int group : groupsOf(look))
            if (group == ContourGroups::kRed || group >= ContourGroups::kVector)
                result.insert(result.end(), {group, group + 1, group + 2});
            else if (group != 0)
                result.push_back(group);
    }
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

} // namespace corvala::plot
