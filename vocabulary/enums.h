// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The vocabulary that the engine, the SDK and the module share: plain enumerations whose values
/// are part of the interface and of the files. No code, no dependencies.

enum PlotType_e : int {
    PlotType_None = 0,
    PlotType_Field3D = 1,
    PlotType_Field2D = 2,
    PlotType_LineXY = 3,
    PlotType_Annotation = 4, ///< a frame without data: no tables
    PlotType_LinePolar = 5
};

enum MeshType_e : int { MeshType_WireFrame = 0, MeshType_Overlay = 1, MeshType_HiddenLine = 2 };

enum LinePattern_e : int {
    LinePattern_Solid = 0,
    LinePattern_Dashed = 1,
    LinePattern_DashDot = 2,
    LinePattern_Dotted = 3,
    LinePattern_LongDash = 4,
    LinePattern_DashDotDot = 5
};

enum ContourType_e : int {
    ContourType_Lines = 0,
    ContourType_Flood = 1,
    ContourType_LinesAndFlood = 2,
    ContourType_AverageCellFlood = 3,
    ContourType_PrimaryValueFlood = 4
};

enum ContourColoring_e : int {
    ContourColoring_RGB = 0,
    ContourColoring_Group1 = 1,
    ContourColoring_Group2 = 2,
    ContourColoring_Group3 = 3,
    ContourColoring_Group4 = 4,
    ContourColoring_Group5 = 5,
    ContourColoring_Group6 = 6,
    ContourColoring_Group7 = 7,
    ContourColoring_Group8 = 8
};

enum VectorType_e : int {
    VectorType_TailAtPoint = 0,
    VectorType_HeadAtPoint = 1,
    VectorType_AnchorAtMidpoint = 2,
    VectorType_HeadOnly = 3
};

enum ArrowheadStyle_e : int {
    ArrowheadStyle_Plain = 0,
    ArrowheadStyle_Filled = 1,
    ArrowheadStyle_Hollow = 2
};

enum GeomShape_e : int {
    GeomShape_Square = 0,
    GeomShape_Delta = 1,
    GeomShape_Gradient = 2,
    GeomShape_RightTriangle = 3,
    GeomShape_LeftTriangle = 4,
    GeomShape_Diamond = 5,
    GeomShape_Circle = 6,
    GeomShape_Cube = 7,
    GeomShape_Sphere = 8,
    GeomShape_Octahedron = 9,
    GeomShape_Point = 10,
    GeomShape_PieChart = 11,
    GeomShape_LineArt = 12,
    GeomShape_Character = 255
};

enum FontOverride_e : int {
    FontOverride_None = 0,
    FontOverride_Greek = 1,
    FontOverride_Math = 2,
    FontOverride_User = 3
};

enum FillMode_e : int {
    FillMode_None = 0,
    FillMode_SpecificColor = 1,
    FillMode_LineColor = 2,
    FillMode_BackgroundColor = 3
};

enum EdgeType_e : int {
    EdgeType_Borders = 0,
    EdgeType_Creases = 1,
    EdgeType_BordersAndCreases = 2
};

enum BorderLocation_e : int {
    BorderLocation_None = 0,
    BorderLocation_MinOnly = 1,
    BorderLocation_MaxOnly = 2,
    BorderLocation_Both = 3
};

enum PointsToPlot_e : int {
    PointsToPlot_SurfaceNodes = 0,
    PointsToPlot_AllNodes = 1,
    PointsToPlot_SurfaceCellCenters = 2,
    PointsToPlot_AllCellCenters = 3,
    PointsToPlot_AllConnectedNodes = 4
};

enum SurfacesToPlot_e : int {
    SurfacesToPlot_BoundaryCellFaces = 0,
    SurfacesToPlot_ExposedCellFaces = 1,
    SurfacesToPlot_IPlanes = 2,
    SurfacesToPlot_JPlanes = 3,
    SurfacesToPlot_KPlanes = 4,
    SurfacesToPlot_IJPlanes = 5,
    SurfacesToPlot_JKPlanes = 6,
    SurfacesToPlot_IKPlanes = 7,
    SurfacesToPlot_IJKPlanes = 8,
    SurfacesToPlot_All = 9,
    SurfacesToPlot_None = 10
};

enum ColorMap_e : int {
    ColorMap_Viridis = 0,
    ColorMap_Plasma = 1,
    ColorMap_Inferno = 2,
    ColorMap_Magma = 3,
    ColorMap_Cividis = 4,
    ColorMap_Turbo = 5,
    ColorMap_Rainbow = 6,
    ColorMap_CoolToWarm = 7,
    ColorMap_BlueWhiteRed = 8,
    ColorMap_BlackBody = 9,
    ColorMap_Gray = 10,
    ColorMap_Terrain = 11
};

/// Which cells a blanking constraint takes away, by the points at which it holds.
enum BlankedCells_e : int {
    BlankedCells_AllPoints = 0,
    BlankedCells_AnyPoint = 1,
    BlankedCells_FirstPoint = 2,
    BlankedCells_PreciseCut = 3 ///< cells are cut where the constraint begins to hold
};

enum Relation_e : int {
    Relation_LessOrEqual = 0,
    Relation_GreaterOrEqual = 1,
    Relation_Less = 2,
    Relation_Greater = 3,
    Relation_Equal = 4,
    Relation_NotEqual = 5
};

enum ComparedWith_e : int { ComparedWith_Constant = 0, ComparedWith_Variable = 1 };

