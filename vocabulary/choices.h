// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/enums.h"

#include <cstddef>

/// Marks an English text that is shown translated, in the translation context "StyleValues".
#define CV_TEXT(text) text

namespace corvala::style {

/// One value of an enumeration and its name.
struct Choice
{
    int value;
    const char* name; ///< English, in the translation context "StyleValues"
};

/// Some values of one enumeration, in the order in which they are offered. A view of a static
/// array.
class Choices
{
public:
    constexpr Choices() = default;
    template<std::size_t N>
    constexpr Choices(const Choice (&choices)[N]) // implicit: a table is its array
        : m_begin(choices)
        , m_end(choices + N)
    {
    }

    constexpr const Choice* begin() const { return m_begin; }
    constexpr const Choice* end() const { return m_end; }
    constexpr bool isEmpty() const { return m_begin == m_end; }
    constexpr std::size_t size() const { return static_cast<std::size_t>(m_end - m_begin); }

    /// The first `count` choices, which must exist: what is offered when later values are not.
    constexpr Choices first(std::size_t count) const { return {m_begin, m_begin + count}; }

    /// Untranslated; null for a value without a name.
    constexpr const char* nameOf(int value) const
    {
        for (const Choice& choice : *this)
            if (choice.value == value)
                return choice.name;
        return nullptr;
    }
    constexpr bool contains(int value) const { return nameOf(value) != nullptr; }

private:
    constexpr Choices(const Choice* begin, const Choice* end)
        : m_begin(begin)
        , m_end(end)
    {
    }

