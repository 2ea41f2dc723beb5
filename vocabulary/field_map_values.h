// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/field_frame_values.h"
#include "vocabulary/map_values.h"

namespace corvala::style {

// The style values of field maps, by their groups.

struct FieldMesh
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show mesh"), true);
    ChoiceKey<MeshType_e> meshType =
        in.choice("MeshType", CV_TEXT("Mesh type"), kMeshTypes, MeshType_Overlay);
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Mesh color"), Colors::WithGroups);
    ChoiceKey<LinePattern_e> linePattern =
        in.choice("LinePattern", CV_TEXT("Mesh line pattern"), kLinePatterns, LinePattern_Solid);
    RealKey patternLength = style::patternLength(in, sizes, CV_TEXT("Mesh pattern length"));
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Mesh line thickness"));
};

struct FieldContour
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show contour"), true);
    ChoiceKey<ContourType_e> contourType =
        in.choice("ContourType", CV_TEXT("Contour type"), kContourTypes, ContourType_Flood);
    ChoiceKey<ContourColoring_e> floodColoring =
        in.choice("FloodColoring", CV_TEXT("Flood by"), kContourColorings, ContourColoring_Group1);
    IntegerKey lineContourGroup = in.integer("LineContourGroup", CV_TEXT("Lines by contour group"),
                                             1, ContourGroups::kCount, 1);
    ColorKey color = in.color("Color", CV_TEXT("Contour line color"), Colors::WithGroups, 0);
    ChoiceKey<LinePattern_e> linePattern =
        in.choice("LinePattern", CV_TEXT("Contour line pattern"), kLinePatterns, LinePattern_Solid);
    RealKey patternLength = style::patternLength(in, sizes, CV_TEXT("Contour pattern length"));
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Contour line thickness"));
    SwitchKey useLightingEffect = in.flag("UseLightingEffect", CV_TEXT("Contour lighting"), true);
};

struct FieldVector
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show vectors"), true);
    ChoiceKey<VectorType_e> vectorType =
        in.choice("VectorType", CV_TEXT("Vector type"), kVectorTypes, VectorType_TailAtPoint);
    SwitchKey isTangent = in.flag("IsTangent", CV_TEXT("Tangent vectors"), false);
    ChoiceKey<ArrowheadStyle_e> arrowheadStyle = in.choice(
        "ArrowheadStyle", CV_TEXT("Arrowhead style"), kArrowheadStyles, ArrowheadStyle_Plain);
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Vector color"), Colors::WithGroups);
    ChoiceKey<LinePattern_e> linePattern =
        in.choice("LinePattern", CV_TEXT("Vector line pattern"), kLinePatterns, LinePattern_Solid);
    RealKey patternLength = style::patternLength(in, sizes, CV_TEXT("Vector pattern length"));
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Vector line thickness"));
};

struct FieldScatter
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show scatter"), true);
    SymbolShape symbolShape {in / "SymbolShape", kScatterShapes};
    RealKey frameSize = symbolSize(in, sizes, "FrameSize", CV_TEXT("Symbol size"));
    SwitchKey sizeByVariable = in.flag("SizeByVariable", CV_TEXT("Symbol size by variable"), false);
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Scatter color"), Colors::WithGroups);
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Scatter line thickness"));
    ChoiceKey<FillMode_e> fillMode =
        in.choice("FillMode", CV_TEXT("Scatter fill mode"), kFillModes, FillMode_LineColor);
    ColorKey fillColor =
        in.color("FillColor", CV_TEXT("Scatter fill color"), Colors::WithGroups, 1);
};

struct FieldShade
{
    Group in;
    SwitchKey show = in.flag("Show", CV_TEXT("Show shade"), true);
    // Deliberate: a shade cannot follow a contour group or RGB.
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Shade color"), Colors::PaletteOnly);
    SwitchKey useLightingEffect = in.flag("UseLightingEffect", CV_TEXT("Shade lighting"), true);
};

struct FieldEdgeLayer
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show edges"), true);
    ChoiceKey<EdgeType_e> edgeType =
        in.choice("EdgeType", CV_TEXT("Edge type"), kEdgeTypes, EdgeType_BordersAndCreases);
    ColorKey color = in.color("Color", CV_TEXT("Edge color"), Colors::PaletteOnly, 0);
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Edge line thickness"), 0.3);
    ChoiceKey<BorderLocation_e> iBorder =
        in.choice("IBorder", CV_TEXT("I border"), kBorderLocations, BorderLocation_Both);
    ChoiceKey<BorderLocation_e> jBorder =
        in.choice("JBorder", CV_TEXT("J border"), kBorderLocations, BorderLocation_Both);
    ChoiceKey<BorderLocation_e> kBorder =
        in.choice("KBorder", CV_TEXT("K border"), kBorderLocations, BorderLocation_Both);
};

struct IndexSkip
{
    Group in;
    IntegerKey i = in.integer("I", CV_TEXT("I skip"), 1, kLargest, 1);
    IntegerKey j = in.integer("J", CV_TEXT("J skip"), 1, kLargest, 1);
    IntegerKey k = in.integer("K", CV_TEXT("K skip"), 1, kLargest, 1);
};

struct FieldPoints
{
    Group in;
    ChoiceKey<PointsToPlot_e> pointsToPlot = in.choice("PointsToPlot", CV_TEXT("Points to plot"),
                                                       kPointsToPlot, PointsToPlot_SurfaceNodes);
    IndexSkip ijkSkip {in / "IJKSkip"};
};

struct FieldSurfaces
{
    Group in;
    ChoiceKey<SurfacesToPlot_e> surfacesToPlot = in.surfaces(
        "SurfacesToPlot", CV_TEXT("Surfaces to plot"), SurfacesToPlot_BoundaryCellFaces);
    IndexRanges ranges {in};
};

struct VolumeObjects
{
    Group in;
    SwitchKey showIsosurfaces = in.flag("ShowIsosurfaces", CV_TEXT("Iso-surfaces"), true);
    SwitchKey showSlices = in.flag("ShowSlices", CV_TEXT("Slices"), true);
    SwitchKey showStreamtraces = in.flag("ShowStreamtraces", CV_TEXT("Streamtraces"), true);
};

struct FieldEffects
{
    Group in;
    SwitchKey useValueBlanking = in.flag("UseValueBlanking", CV_TEXT("Use value blanking"), true);
    ChoiceKey<LightingEffect_e> lightingEffect = in.choice(
        "LightingEffect", CV_TEXT("Lighting effect"), kLightingEffects, LightingEffect_Gouraud);
    SwitchKey useTranslucency = in.flag("UseTranslucency", CV_TEXT("Use translucency"), false);
    IntegerKey surfaceTranslucency =
        in.integer("SurfaceTranslucency", CV_TEXT("Surface translucency"), 1, 99, 50);
};

struct FieldMap
{
    Group in;
    const BasicSize& sizes;
    IntegerKey group = in.integer("Group", CV_TEXT("Group number"), 1, kLargest, 1);
    FieldMesh mesh {in / "Mesh", sizes};
    FieldContour contour {in / "Contour", sizes};
    FieldVector vector {in / "Vector", sizes};
    FieldScatter scatter {in / "Scatter", sizes};
    FieldShade shade {in / "Shade"};
    FieldEdgeLayer edgeLayer {in / "EdgeLayer", sizes};
    FieldPoints points {in / "Points"};
    FieldSurfaces surfaces {in / "Surfaces"};
    VolumeObjects volumeObjects {in / "VolumeMode" / "VolumeObjectsToPlot"};
    FieldEffects effects {in / "Effects"};
};

} // namespace corvala::style
