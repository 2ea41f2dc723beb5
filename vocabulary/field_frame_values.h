// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/dictionary_builder.h"

namespace corvala::style {

// What a field plot sets for all maps together, by groups. Positions and ranges are in the units of
// the coordinates or of the variable; sizes in percent of the frame's height.

struct GlobalScatter
{
    Group in;
    VariableKey var = in.variable("Var", CV_TEXT("Scatter size variable"), 0, 0);
    SwitchKey automaticRange =
        in.flag("AutomaticRange", CV_TEXT("Scatter sizes by the range of values"), true);
    /// The values that have the smallest and the largest size.
    RealKey rangeMin = in.limitless("RangeMin", CV_TEXT("Scatter size range minimum"), 0);
    RealKey rangeMax = in.limitless("RangeMax", CV_TEXT("Scatter size range maximum"), 1);
    RealKey smallestSize = in.percent("SmallestSize", CV_TEXT("Smallest symbol size"), 0, 0.5);
    RealKey largestSize = in.percent("LargestSize", CV_TEXT("Largest symbol size"), 0, 5);
};

struct GlobalRgb
{
    Group in;
    VariableKey redVar = in.variable("RedVar", CV_TEXT("Red channel variable"), 0, 0);
    VariableKey greenVar = in.variable("GreenVar", CV_TEXT("Green channel variable"), 0, 0);
    VariableKey blueVar = in.variable("BlueVar", CV_TEXT("Blue channel variable"), 0, 0);
};

struct GlobalVector
{
    Group in;
    VariableKey uVar = in.variable("UVar", CV_TEXT("U variable"), 0, 0);
    VariableKey vVar = in.variable("VVar", CV_TEXT("V variable"), 0, 0);
    VariableKey wVar = in.variable("WVar", CV_TEXT("W variable"), 0, 0);
    SwitchKey automaticLength =
        in.flag("AutomaticLength", CV_TEXT("Vector length by the data"), true);
    /// Of a vector of magnitude 1, in the unit of the coordinates.
    RealKey lengthOfOne =
        in.real("LengthOfOne", CV_TEXT("Length of a vector of magnitude 1"), 1e-30, kUnlimited, 1);
    /// Against either length.
    RealKey relativeLength =
        in.real("RelativeLength", CV_TEXT("Relative vector length"), 0.001, 1000, 1);
    SwitchKey isUniform = in.flag("IsUniform", CV_TEXT("Vectors of the same length"), false);
    /// In percent of the vector.
    RealKey headSize = in.real("HeadSize", CV_TEXT("Arrowhead size"), 1, 100, 25);
    RealKey headAngle = in.real("HeadAngle", CV_TEXT("Arrowhead angle in degrees"), 1, 85, 20);
    SwitchKey showReference = in.flag("ShowReferenceArrow", CV_TEXT("Reference arrow"), true);
    /// 0: a round one is proposed.
    RealKey referenceMagnitude = in.real(
        "ReferenceMagnitude", CV_TEXT("Magnitude of the reference arrow"), 0, kUnlimited, 0);
};

/// Indexed by the number of the group.
struct ContourGroups
{
    static constexpr int kCount = 8;