    const Choice* m_begin = nullptr;
    const Choice* m_end = nullptr;
};

inline constexpr Choice kPlotTypes[] = {
    {PlotType_None, CV_TEXT("None")},
    {PlotType_Field3D, CV_TEXT("3D field")},
    {PlotType_Field2D, CV_TEXT("2D field")},
    {PlotType_LineXY, CV_TEXT("XY line")},
    {PlotType_Annotation, CV_TEXT("Annotation")},
    {PlotType_LinePolar, CV_TEXT("Polar line")},
};

inline constexpr Choice kMeshTypes[] = {
    {MeshType_WireFrame, CV_TEXT("Wire frame")},
    {MeshType_Overlay, CV_TEXT("Overlay")},
    {MeshType_HiddenLine, CV_TEXT("Hidden line")},
};

inline constexpr Choice kLinePatterns[] = {
    {LinePattern_Solid, CV_TEXT("Solid")},        {LinePattern_Dashed, CV_TEXT("Dashed")},
    {LinePattern_DashDot, CV_TEXT("Dash dot")},   {LinePattern_Dotted, CV_TEXT("Dotted")},
    {LinePattern_LongDash, CV_TEXT("Long dash")}, {LinePattern_DashDotDot, CV_TEXT("Dash dot dot")},
};

inline constexpr Choice kContourTypes[] = {
    {ContourType_Lines, CV_TEXT("Lines")},
    {ContourType_Flood, CV_TEXT("Flood")},
    {ContourType_LinesAndFlood, CV_TEXT("Lines and flood")},
    {ContourType_AverageCellFlood, CV_TEXT("Average cell flood")},
    {ContourType_PrimaryValueFlood, CV_TEXT("Primary value flood")},
};

inline constexpr Choice kContourColorings[] = {
    {ContourColoring_RGB, CV_TEXT("RGB")}, {ContourColoring_Group1, "C1"},
    {ContourColoring_Group2, "C2"},        {ContourColoring_Group3, "C3"},
    {ContourColoring_Group4, "C4"},        {ContourColoring_Group5, "C5"},
    {ContourColoring_Group6, "C6"},        {ContourColoring_Group7, "C7"},
    {ContourColoring_Group8, "C8"},
};

inline constexpr Choice kVectorTypes[] = {
    {VectorType_TailAtPoint, CV_TEXT("Tail at point")},
    {VectorType_HeadAtPoint, CV_TEXT("Head at point")},
    {VectorType_AnchorAtMidpoint, CV_TEXT("Anchor at midpoint")},
    {VectorType_HeadOnly, CV_TEXT("Head only")},
};

inline constexpr Choice kArrowheadStyles[] = {
    {ArrowheadStyle_Plain, CV_TEXT("Plain")},
    {ArrowheadStyle_Filled, CV_TEXT("Filled")},
    {ArrowheadStyle_Hollow, CV_TEXT("Hollow")},
};

inline constexpr Choice kGeomShapes[] = {
    {GeomShape_Square, CV_TEXT("Square")},
    {GeomShape_Delta, CV_TEXT("Delta")},
    {GeomShape_Gradient, CV_TEXT("Gradient")},
    {GeomShape_RightTriangle, CV_TEXT("Right triangle")},
    {GeomShape_LeftTriangle, CV_TEXT("Left triangle")},
    {GeomShape_Diamond, CV_TEXT("Diamond")},
    {GeomShape_Circle, CV_TEXT("Circle")},
    {GeomShape_Cube, CV_TEXT("Cube")},
    {GeomShape_Sphere, CV_TEXT("Sphere")},
    {GeomShape_Octahedron, CV_TEXT("Octahedron")},
    {GeomShape_Point, CV_TEXT("Point")},
    {GeomShape_PieChart, CV_TEXT("PieChart")},
    {GeomShape_LineArt, CV_TEXT("LineArt")},
    {GeomShape_Character, CV_TEXT("Character")},
};
/// A scatter symbol becomes a character by its character alone.
inline constexpr Choices kScatterShapes = Choices(kGeomShapes).first(13);

inline constexpr Choice kFontOverrides[] = {
    {FontOverride_None, CV_TEXT("None")},
    {FontOverride_Greek, CV_TEXT("Greek")},
    {FontOverride_Math, CV_TEXT("Math")},
    {FontOverride_User, CV_TEXT("User")},
};

inline constexpr Choice kFillModes[] = {
    {FillMode_None, CV_TEXT("None")},
    {FillMode_SpecificColor, CV_TEXT("Specific color")},
    {FillMode_LineColor, CV_TEXT("Line color")},
    {FillMode_BackgroundColor, CV_TEXT("Background color")},
};

inline constexpr Choice kEdgeTypes[] = {
    {EdgeType_Borders, CV_TEXT("Borders")},
    {EdgeType_Creases, CV_TEXT("Creases")},
    {EdgeType_BordersAndCreases, CV_TEXT("Borders and creases")},
};

inline constexpr Choice kBorderLocations[] = {
    {BorderLocation_None, CV_TEXT("None")},
    {BorderLocation_MinOnly, CV_TEXT("Min only")},
    {BorderLocation_MaxOnly, CV_TEXT("Max only")},
    {BorderLocation_Both, CV_TEXT("Both")},
};

inline constexpr Choice kPointsToPlot[] = {
    {PointsToPlot_SurfaceNodes, CV_TEXT("Surface nodes")},
    {PointsToPlot_AllNodes, CV_TEXT("All nodes")},
    {PointsToPlot_SurfaceCellCenters, CV_TEXT("Surface cell centers")},
    {PointsToPlot_AllCellCenters, CV_TEXT("All cell centers")},
    {PointsToPlot_AllConnectedNodes, CV_TEXT("All connected nodes")},
};

// Deliberate: offered with "None" first, so that the position in a list is not the value.
inline constexpr Choice kSurfacesToPlot[] = {
    {SurfacesToPlot_None, CV_TEXT("None")},
    {SurfacesToPlot_BoundaryCellFaces, CV_TEXT("Boundary cell faces")},
    {SurfacesToPlot_ExposedCellFaces, CV_TEXT("Exposed cell faces")},
    {SurfacesToPlot_IPlanes, CV_TEXT("I-Planes")},
    {SurfacesToPlot_JPlanes, CV_TEXT("J-Planes")},
    {SurfacesToPlot_KPlanes, CV_TEXT("K-Planes")},
    {SurfacesToPlot_IJPlanes, CV_TEXT("IJ-Planes")},
    {SurfacesToPlot_JKPlanes, CV_TEXT("JK-Planes")},
    {SurfacesToPlot_IKPlanes, CV_TEXT("IK-Planes")},
    {SurfacesToPlot_IJKPlanes, CV_TEXT("IJK-Planes")},
    {SurfacesToPlot_All, CV_TEXT("All surfaces")},
};

inline constexpr Choice kLightingEffects[] = {
    {LightingEffect_Paneled, CV_TEXT("Paneled")},
    {LightingEffect_Gouraud, CV_TEXT("Gouraud")},
};

inline constexpr Choice kColorMaps[] = {
    {ColorMap_Viridis, CV_TEXT("Viridis")},
    {ColorMap_Plasma, CV_TEXT("Plasma")},
    {ColorMap_Inferno, CV_TEXT("Inferno")},
    {ColorMap_Magma, CV_TEXT("Magma")},
    {ColorMap_Cividis, CV_TEXT("Cividis")},
    {ColorMap_Turbo, CV_TEXT("Turbo")},
    {ColorMap_Rainbow, CV_TEXT("Rainbow")},
    {ColorMap_CoolToWarm, CV_TEXT("Cool to warm")},
    {ColorMap_BlueWhiteRed, CV_TEXT("Blue, white, red")},
    {ColorMap_BlackBody, CV_TEXT("Black body")},
    {ColorMap_Gray, CV_TEXT("Gray")},
    {ColorMap_Terrain, CV_TEXT("Terrain")},
};

inline constexpr Choice kBlankedCells[] = {
    {BlankedCells_AllPoints, CV_TEXT("Cells at all of whose points it holds")},
    {BlankedCells_AnyPoint, CV_TEXT("Cells at any of whose points it holds")},
    {BlankedCells_FirstPoint, CV_TEXT("Cells at whose first point it holds")},
    {BlankedCells_PreciseCut, CV_TEXT("Precise cut")},
};

inline constexpr Choice kRelations[] = {
    {Relation_LessOrEqual, CV_TEXT("at most")}, {Relation_GreaterOrEqual, CV_TEXT("at least")},
    {Relation_Less, CV_TEXT("less than")},      {Relation_Greater, CV_TEXT("greater than")},
    {Relation_Equal, CV_TEXT("equal to")},      {Relation_NotEqual, CV_TEXT("not equal to")},
};

inline constexpr Choice kComparedWith[] = {
    {ComparedWith_Constant, CV_TEXT("Constant")},
    {ComparedWith_Variable, CV_TEXT("Variable")},
};

inline constexpr Choice kSlicePlanes[] = {
    {SlicePlane_X, CV_TEXT("X")}, {SlicePlane_Y, CV_TEXT("Y")}, {SlicePlane_Z, CV_TEXT("Z")},
    {SlicePlane_I, CV_TEXT("I")}, {SlicePlane_J, CV_TEXT("J")}, {SlicePlane_K, CV_TEXT("K")},
};

inline constexpr Choice kStreamDirections[] = {
    {StreamDirection_Forward, CV_TEXT("Forward")},
    {StreamDirection_Backward, CV_TEXT("Backward")},
    {StreamDirection_Both, CV_TEXT("Both")},
};

inline constexpr Choice kLegendShows[] = {
    {LegendShow_Always, CV_TEXT("Always")},
    {LegendShow_Never, CV_TEXT("Never")},
    {LegendShow_Auto, CV_TEXT("Auto")},
};

inline constexpr Choice kLineMapSorts[] = {
    {LineMapSort_None, CV_TEXT("None")},
    {LineMapSort_ByIndependentVar, CV_TEXT("By independent variable")},
    {LineMapSort_ByDependentVar, CV_TEXT("By dependent variable")},
    {LineMapSort_BySpecificVar, CV_TEXT("By specific variable")},
};

inline constexpr Choice kFunctionDependencies[] = {
    {FunctionDependency_YofX, CV_TEXT("y=f(x)")},
    {FunctionDependency_XofY, CV_TEXT("x=f(y)")},
};

inline constexpr Choice kCurveTypes[] = {
    {CurveType_LineSegments, CV_TEXT("Line segments")},
    {CurveType_PolynomialFit, CV_TEXT("Polynomial fit")},
    {CurveType_ExponentialFit, CV_TEXT("Exponential fit")},
    {CurveType_PowerFit, CV_TEXT("Power fit")},
    {CurveType_Spline, CV_TEXT("Spline")},
    {CurveType_ParametricSpline, CV_TEXT("Parametric spline")},
    {CurveType_Extended, CV_TEXT("Extended fit")},
};

inline constexpr Choice kExtendedFits[] = {
    {ExtendedFit_SmoothingSpline, CV_TEXT("Smoothing spline")},
    {ExtendedFit_Gaussian, CV_TEXT("Gaussian")},
};

inline constexpr Choice kSkipModes[] = {
    {SkipMode_ByIndex, CV_TEXT("By index")},
    {SkipMode_ByDistance, CV_TEXT("By distance")},
};

inline constexpr Choice kErrorBars[] = {
    {ErrorBar_Up, CV_TEXT("Up")},
    {ErrorBar_Down, CV_TEXT("Down")},
    {ErrorBar_Left, CV_TEXT("Left")},
    {ErrorBar_Right, CV_TEXT("Right")},
    {ErrorBar_Horizontal, CV_TEXT("Horizontal")},
    {ErrorBar_Vertical, CV_TEXT("Vertical")},
    {ErrorBar_Cross, CV_TEXT("Cross")},
};

inline constexpr Choice kIJKLines[] = {
    {IJKLines_I, CV_TEXT("I-Varying")},
    {IJKLines_J, CV_TEXT("J-Varying")},
    {IJKLines_K, CV_TEXT("K-Varying")},
};

inline constexpr Choice kAxisScales[] = {
    {AxisScale_Linear, CV_TEXT("Linear")},
    {AxisScale_Logarithmic, CV_TEXT("Logarithmic")},
};

inline constexpr Choice kAxisSides[] = {
    {AxisSide_InTurn, CV_TEXT("In turn")},
    {AxisSide_BelowOrLeft, CV_TEXT("Below or left")},
    {AxisSide_AboveOrRight, CV_TEXT("Above or right")},
};

inline constexpr Choice kPolarStarts[] = {
    {PolarStart_Right, CV_TEXT("To the right")},
    {PolarStart_Above, CV_TEXT("Above")},
    {PolarStart_Left, CV_TEXT("To the left")},
    {PolarStart_Below, CV_TEXT("Below")},
};

} // namespace corvala::style
