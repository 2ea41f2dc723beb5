// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/dictionary_builder.h"

namespace corvala::style {

// The style values of the document and of frames, by their groups. A path has the names that the
// texts say; the members are the keys.

/// Five sizes that menus offer, smallest first.
struct SizeList
{
    Group in;
    const char* label;
    double minimum;
    std::array<double, 5> sizes;

    RealKey tiny = in.percent("Tiny", label, minimum, sizes[0]);
    RealKey small = in.percent("Small", label, minimum, sizes[1]);
    RealKey medium = in.percent("Medium", label, minimum, sizes[2]);
    RealKey large = in.percent("Large", label, minimum, sizes[3]);
    RealKey huge = in.percent("Huge", label, minimum, sizes[4]);
};

struct BasicSize
{
    static constexpr double kLeastLength = 0.01;
    static constexpr double kLeastThickness = 0.0001;

    Group in;
    SizeList linePatLengths {
        in / "LinePatLengths", CV_TEXT("Preset pattern length"), kLeastLength, {{0.5, 1, 2, 4, 8}}};
    SizeList lineThicknesses {in / "LineThicknesses",
                              CV_TEXT("Preset line thickness"),
                              kLeastThickness,
                              {{0.05, 0.15, 0.3, 0.6, 1.2}}};
    SizeList symbolSizes {
        in / "SymbolSizes", CV_TEXT("Preset symbol size"), 0, {{0.5, 1, 2, 3, 5}}};
};

struct FieldLayers
{
    Group in;
    SwitchKey showMesh = in.flag("ShowMesh", CV_TEXT("Mesh layer"), true);
    SwitchKey showContour = in.flag("ShowContour", CV_TEXT("Contour layer"), false);
    SwitchKey showVector = in.flag("ShowVector", CV_TEXT("Vector layer"), false);
    SwitchKey showScatter = in.flag("ShowScatter", CV_TEXT("Scatter layer"), false);
    SwitchKey showShade = in.flag("ShowShade", CV_TEXT("Shade layer"), false);
    SwitchKey showEdge = in.flag("ShowEdge", CV_TEXT("Edge layer"), true);
    SwitchKey useLightingEffect = in.flag("UseLightingEffect", CV_TEXT("Lighting"), false);
    SwitchKey useTranslucency = in.flag("UseTranslucency", CV_TEXT("Translucency"), false);
};

struct LinePlotLayers
{
    Group in;
    SwitchKey showLines = in.flag("ShowLines", CV_TEXT("Lines layer"), true);
    SwitchKey showSymbols = in.flag("ShowSymbols", CV_TEXT("Symbols layer"), false);
    SwitchKey showErrorBars = in.flag("ShowErrorBars", CV_TEXT("Error bars layer"), false);
    SwitchKey showBarCharts = in.flag("ShowBarCharts", CV_TEXT("Bar charts layer"), false);
};

/// The solution time in the picture of a field or line plot.
struct TimeText
{
    Group in;
    SwitchKey show = in.flag("Show", CV_TEXT("Solution time in the picture"), false);
    /// Before the time; empty: the word for it.
    TextKey title = in.text("Title", CV_TEXT("Title of the solution time"), "");
    TextKey unit = in.text("Unit", CV_TEXT("Unit of the solution time"), "");
    IntegerKey digits =
        in.integer("Digits", CV_TEXT("Significant digits of the solution time"), 1, 15, 6);
    /// Else where it was put: its upper left corner, from that of the frame, in percent of width
    /// and height.
    SwitchKey automaticPlace =
        in.flag("AutomaticPlace", CV_TEXT("Solution time in the corner of the plot"), true);
    RealKey x = in.percent("X", CV_TEXT("Solution time from the left"), 0, 10);
    RealKey y = in.percent("Y", CV_TEXT("Solution time from above"), 0, 5);
};

} // namespace corvala::style