    Group in;
    VariableKey var = in.indexed(kCount).variable("Var", CV_TEXT("Contour variable"), 0, 0);
    SwitchKey automaticLevels = in.indexed(kCount).flag(
        "AutomaticLevels", CV_TEXT("Contour levels over the range of values"), true);
    RealKey levelMin = in.indexed(kCount).limitless("LevelMin", CV_TEXT("Lowest contour level"), 0);
    RealKey levelMax =
        in.indexed(kCount).limitless("LevelMax", CV_TEXT("Highest contour level"), 1);
    /// Bands of colour between the lowest and the highest level; 0: as many as are round.
    IntegerKey bandCount = in.indexed(kCount).integer(
        "BandCount", CV_TEXT("Number of contour bands, 0 by the data"), 0, 250, 0);
    /// Values that have lines besides the levels, separated by blanks.
    TextKey moreLines =
        in.indexed(kCount).text("MoreLines", CV_TEXT("Contour lines at more values"), "");
    ChoiceKey<ColorMap_e> colorMap =
        in.indexed(kCount).choice("ColorMap", CV_TEXT("Color map"), kColorMaps, ColorMap_Viridis);
    SwitchKey reversesColors =
        in.indexed(kCount).flag("ReverseColorMap", CV_TEXT("Reversed color map"), false);
    SwitchKey showLegend = in.indexed(kCount).flag("ShowLegend", CV_TEXT("Contour legend"), true);
    /// Empty: the name of the variable.
    TextKey legendTitle =
        in.indexed(kCount).text("LegendTitle", CV_TEXT("Title of the contour legend"), "");
    /// Else where it was put: its upper left corner, from that of the frame, in percent of width
    /// and height.
    SwitchKey automaticLegend = in.indexed(kCount).flag(
        "AutomaticLegendPlace", CV_TEXT("Contour legend beside the plot"), true);
    RealKey legendX =
        in.indexed(kCount).percent("LegendX", CV_TEXT("Contour legend from the left"), 0, 80);
    RealKey legendY =
        in.indexed(kCount).percent("LegendY", CV_TEXT("Contour legend from above"), 0, 5);
};

/// Indexed by the number of the constraint.
struct BlankingConstraint
{
    static constexpr int kCount = 8;

    Group in;
    SwitchKey include = in.indexed(kCount).flag("Include", CV_TEXT("Blanking constraint"), false);
    VariableKey var = in.indexed(kCount).variable("Var", CV_TEXT("Blanking variable"), 0, 0);
    ChoiceKey<Relation_e> relation = in.indexed(kCount).choice(
        "Relation", CV_TEXT("Blanking relation"), kRelations, Relation_LessOrEqual);
    ChoiceKey<ComparedWith_e> comparedWith = in.indexed(kCount).choice(
        "ComparedWith", CV_TEXT("Blanking compares with"), kComparedWith, ComparedWith_Constant);
    RealKey constant = in.indexed(kCount).limitless("Constant", CV_TEXT("Blanking constant"), 0);
    VariableKey comparedVar =
        in.indexed(kCount).variable("ComparedVar", CV_TEXT("Blanking compared variable"), 0, 0);
};

struct ValueBlanking
{
    Group in;
    SwitchKey include = in.flag("Include", CV_TEXT("Value blanking"), false);
    ChoiceKey<BlankedCells_e> blankedCells =
        in.choice("BlankedCells", CV_TEXT("Blanked cells"), kBlankedCells, BlankedCells_AllPoints);
    BlankingConstraint constraint {in / "Constraint"};
};

struct Blanking
{
    Group in;
    ValueBlanking value {in / "Value"};
};

/// Indexed by the number of the slice.
struct Slices
{
    static constexpr int kCount = 8;

    Group in;
    SwitchKey show = in.indexed(kCount).flag("Show", CV_TEXT("Slice"), false);
    ChoiceKey<SlicePlane_e> plane =
        in.indexed(kCount).choice("Plane", CV_TEXT("Slice plane"), kSlicePlanes, SlicePlane_X);
    SwitchKey automaticPosition =
        in.indexed(kCount).flag("AutomaticPosition", CV_TEXT("Slice in the middle"), true);
    /// Of an index plane, its number.
    RealKey position = in.indexed(kCount).limitless("Position", CV_TEXT("Slice position"), 0);
    ChoiceKey<ContourColoring_e> coloring = in.indexed(kCount).choice(
        "Coloring", CV_TEXT("Slice flood by"), kContourColorings, ContourColoring_Group1);
};

/// Surfaces of one variable at up to three values.
struct IsoSurfaces
{
    static constexpr int kCount = 3;