enum SlicePlane_e : int {
    SlicePlane_X = 0,
    SlicePlane_Y = 1,
    SlicePlane_Z = 2,
    SlicePlane_I = 3,
    SlicePlane_J = 4,
    SlicePlane_K = 5
};

enum StreamDirection_e : int {
    StreamDirection_Forward = 0,
    StreamDirection_Backward = 1,
    StreamDirection_Both = 2
};

enum LightingEffect_e : int { LightingEffect_Paneled = 0, LightingEffect_Gouraud = 1 };

enum LegendShow_e : int { LegendShow_Always = 0, LegendShow_Never = 1, LegendShow_Auto = 2 };

enum LineMapSort_e : int {
    LineMapSort_None = 0,
    LineMapSort_ByIndependentVar = 1,
    LineMapSort_ByDependentVar = 2,
    LineMapSort_BySpecificVar = 3
};

enum FunctionDependency_e : int {
    FunctionDependency_YofX = 0, ///< on a polar plot: radius of theta
    FunctionDependency_XofY = 1 ///< on a polar plot: theta of radius
};

enum CurveType_e : int {
    CurveType_LineSegments = 0,
    CurveType_PolynomialFit = 1,
    CurveType_ExponentialFit = 2,
    CurveType_PowerFit = 3,
    CurveType_Spline = 4,
    CurveType_ParametricSpline = 5,
    CurveType_Extended = 6
};

enum ExtendedFit_e : int { ExtendedFit_SmoothingSpline = 0, ExtendedFit_Gaussian = 1 };

enum AxisScale_e : int { AxisScale_Linear = 0, AxisScale_Logarithmic = 1 };

enum AxisSide_e : int { AxisSide_InTurn = 0, AxisSide_BelowOrLeft = 1, AxisSide_AboveOrRight = 2 };

enum PolarStart_e : int {
    PolarStart_Right = 0,
    PolarStart_Above = 1,
    PolarStart_Left = 2,
    PolarStart_Below = 3
};

enum SkipMode_e : int { SkipMode_ByIndex = 0, SkipMode_ByDistance = 1 };

enum ErrorBar_e : int {
    ErrorBar_Up = 0,
    ErrorBar_Down = 1,
    ErrorBar_Left = 2,
    ErrorBar_Right = 3,
    ErrorBar_Horizontal = 4,
    ErrorBar_Vertical = 5,
    ErrorBar_Cross = 6
};

enum IJKLines_e : int { IJKLines_I = 0, IJKLines_J = 1, IJKLines_K = 2 };

/// Result of a style write. Anything above StyleWrite_Unchanged left the document as it was.
enum StyleWriteResult_e : int {
    StyleWrite_Ok = 0,
    StyleWrite_Unchanged = 1, ///< every addressed object already had the value
    StyleWrite_NoDocument = 2, ///< no frame, or no data set where the path needs one
    StyleWrite_UnknownPath = 3,
    StyleWrite_NotALeaf = 4, ///< the path names a group
    StyleWrite_WrongType = 5, ///< the value cannot be converted to the leaf's type
    StyleWrite_OutOfRange = 6,
    StyleWrite_BadObjects = 7, ///< an empty set, or a member that is not an existing map
    StyleWrite_BadOperator = 8 ///< an assignment operator that the leaf does not know
};

/// How a set-valued style value takes a set; AssignOp_None assigns.
enum AssignOp_e : int { AssignOp_Add = 1, AssignOp_Remove = 2, AssignOp_None = 255 };

enum UndoKind_e : int { UndoKind_LineMapsDeleted = 6, UndoKind_StyleGroup = 11 };

enum PickType_e : int {
    PickType_Axis = 3,
    PickType_Text = 4,
    PickType_Geometry = 5,
    PickType_Zone = 15,
    PickType_LineMap = 21
};

enum FieldMapMode_e : int {
    FieldMapMode_Strand = 0, ///< the zone is only the present candidate of a time strand
    FieldMapMode_Static = 1
};

enum ImplicitMacroRecording_e : int { ImplicitMacroRecording_None = 0 };

enum ContourLevelsInitializationMode_e : int {
    ContourLevelsInitializationMode_KeepLevels = 0,
    ContourLevelsInitializationMode_ResetLevels = 1,
    ContourLevelsInitializationMode_ResetIfVariableIsNew = 2
};

/// Codes of state-change events.
enum StateCode_e : int {
    StateCode_DocumentCleared = 0,
    StateCode_DocumentLoaded = 1,
    StateCode_FieldMapListChanged = 2,
    StateCode_LineMapListChanged = 3,
    StateCode_DataSetAttached = 5,
    StateCode_Style = 7, ///< parameters: the names of the path
    StateCode_DataSetDetached = 8,
    StateCode_ZonesAdded = 9,
    StateCode_ZonesRemoved = 10,
    StateCode_VariableListChanged = 11,
    StateCode_ZoneRenamed = 14,
    StateCode_VariableRenamed = 16,
    StateCode_LineMapRenamed = 17,
    StateCode_DataValuesChanged = 19,
    StateCode_ContourGroupChanged = 21,
    StateCode_ColorTableChanged = 22,
    StateCode_SolutionTimeChanged = 29,
    StateCode_UndoApplied = 44,
    StateCode_FrameListChanged = 50,
    StateCode_ActiveFrameChanged = 51,
    StateCode_RedoApplied = 56,
    StateCode_View = 100,
    StateCode_PickList = 101,
    StateCode_Lock = 102
};
