// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/style.h"

namespace corvala::style {

/// What a plot shows or hides as a whole; each map has a switch of its own besides.
struct Layer
{
    const char* category; ///< name of the group of the map's values, by which the SDK asks
    const char* name; ///< English, in the translation context "StyleValues"
    SwitchKey shown; ///< of the frame
    SwitchKey shownForMap;

    constexpr bool isOfLines() const { return entryOf(shownForMap).scope == Scope::LineMap; }
    constexpr bool operator==(const Layer& other) const { return shown.id == other.shown.id; }
    constexpr bool operator!=(const Layer& other) const { return !(*this == other); }
};

inline constexpr Layer kMeshLayer {"Mesh", CV_TEXT("Mesh"), fieldLayers.showMesh,
                                   fieldMap.mesh.show};
inline constexpr Layer kContourLayer {"Contour", CV_TEXT("Contour"), fieldLayers.showContour,
                                      fieldMap.contour.show};
inline constexpr Layer kVectorLayer {"Vector", CV_TEXT("Vector"), fieldLayers.showVector,
                                     fieldMap.vector.show};
inline constexpr Layer kScatterLayer {"Scatter", CV_TEXT("Scatter"), fieldLayers.showScatter,
                                      fieldMap.scatter.show};
inline constexpr Layer kShadeLayer {"Shade", CV_TEXT("Shade"), fieldLayers.showShade,
                                    fieldMap.shade.show};
inline constexpr Layer kEdgeLayer {"EdgeLayer", CV_TEXT("Edge"), fieldLayers.showEdge,
                                   fieldMap.edgeLayer.show};
inline constexpr Layer kLinesLayer {"Lines", CV_TEXT("Lines"), linePlotLayers.showLines,
                                    lineMap.lines.show};
inline constexpr Layer kSymbolsLayer {"Symbols", CV_TEXT("Symbols"), linePlotLayers.showSymbols,
                                      lineMap.symbols.show};
inline constexpr Layer kErrorBarsLayer {"ErrorBars", CV_TEXT("Error bars"),
                                        linePlotLayers.showErrorBars, lineMap.errorBars.show};
inline constexpr Layer kBarChartsLayer {"BarCharts", CV_TEXT("Bar charts"),
                                        linePlotLayers.showBarCharts, lineMap.barCharts.show};

inline constexpr Layer kFieldLayers[] = {kMeshLayer,    kContourLayer, kVectorLayer,
                                         kScatterLayer, kShadeLayer,   kEdgeLayer};
inline constexpr Layer kLineLayers[] = {kLinesLayer, kSymbolsLayer, kErrorBarsLayer,
                                        kBarChartsLayer};

/// The field layer of a category, or null.
constexpr const Layer* fieldLayerOf(std::string_view category)
{
    for (const Layer& layer : kFieldLayers)
        if (category == layer.category)
            return &layer;
    return nullptr;
}

/// The layer that a switch of the frame shows, by the last name of its path, or null.
constexpr const Layer* layerNamed(std::string_view name)
{
    for (const Layer& layer : kFieldLayers)
        if (name == entryOf(layer.shown).path[1])
            return &layer;
    for (const Layer& layer : kLineLayers)
        if (name == entryOf(layer.shown).path[1])
            return &layer;
    return nullptr;
}

/// The field layer that a switch of a field map belongs to, or null.
constexpr const Layer* fieldLayerShownBy(Key shownForMap)
{
    for (const Layer& layer : kFieldLayers)
        if (shownForMap.id == layer.shownForMap.id)
            return &layer;
    return nullptr;
}

} // namespace corvala::style
