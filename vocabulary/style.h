// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/field_frame_values.h"
#include "vocabulary/field_map_values.h"
#include "vocabulary/line_frame_values.h"
#include "vocabulary/line_map_values.h"

#include <string_view>

/// The dictionary of style values. Each stands once, in one of the headers that this one includes:
/// its path, type, range, default, label, choices. What deals with a style value names it by its
/// key, as in `style::fieldMap.mesh.color`, and asks `style::entryOf(key)` for the rest.
namespace corvala::style {

struct Dictionary
{
    Entries entries;

    BasicSize basicSize {Group(entries, Scope::Document) / "BasicSize"};

    Group frame {entries, Scope::Frame};
    ChoiceKey<PlotType_e> plotType =
        frame.choice("PlotType", CV_TEXT("Plot type"), kPlotTypes, PlotType_Field2D);
    NumbersKey activeFieldMaps = frame.numbers("ActiveFieldMaps", CV_TEXT("Active field maps"));
    NumbersKey activeFieldZones = frame.numbers("ActiveFieldZones", CV_TEXT("Active zones"));
    NumbersKey activeLineMaps = frame.numbers("ActiveLineMaps", CV_TEXT("Active line maps"));
    FieldLayers fieldLayers {frame / "FieldLayers"};
    LinePlotLayers linePlotLayers {frame / "LinePlotLayers"};
    GlobalScatter globalScatter {frame / "GlobalScatter"};
    GlobalRgb globalRgb {frame / "GlobalRGB"};
    GlobalVector globalVector {frame / "GlobalVector"};
    ContourGroups contourGroups {frame / "ContourGroups"};
    Blanking blanking {frame / "Blanking"};
    Slices slices {frame / "Slices"};
    IsoSurfaces isoSurfaces {frame / "IsoSurfaces"};
    Streamtraces streamtraces {frame / "Streamtraces"};
    LightSource lightSource {frame / "LightSource"};
    EdgeDetails edgeDetails {frame / "EdgeDetails"};
    FieldAxes fieldAxes {frame / "FieldAxes"};
    LineAxes lineAxes {frame / "LineAxes"};
    LineLegend lineLegend {frame / "LineLegend"};
    LineFrame lineFrame {frame / "LineFrame"};
    TimeText timeText {frame / "TimeText"};

    FieldMap fieldMap {Group(entries, Scope::FieldMap) / "FieldMap", basicSize};
    LineMap lineMap {Group(entries, Scope::LineMap) / "LineMap", basicSize};
};

inline constexpr Dictionary kDictionary;

inline constexpr const auto& basicSize = kDictionary.basicSize;
inline constexpr auto plotType = kDictionary.plotType;
inline constexpr auto activeFieldMaps = kDictionary.activeFieldMaps;
inline constexpr auto activeFieldZones = kDictionary.activeFieldZones;
inline constexpr auto activeLineMaps = kDictionary.activeLineMaps;
inline constexpr const auto& fieldLayers = kDictionary.fieldLayers;
inline constexpr const auto& linePlotLayers = kDictionary.linePlotLayers;
inline constexpr const auto& globalScatter = kDictionary.globalScatter;
inline constexpr const auto& globalRgb = kDictionary.globalRgb;
inline constexpr const auto& globalVector = kDictionary.globalVector;
inline constexpr const auto& contourGroups = kDictionary.contourGroups;
inline constexpr const auto& blanking = kDictionary.blanking;
inline constexpr const auto& slices = kDictionary.slices;
inline constexpr const auto& isoSurfaces = kDictionary.isoSurfaces;
inline constexpr const auto& streamtraces = kDictionary.streamtraces;
inline constexpr const auto& lightSource = kDictionary.lightSource;
inline constexpr const auto& edgeDetails = kDictionary.edgeDetails;
inline constexpr const auto& fieldAxes = kDictionary.fieldAxes;
inline constexpr const auto& lineAxes = kDictionary.lineAxes;
inline constexpr const auto& lineLegend = kDictionary.lineLegend;
inline constexpr const auto& lineFrame = kDictionary.lineFrame;
inline constexpr const auto& timeText = kDictionary.timeText;
inline constexpr const auto& fieldMap = kDictionary.fieldMap;
inline constexpr const auto& lineMap = kDictionary.lineMap;

/// Every style value, by Id.
inline constexpr const Entries& allEntries = kDictionary.entries;

/// What the dictionary says of a style value; the key must be valid.
constexpr const Entry& entryOf(Key key)
{
    return allEntries[static_cast<std::size_t>(key.id)];
}

/// Whether a value stands in the group of another one, or in a group below that.
constexpr bool isInGroupOf(Key value, Key other)
{
    const Entry& entry = entryOf(value);
    const Entry& member = entryOf(other);
    for (std::size_t i = 0; i + 1 < member.length(); ++i)
        if (!entry.path[i] || std::string_view(entry.path[i]) != member.path[i])
            return false;
    return true;
}

} // namespace corvala::style