    Group in;
    SwitchKey show = in.flag("Show", CV_TEXT("Iso-surfaces"), false);
    /// 0: the variable of the first contour group.
    VariableKey var = in.variable("Var", CV_TEXT("Iso-surface variable"), 0, 0);
    IntegerKey count = in.integer("Count", CV_TEXT("Number of iso-surfaces"), 1, kCount, 1);
    SwitchKey automaticValues =
        in.flag("AutomaticValues", CV_TEXT("Iso-surfaces by the range of values"), true);
    RealKey value1 = in.limitless("Value1", CV_TEXT("First iso-surface value"), 0);
    RealKey value2 = in.limitless("Value2", CV_TEXT("Second iso-surface value"), 0);
    RealKey value3 = in.limitless("Value3", CV_TEXT("Third iso-surface value"), 0);
    ChoiceKey<ContourColoring_e> coloring = in.choice("Coloring", CV_TEXT("Iso-surface flood by"),
                                                      kContourColorings, ContourColoring_Group1);
};

/// Lines along the vectors, from points on a rake: a straight line between two points.
struct Streamtraces
{
    Group in;
    SwitchKey show = in.flag("Show", CV_TEXT("Streamtraces"), false);
    ChoiceKey<StreamDirection_e> direction = in.choice(
        "Direction", CV_TEXT("Streamtrace direction"), kStreamDirections, StreamDirection_Both);
    IntegerKey seedCount =
        in.integer("SeedCount", CV_TEXT("Streamtraces of the rake"), 0, 1000, 12);
    SwitchKey automaticRake = in.flag("AutomaticRake", CV_TEXT("Rake across the data"), true);
    RealKey startX = in.limitless("StartX", CV_TEXT("Rake start X"), 0);
    RealKey startY = in.limitless("StartY", CV_TEXT("Rake start Y"), 0);
    RealKey startZ = in.limitless("StartZ", CV_TEXT("Rake start Z"), 0);
    RealKey endX = in.limitless("EndX", CV_TEXT("Rake end X"), 1);
    RealKey endY = in.limitless("EndY", CV_TEXT("Rake end Y"), 1);
    RealKey endZ = in.limitless("EndZ", CV_TEXT("Rake end Z"), 1);
    /// Points besides the rake: X, Y and Z of each, all separated by blanks.
    TextKey points = in.text("Points", CV_TEXT("Points of streamtraces"), "");
    ColorKey color = in.color("Color", CV_TEXT("Streamtrace color"), Colors::WithGroups, 0);
    RealKey lineThickness =
        in.percent("LineThickness", CV_TEXT("Streamtrace line thickness"), 0.0001, 0.3);
};

/// Where the light comes from, seen by the viewer: at first over the left shoulder.
struct LightSource
{
    Group in;
    RealKey azimuth =
        in.real("Azimuth", CV_TEXT("Light from the right in degrees"), -180, 180, -26.6);
    RealKey elevation = in.real("Elevation", CV_TEXT("Light from above in degrees"), -90, 90, 28.2);
};

struct EdgeDetails
{
    Group in;
    RealKey creaseAngle = in.real("CreaseAngle", CV_TEXT("Crease angle in degrees"), 1, 179, 30);
};

struct FieldAxis
{
    Group in;
    const char* rangeLabel;
    const char* minLabel;
    const char* maxLabel;
    const char* titleLabel;
    SwitchKey automaticRange = in.flag("AutomaticRange", rangeLabel, true);
    RealKey rangeMin = in.limitless("RangeMin", minLabel, 0);
    RealKey rangeMax = in.limitless("RangeMax", maxLabel, 1);
    /// Empty: the name of the coordinate.
    TextKey title = in.text("Title", titleLabel, "");
};

struct FieldAxes
{
    Group in;
    FieldAxis x {in / "X", CV_TEXT("X axis by the data"), CV_TEXT("X axis minimum"),
                 CV_TEXT("X axis maximum"), CV_TEXT("X axis title")};
    FieldAxis y {in / "Y", CV_TEXT("Y axis by the data"), CV_TEXT("Y axis minimum"),
                 CV_TEXT("Y axis maximum"), CV_TEXT("Y axis title")};
    FieldAxis z {in / "Z", CV_TEXT("Z axis by the data"), CV_TEXT("Z axis minimum"),
                 CV_TEXT("Z axis maximum"), CV_TEXT("Z axis title")};
    RealKey fontSize = in.percent("FontSize", CV_TEXT("Font size of axes and legends"), 0.5, 2.2);
    SwitchKey showGrid = in.flag("ShowGrid", CV_TEXT("Grid"), false);
};

} // namespace corvala::style
