// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/dictionary_builder.h"
#include "vocabulary/line_map_values.h"

namespace corvala::style {

// What a line plot sets for all maps together, by groups. Ranges are in the units of the variables,
// sizes and places in percent of the frame's height and width.

/// One direction of an XY plot; indexed by the number of the axis.
struct LineAxis
{
    static constexpr int kCount = LineAssign::kAxes;

    Group in;
    const char* automaticLabel;
    const char* minimumLabel;
    const char* maximumLabel;
    const char* scaleLabel;
    const char* reversedLabel;
    const char* titleLabel;
    const char* colorLabel;
    const char* sideLabel;

    SwitchKey automaticRange = in.indexed(kCount).flag("AutomaticRange", automaticLabel, true);
    RealKey rangeMin = in.indexed(kCount).limitless("RangeMin", minimumLabel, 0);
    RealKey rangeMax = in.indexed(kCount).limitless("RangeMax", maximumLabel, 1);
    ChoiceKey<AxisScale_e> scale =
        in.indexed(kCount).choice("Scale", scaleLabel, kAxisScales, AxisScale_Linear);
    SwitchKey isReversed = in.indexed(kCount).flag("Reversed", reversedLabel, false);
    /// Empty: the names of the variables along the axis.
    TextKey title = in.indexed(kCount).text("Title", titleLabel, "");
    ColorKey color = in.indexed(kCount).color("Color", colorLabel, Colors::PaletteOnly, 0);
    ChoiceKey<AxisSide_e> side =
        in.indexed(kCount).choice("Side", sideLabel, kAxisSides, AxisSide_InTurn);
};

struct PolarAxes
{
    Group in;
    /// Where the angle is 0.
    ChoiceKey<PolarStart_e> start =
        in.choice("ThetaStart", CV_TEXT("Polar angle 0"), kPolarStarts, PolarStart_Right);
    SwitchKey isClockwise = in.flag("Clockwise", CV_TEXT("Polar angles clockwise"), false);
    SwitchKey automaticRange = in.flag("AutomaticRange", CV_TEXT("Radius by the data"), true);
    RealKey rangeMin = in.limitless("RangeMin", CV_TEXT("Radius minimum"), 0);
    RealKey rangeMax = in.limitless("RangeMax", CV_TEXT("Radius maximum"), 1);
    /// Empty: the names of the variables.
    TextKey title = in.text("Title", CV_TEXT("Title of polar axes"), "");
};

struct LineAxes
{
    Group in;
    LineAxis x {in / "X",
                CV_TEXT("X axis by the data"),
                CV_TEXT("X axis minimum"),
                CV_TEXT("X axis maximum"),
                CV_TEXT("X axis scale"),
                CV_TEXT("X axis reversed"),
                CV_TEXT("X axis title"),
                CV_TEXT("X axis color"),
                CV_TEXT("X axis side")};
    LineAxis y {in / "Y",
                CV_TEXT("Y axis by the data"),
                CV_TEXT("Y axis minimum"),
                CV_TEXT("Y axis maximum"),
                CV_TEXT("Y axis scale"),
                CV_TEXT("Y axis reversed"),
                CV_TEXT("Y axis title"),
                CV_TEXT("Y axis color"),
                CV_TEXT("Y axis side")};
    PolarAxes polar {in / "Polar"};
};

struct LineLegend
{
    Group in;
    SwitchKey show = in.flag("Show", CV_TEXT("Legend of lines"), true);
    /// Else where it was put: its upper left corner, from that of the frame.
    SwitchKey automaticPlace =
        in.flag("AutomaticPlace", CV_TEXT("Legend of lines in a corner"), true);
    RealKey x = in.percent("X", CV_TEXT("Legend of lines from the left"), 0, 70);
    RealKey y = in.percent("Y", CV_TEXT("Legend of lines from above"), 0, 5);
    SwitchKey showBox = in.flag("ShowBox", CV_TEXT("Box of the legend of lines"), true);
};

/// The whole of a line plot.
struct LineFrame
{
    Group in;
    TextKey title = in.text("Title", CV_TEXT("Title of the line plot"), "");
    RealKey fontSize = in.percent("FontSize", CV_TEXT("Font size of line plots"), 0.5, 2.4);
    SwitchKey showGrid = in.flag("ShowGrid", CV_TEXT("Grid of line plots"), true);
    SwitchKey showBox = in.flag("ShowBox", CV_TEXT("Box around line plots"), true);
};

} // namespace corvala::style
