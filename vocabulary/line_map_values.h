// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/map_values.h"

namespace corvala::style {

// The style values of line maps, by their groups.

struct LineAssign
{
    static constexpr int kAxes = 5; ///< of each direction

    Group in;
    ZoneKey zone = in.zone("Zone", CV_TEXT("Zone"));
    ChoiceKey<LineMapSort_e> sort =
        in.choice("Sort", CV_TEXT("Sort"), kLineMapSorts, LineMapSort_None);
    VariableKey sortVar = in.variable("SortVar", CV_TEXT("Sort variable"), 1, 1);
    ChoiceKey<LegendShow_e> showInLegend =
        in.choice("ShowInLegend", CV_TEXT("Show in legend"), kLegendShows, LegendShow_Always);
    VariableKey xAxisVar = in.variable("XAxisVar", CV_TEXT("X-axis variable"), 1, 1);
    VariableKey yAxisVar = in.variable("YAxisVar", CV_TEXT("Y-axis variable"), 1, 2);
    IntegerKey xAxis = in.integer("XAxis", CV_TEXT("X-axis"), 1, kAxes, 1);
    IntegerKey yAxis = in.integer("YAxis", CV_TEXT("Y-axis"), 1, kAxes, 1);
    VariableKey thetaAxisVar = in.variable("ThetaAxisVar", CV_TEXT("Theta variable"), 1, 1);
    VariableKey rAxisVar = in.variable("RAxisVar", CV_TEXT("Radius variable"), 1, 2);
    ChoiceKey<FunctionDependency_e> functionDependency =
        in.choice("FunctionDependency", CV_TEXT("Function dependency"), kFunctionDependencies,
                  FunctionDependency_YofX);
};

struct LineLines
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show lines"), true);
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Line color"), Colors::PaletteOnly);
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Line thickness"));
    ChoiceKey<LinePattern_e> linePattern =
        in.choice("LinePattern", CV_TEXT("Line pattern"), kLinePatterns, LinePattern_Solid);
    RealKey patternLength = style::patternLength(in, sizes, CV_TEXT("Line pattern length"));
};

struct LineCurves
{
    Group in;
    ChoiceKey<CurveType_e> curveType =
        in.choice("CurveType", CV_TEXT("Curve type"), kCurveTypes, CurveType_LineSegments);
    /// Which of the extended fits; choosing one makes the curve type that of extended fits.
    ChoiceKey<ExtendedFit_e> extendedFit = in.choice("ExtendedFit", CV_TEXT("Extended fit"),
                                                     kExtendedFits, ExtendedFit_SmoothingSpline);
    /// Of a smoothing spline: 0 is a straight line, 1 runs through all points.
    RealKey smoothing = in.real("Smoothing", CV_TEXT("Closeness of a smoothing spline"), 0, 1, 0.9);
    IntegerKey numPts = in.integer("NumPts", CV_TEXT("Curve points"), 2, 2000, 500);
    IntegerKey polyOrder = in.integer("PolyOrder", CV_TEXT("Polynomial order"), 1, 10, 3);
    SwitchKey useIndVarRange = in.flag("UseIndVarRange", CV_TEXT("Limit fit range"), false);
    RealKey indVarMin =
        in.real("IndVarMin", CV_TEXT("Fit range begin"), -kUnlimited, kUnlimited, 0);
    RealKey indVarMax = in.real("IndVarMax", CV_TEXT("Fit range end"), -kUnlimited, kUnlimited, 1);
    SwitchKey useWeightVar = in.flag("UseWeightVar", CV_TEXT("Weighted fit"), false);
    VariableKey weightVar = in.variable("WeightVar", CV_TEXT("Weight variable"), 1, 1);
    SwitchKey clampSpline = in.flag("ClampSpline", CV_TEXT("Clamped spline"), false);
    RealKey splineDerivativeAtStart = in.real(
        "SplineDerivativeAtStart", CV_TEXT("Spline slope at start"), -kUnlimited, kUnlimited, 0);
    RealKey splineDerivativeAtEnd = in.real("SplineDerivativeAtEnd", CV_TEXT("Spline slope at end"),
                                            -kUnlimited, kUnlimited, 0);
};

struct LineSymbols
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show symbols"), true);
    SymbolShape symbolShape {in / "SymbolShape", kGeomShapes};
    RealKey size = symbolSize(in, sizes, "Size", CV_TEXT("Symbol size"));
    ChoiceKey<SkipMode_e> skipMode =
        in.choice("SkipMode", CV_TEXT("Symbol spacing mode"), kSkipModes, SkipMode_ByIndex);
    RealKey skipping = in.real("Skipping", CV_TEXT("Symbol spacing"), 0, kLargest, 1);
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Symbol color"), Colors::PaletteOnly);
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Symbol line thickness"));
    ChoiceKey<FillMode_e> fillMode =
        in.choice("FillMode", CV_TEXT("Symbol fill mode"), kFillModes, FillMode_None);
    ColorKey fillColor =
        in.color("FillColor", CV_TEXT("Symbol fill color"), Colors::PaletteOnly, 1);
};

struct LineErrorBars
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show error bars"), false);
    VariableKey var = in.variable("Var", CV_TEXT("Error bar variable"), 0, 0);
    ChoiceKey<ErrorBar_e> barType =
        in.choice("BarType", CV_TEXT("Error bar type"), kErrorBars, ErrorBar_Vertical);
    ChoiceKey<SkipMode_e> skipMode =
        in.choice("SkipMode", CV_TEXT("Error bar spacing mode"), kSkipModes, SkipMode_ByIndex);
    RealKey skipping = in.real("Skipping", CV_TEXT("Error bar spacing"), 0, kLargest, 1);
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Error bar color"), Colors::PaletteOnly);
    RealKey size = symbolSize(in, sizes, "Size", CV_TEXT("Error bar size"));
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Error bar line thickness"));
};

struct LineBarCharts
{
    Group in;
    const BasicSize& sizes;
    SwitchKey show = in.flag("Show", CV_TEXT("Show bars"), true);
    RealKey size = symbolSize(in, sizes, "Size", CV_TEXT("Bar size"));
    ColorKey color = in.cyclingColor("Color", CV_TEXT("Bar color"), Colors::PaletteOnly);
    RealKey lineThickness = thickness(in, sizes, CV_TEXT("Bar line thickness"));
    ChoiceKey<FillMode_e> fillMode =
        in.choice("FillMode", CV_TEXT("Bar fill mode"), kFillModes, FillMode_LineColor);
    ColorKey fillColor = in.color("FillColor", CV_TEXT("Bar fill color"), Colors::PaletteOnly, 1);
};

struct LineIndices
{
    Group in;
    ChoiceKey<IJKLines_e> ijkLines =
        in.choice("IJKLines", CV_TEXT("Varying index"), kIJKLines, IJKLines_I);
    IndexRanges ranges {in};
};

struct LineMap
{
    Group in;
    const BasicSize& sizes;
    TextKey name = in.text("Name", CV_TEXT("Map name"), "&DV&");
    LineAssign assign {in / "Assign"};
    LineLines lines {in / "Lines", sizes};
    LineCurves curves {in / "Curves"};
    LineSymbols symbols {in / "Symbols", sizes};
    LineErrorBars errorBars {in / "ErrorBars", sizes};
    LineBarCharts barCharts {in / "BarCharts", sizes};
    LineIndices indices {in / "Indices"};
};

} // namespace corvala::style
