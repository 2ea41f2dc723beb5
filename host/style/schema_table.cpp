// SPDX-License-Identifier: BSD-3-Clause
#include "host/style/schema_table.h"

#include "sdk/base/enums.h"

#include <QtGlobal>

namespace corvala::host {

namespace {

constexpr double kLargest = 2147483647.0;
constexpr double kUnlimited = 1e300;

#define CV_NAME(text) QT_TRANSLATE_NOOP("StyleValues", text)

constexpr EnumeratorName kPlotTypes[] = {{PlotType_None, CV_NAME("None")},
                                         {PlotType_Field3D, CV_NAME("3D field")},
                                         {PlotType_Field2D, CV_NAME("2D field")},
                                         {PlotType_LineXY, CV_NAME("XY line")},
                                         {PlotType_Annotation, CV_NAME("Annotation")},
                                         {PlotType_LinePolar, CV_NAME("Polar line")},
                                         {0, nullptr}};
constexpr EnumeratorName kMeshTypes[] = {
    {0, CV_NAME("Wire frame")}, {1, CV_NAME("Overlay")}, {2, CV_NAME("Hidden line")}, {0, nullptr}};
constexpr EnumeratorName kLinePatterns[] = {{0, CV_NAME("Solid")},
                                            {1, CV_NAME("Dashed")},
                                            {2, CV_NAME("Dash dot")},
                                            {3, CV_NAME("Dotted")},
                                            {4, CV_NAME("Long dash")},
                                            {5, CV_NAME("Dash dot dot")},
                                            {0, nullptr}};
constexpr EnumeratorName kContourTypes[] = {{0, CV_NAME("Lines")},
                                            {1, CV_NAME("Flood")},
                                            {2, CV_NAME("Lines and flood")},
                                            {3, CV_NAME("Average cell flood")},
                                            {4, CV_NAME("Primary value flood")},
                                            {0, nullptr}};
constexpr EnumeratorName kContourColorings[] = {
    {0, CV_NAME("RGB")}, {1, "C1"}, {2, "C2"}, {3, "C3"}, {4, "C4"},
    {5, "C5"},           {6, "C6"}, {7, "C7"}, {8, "C8"}, {0, nullptr}};
constexpr EnumeratorName kVectorTypes[] = {{0, CV_NAME("Tail at point")},
                                           {1, CV_NAME("Head at point")},
                                           {2, CV_NAME("Anchor at midpoint")},
                                           {3, CV_NAME("Head only")},
                                           {0, nullptr}};
constexpr EnumeratorName kArrowheads[] = {
    {0, CV_NAME("Plain")}, {1, CV_NAME("Filled")}, {2, CV_NAME("Hollow")}, {0, nullptr}};
constexpr EnumeratorName kScatterShapes[] = {
    {0, CV_NAME("Square")},        {1, CV_NAME("Delta")},
    {2, CV_NAME("Gradient")},      {3, CV_NAME("Right triangle")},
    {4, CV_NAME("Left triangle")}, {5, CV_NAME("Diamond")},
    {6, CV_NAME("Circle")},        {7, CV_NAME("Cube")},
    {8, CV_NAME("Sphere")},        {9, CV_NAME("Octahedron")},
    {10, CV_NAME("Point")},        {11, CV_NAME("PieChart")},
    {12, CV_NAME("LineArt")},      {0, nullptr}};
constexpr EnumeratorName kLineShapes[] = {
    {0, CV_NAME("Square")},         {1, CV_NAME("Delta")},         {2, CV_NAME("Gradient")},
    {3, CV_NAME("Right triangle")}, {4, CV_NAME("Left triangle")}, {5, CV_NAME("Diamond")},
    {6, CV_NAME("Circle")},         {7, CV_NAME("Cube")},          {8, CV_NAME("Sphere")},
    {9, CV_NAME("Octahedron")},     {10, CV_NAME("Point")},        {11, CV_NAME("PieChart")},
    {12, CV_NAME("LineArt")},       {255, CV_NAME("Character")},   {0, nullptr}};
constexpr EnumeratorName kFontOverrides[] = {{0, CV_NAME("None")},
                                             {1, CV_NAME("Greek")},
                                             {2, CV_NAME("Math")},
                                             {3, CV_NAME("User")},
                                             {0, nullptr}};
constexpr EnumeratorName kFillModes[] = {{0, CV_NAME("None")},
                                         {1, CV_NAME("Specific color")},
                                         {2, CV_NAME("Line color")},
                                         {3, CV_NAME("Background color")},
                                         {0, nullptr}};
constexpr EnumeratorName kEdgeTypes[] = {{0, CV_NAME("Borders")},
                                         {1, CV_NAME("Creases")},
                                         {2, CV_NAME("Borders and creases")},
                                         {0, nullptr}};
constexpr EnumeratorName kBorderLocations[] = {{0, CV_NAME("None")},
                                               {1, CV_NAME("Min only")},
                                               {2, CV_NAME("Max only")},
                                               {3, CV_NAME("Both")},
                                               {0, nullptr}};
constexpr EnumeratorName kPointsToPlot[] = {
    {0, CV_NAME("Surface nodes")},        {1, CV_NAME("All nodes")},
    {2, CV_NAME("Surface cell centers")}, {3, CV_NAME("All cell centers")},
    {4, CV_NAME("All connected nodes")},  {0, nullptr}};
constexpr EnumeratorName kSurfacesToPlot[] = {{10, CV_NAME("None")},
                                              {0, CV_NAME("Boundary cell faces")},
                                              {1, CV_NAME("Exposed cell faces")},
                                              {2, CV_NAME("I-Planes")},
                                              {3, CV_NAME("J-Planes")},
                                              {4, CV_NAME("K-Planes")},
                                              {5, CV_NAME("IJ-Planes")},
                                              {6, CV_NAME("JK-Planes")},
                                              {7, CV_NAME("IK-Planes")},
                                              {8, CV_NAME("IJK-Planes")},
                                              {9, CV_NAME("All surfaces")},
                                              {0, nullptr}};
constexpr EnumeratorName kLightingEffects[] = {
    {0, CV_NAME("Paneled")}, {1, CV_NAME("Gouraud")}, {0, nullptr}};
constexpr EnumeratorName kLegendShows[] = {
    {0, CV_NAME("Always")}, {1, CV_NAME("Never")}, {2, CV_NAME("Auto")}, {0, nullptr}};
constexpr EnumeratorName kSorts[] = {{0, CV_NAME("None")},
                                     {1, CV_NAME("By independent variable")},
                                     {2, CV_NAME("By dependent variable")},
                                     {3, CV_NAME("By specific variable")},
                                     {0, nullptr}};
constexpr EnumeratorName kDependencies[] = {
    {0, CV_NAME("y=f(x)")}, {1, CV_NAME("x=f(y)")}, {0, nullptr}};
constexpr EnumeratorName kCurveTypes[] = {
    {0, CV_NAME("Line segments")},   {1, CV_NAME("Polynomial fit")},
    {2, CV_NAME("Exponential fit")}, {3, CV_NAME("Power fit")},
    {4, CV_NAME("Spline")},          {5, CV_NAME("Parametric spline")},
    {6, CV_NAME("Extended fit")},    {0, nullptr}};
constexpr EnumeratorName kSkipModes[] = {
    {0, CV_NAME("By index")}, {1, CV_NAME("By distance")}, {0, nullptr}};
constexpr EnumeratorName kErrorBars[] = {{0, CV_NAME("Up")},         {1, CV_NAME("Down")},
                                         {2, CV_NAME("Left")},       {3, CV_NAME("Right")},
                                         {4, CV_NAME("Horizontal")}, {5, CV_NAME("Vertical")},
                                         {6, CV_NAME("Cross")},      {0, nullptr}};
constexpr EnumeratorName kIJKLines[] = {
    {0, CV_NAME("I-Varying")}, {1, CV_NAME("J-Varying")}, {2, CV_NAME("K-Varying")}, {0, nullptr}};

std::vector<std::string> splitPath(const char* path)
{
    std::vector<std::string> names(1);
    for (; *path; ++path) {
        if (*path == '/')
            names.emplace_back();
        else
            names.back() += *path;
    }
    return names;
}

Scope scopeOf(const std::string& firstName)
{
    if (firstName == "FieldMap")
        return Scope::FieldMap;
    if (firstName == "LineMap")
        return Scope::LineMap;
    return firstName == "BasicSize" ? Scope::Document : Scope::Frame;
}

Attribute leaf(const char* path, const char* label, ValueType type, double minimum, double maximum,
               double fallback)
{
    Attribute attribute;
    attribute.names = splitPath(path);
    attribute.scope = scopeOf(attribute.names.front());
    attribute.type = type;
    attribute.label = label;
    attribute.minimum = minimum;
    attribute.maximum = maximum;
    attribute.defaultNumber = fallback;
    return attribute;
}

Attribute flag(const char* path, const char* label, bool fallback)
{
    return leaf(path, label, ValueType::Bool, 0, 1, fallback ? 1 : 0);
}

Attribute choice(const char* path, const char* label, const EnumeratorName* names, int fallback)
{
    Attribute attribute = leaf(path, label, ValueType::Enumeration, 0, 0, fallback);
    attribute.enumerators = names;
    return attribute;
}

Attribute integer(const char* path, const char* label, double minimum, double maximum, int fallback)
{
    return leaf(path, label, ValueType::Integer, minimum, maximum, fallback);
}

Attribute real(const char* path, const char* label, double minimum, double maximum, double fallback)
{
    return leaf(path, label, ValueType::Real, minimum, maximum, fallback);
}

Attribute percent(const char* path, const char* label, double minimum, double maximum,
                  double fallback)
{
    Attribute attribute = real(path, label, minimum, maximum, fallback);
    attribute.isPercent = true;
    return attribute;
}

Attribute patternLength(const char* path, const char* label)
{
    return percent(path, label, 0.01, 100, 2);
}

Attribute thickness(const char* path, const char* label, double fallback = 0.15)
{
    return percent(path, label, 0.0001, 100, fallback);
}

Attribute symbolSize(const char* path, const char* label)
{
    return percent(path, label, 0, 100, 2);
}

enum class ColorChoice { PaletteOnly, WithGroups };

Attribute color(const char* path, const char* label, ColorChoice colorChoice, int fallback)
{
    Attribute attribute = leaf(path, label, ValueType::Color, 0, 109, fallback);
    attribute.groupColors = colorChoice == ColorChoice::WithGroups;
    return attribute;
}

Attribute cyclingColor(const char* path, const char* label, ColorChoice colorChoice)
{
    Attribute attribute = color(path, label, colorChoice, 0);
    attribute.rule = DefaultRule::CyclingColor;
    return attribute;
}

Attribute text(const char* path, const char* label, const char* fallback)
{
    Attribute attribute = leaf(path, label, ValueType::Text, 0, 0, 0);
    attribute.defaultText = fallback;
    return attribute;
}

Attribute character(const char* path, const char* label)
{
    Attribute attribute = text(path, label, "A");
    attribute.maximum = 1; // characters
    return attribute;
}

Attribute variable(const char* path, const char* label, int minimum, int fallback)
{
    return leaf(path, label, ValueType::Variable, minimum, kLargest, fallback);
}

Attribute zoneNumber(const char* path, const char* label)
{
    return leaf(path, label, ValueType::Zone, 1, kLargest, 1);
}

Attribute mapSet(const char* path, const char* label)
{
    return leaf(path, label, ValueType::Maps, 0, 0, 0);
}

Attribute indexed(Attribute attribute, int count)
{
    attribute.indexCount = count;
    return attribute;
}

Attribute surfaces(Attribute attribute)
{
    attribute.rule = DefaultRule::NoSurfacesForVolumes;
    return attribute;
}

std::vector<Attribute> documentAttributes()
{
    struct Preset
    {
        const char* list;
        const char* label;
        double minimum;
        double values[5];
    };
    static constexpr Preset kPresets[] = {
        {"LinePatLengths", CV_NAME("Preset pattern length"), 0.01, {0.5, 1, 2, 4, 8}},
        {"LineThicknesses", CV_NAME("Preset line thickness"), 0.0001, {0.05, 0.15, 0.3, 0.6, 1.2}},
        {"SymbolSizes", CV_NAME("Preset symbol size"), 0, {0.5, 1, 2, 3, 5}}};
    static constexpr const char* kSizes[] = {"Tiny", "Small", "Medium", "Large", "Huge"};

    std::vector<Attribute> rows;
    for (const Preset& preset : kPresets) {
        for (int i = 0; i < 5; ++i) {
            const std::string path = std::string("BasicSize/") + preset.list + '/' + kSizes[i];
            rows.push_back(
                percent(path.c_str(), preset.label, preset.minimum, 100, preset.values[i]));
        }
    }
    return rows;
}

std::vector<Attribute> frameAttributes()
{
    return {
        choice("PlotType", CV_NAME("Plot type"), kPlotTypes, PlotType_Field2D),
        mapSet("ActiveFieldMaps", CV_NAME("Active field maps")),
        mapSet("ActiveFieldZones", CV_NAME("Active zones")),
        mapSet("ActiveLineMaps", CV_NAME("Active line maps")),
        flag("FieldLayers/ShowMesh", CV_NAME("Mesh layer"), true),
        flag("FieldLayers/ShowContour", CV_NAME("Contour layer"), false),
        flag("FieldLayers/ShowVector", CV_NAME("Vector layer"), false),
        flag("FieldLayers/ShowScatter", CV_NAME("Scatter layer"), false),
        flag("FieldLayers/ShowShade", CV_NAME("Shade layer"), false),
        flag("FieldLayers/ShowEdge", CV_NAME("Edge layer"), true),
        flag("FieldLayers/UseLightingEffect", CV_NAME("Lighting"), false),
        flag("FieldLayers/UseTranslucency", CV_NAME("Translucency"), false),
        flag("LinePlotLayers/ShowLines", CV_NAME("Lines layer"), true),
        flag("LinePlotLayers/ShowSymbols", CV_NAME("Symbols layer"), false),
        flag("LinePlotLayers/ShowErrorBars", CV_NAME("Error bars layer"), false),
        flag("LinePlotLayers/ShowBarCharts", CV_NAME("Bar charts layer"), false),
        variable("GlobalScatter/Var", CV_NAME("Scatter size variable"), 0, 0),
        variable("GlobalRGB/RedVar", CV_NAME("Red channel variable"), 0, 0),
        variable("GlobalRGB/GreenVar", CV_NAME("Green channel variable"), 0, 0),
        variable("GlobalRGB/BlueVar", CV_NAME("Blue channel variable"), 0, 0),
        variable("GlobalVector/UVar", CV_NAME("U variable"), 0, 0),
        variable("GlobalVector/VVar", CV_NAME("V variable"), 0, 0),
        variable("GlobalVector/WVar", CV_NAME("W variable"), 0, 0),
        indexed(variable("ContourGroups/Var", CV_NAME("Contour variable"), 0, 0), 8),
        flag("Blanking/Value/Include", CV_NAME("Value blanking"), false),
        indexed(flag("Blanking/Value/Constraint/Include", CV_NAME("Blanking constraint"), false),
                8),
    };
}

std::vector<Attribute> fieldMapAttributes()
{
    constexpr auto groups = ColorChoice::WithGroups;
    constexpr auto palette = ColorChoice::PaletteOnly;
    return {
        integer("FieldMap/Group", CV_NAME("Group number"), 1, kLargest, 1),
        flag("FieldMap/Mesh/Show", CV_NAME("Show mesh"), true),
        choice("FieldMap/Mesh/MeshType", CV_NAME("Mesh type"), kMeshTypes, 1),
        cyclingColor("FieldMap/Mesh/Color", CV_NAME("Mesh color"), groups),
        choice("FieldMap/Mesh/LinePattern", CV_NAME("Mesh line pattern"), kLinePatterns, 0),
        patternLength("FieldMap/Mesh/PatternLength", CV_NAME("Mesh pattern length")),
        thickness("FieldMap/Mesh/LineThickness", CV_NAME("Mesh line thickness")),
        flag("FieldMap/Contour/Show", CV_NAME("Show contour"), true),
        choice("FieldMap/Contour/ContourType", CV_NAME("Contour type"), kContourTypes, 1),
        choice("FieldMap/Contour/FloodColoring", CV_NAME("Flood by"), kContourColorings, 1),
        integer("FieldMap/Contour/LineContourGroup", CV_NAME("Lines by contour group"), 1, 8, 1),
        color("FieldMap/Contour/Color", CV_NAME("Contour line color"), groups, 0),
        choice("FieldMap/Contour/LinePattern", CV_NAME("Contour line pattern"), kLinePatterns, 0),
        patternLength("FieldMap/Contour/PatternLength", CV_NAME("Contour pattern length")),
        thickness("FieldMap/Contour/LineThickness", CV_NAME("Contour line thickness")),
        flag("FieldMap/Contour/UseLightingEffect", CV_NAME("Contour lighting"), true),
        flag("FieldMap/Vector/Show", CV_NAME("Show vectors"), true),
        choice("FieldMap/Vector/VectorType", CV_NAME("Vector type"), kVectorTypes, 0),
        flag("FieldMap/Vector/IsTangent", CV_NAME("Tangent vectors"), false),
        choice("FieldMap/Vector/ArrowheadStyle", CV_NAME("Arrowhead style"), kArrowheads, 0),
        cyclingColor("FieldMap/Vector/Color", CV_NAME("Vector color"), groups),
        choice("FieldMap/Vector/LinePattern", CV_NAME("Vector line pattern"), kLinePatterns, 0),
        patternLength("FieldMap/Vector/PatternLength", CV_NAME("Vector pattern length")),
        thickness("FieldMap/Vector/LineThickness", CV_NAME("Vector line thickness")),
        flag("FieldMap/Scatter/Show", CV_NAME("Show scatter"), true),
        flag("FieldMap/Scatter/SymbolShape/IsASCII", CV_NAME("Character symbol"), false),
        choice("FieldMap/Scatter/SymbolShape/GeomShape", CV_NAME("Symbol shape"), kScatterShapes,
               0),
        character("FieldMap/Scatter/SymbolShape/ASCIIShape/ASCIIChar", CV_NAME("Symbol character")),
        flag("FieldMap/Scatter/SymbolShape/ASCIIShape/UseBaseFont", CV_NAME("Symbol base font"),
             true),
        choice("FieldMap/Scatter/SymbolShape/ASCIIShape/FontOverride", CV_NAME("Symbol font"),
               kFontOverrides, 0),
        symbolSize("FieldMap/Scatter/FrameSize", CV_NAME("Symbol size")),
        flag("FieldMap/Scatter/SizeByVariable", CV_NAME("Symbol size by variable"), false),
        cyclingColor("FieldMap/Scatter/Color", CV_NAME("Scatter color"), groups),
        thickness("FieldMap/Scatter/LineThickness", CV_NAME("Scatter line thickness")),
        choice("FieldMap/Scatter/FillMode", CV_NAME("Scatter fill mode"), kFillModes, 2),
        color("FieldMap/Scatter/FillColor", CV_NAME("Scatter fill color"), groups, 1),
        flag("FieldMap/Shade/Show", CV_NAME("Show shade"), true),
        cyclingColor("FieldMap/Shade/Color", CV_NAME("Shade color"), palette),
        flag("FieldMap/Shade/UseLightingEffect", CV_NAME("Shade lighting"), true),
        flag("FieldMap/EdgeLayer/Show", CV_NAME("Show edges"), true),
        choice("FieldMap/EdgeLayer/EdgeType", CV_NAME("Edge type"), kEdgeTypes, 2),
        color("FieldMap/EdgeLayer/Color", CV_NAME("Edge color"), palette, 0),
        thickness("FieldMap/EdgeLayer/LineThickness", CV_NAME("Edge line thickness"), 0.3),
        choice("FieldMap/EdgeLayer/IBorder", CV_NAME("I border"), kBorderLocations, 3),
        choice("FieldMap/EdgeLayer/JBorder", CV_NAME("J border"), kBorderLocations, 3),
        choice("FieldMap/EdgeLayer/KBorder", CV_NAME("K border"), kBorderLocations, 3),
        choice("FieldMap/Points/PointsToPlot", CV_NAME("Points to plot"), kPointsToPlot, 0),
        integer("FieldMap/Points/IJKSkip/I", CV_NAME("I skip"), 1, kLargest, 1),
        integer("FieldMap/Points/IJKSkip/J", CV_NAME("J skip"), 1, kLargest, 1),
        integer("FieldMap/Points/IJKSkip/K", CV_NAME("K skip"), 1, kLargest, 1),
        surfaces(choice("FieldMap/Surfaces/SurfacesToPlot", CV_NAME("Surfaces to plot"),
                        kSurfacesToPlot, 0)),
        integer("FieldMap/Surfaces/IRange/Min", CV_NAME("I range begin"), 1, kLargest, 1),
        integer("FieldMap/Surfaces/IRange/Max", CV_NAME("I range end"), 0, kLargest, 0),
        integer("FieldMap/Surfaces/IRange/Skip", CV_NAME("I range skip"), 1, kLargest, 1),
        integer("FieldMap/Surfaces/JRange/Min", CV_NAME("J range begin"), 1, kLargest, 1),
        integer("FieldMap/Surfaces/JRange/Max", CV_NAME("J range end"), 0, kLargest, 0),
        integer("FieldMap/Surfaces/JRange/Skip", CV_NAME("J range skip"), 1, kLargest, 1),
        integer("FieldMap/Surfaces/KRange/Min", CV_NAME("K range begin"), 1, kLargest, 1),
        integer("FieldMap/Surfaces/KRange/Max", CV_NAME("K range end"), 0, kLargest, 0),
        integer("FieldMap/Surfaces/KRange/Skip", CV_NAME("K range skip"), 1, kLargest, 1),
        flag("FieldMap/VolumeMode/VolumeObjectsToPlot/ShowIsosurfaces", CV_NAME("Iso-surfaces"),
             true),
        flag("FieldMap/VolumeMode/VolumeObjectsToPlot/ShowSlices", CV_NAME("Slices"), true),
        flag("FieldMap/VolumeMode/VolumeObjectsToPlot/ShowStreamtraces", CV_NAME("Streamtraces"),
             true),
        flag("FieldMap/Effects/UseValueBlanking", CV_NAME("Use value blanking"), true),
        choice("FieldMap/Effects/LightingEffect", CV_NAME("Lighting effect"), kLightingEffects, 1),
        flag("FieldMap/Effects/UseTranslucency", CV_NAME("Use translucency"), false),
        integer("FieldMap/Effects/SurfaceTranslucency", CV_NAME("Surface translucency"), 1, 99, 50),
    };
}

std::vector<Attribute> lineMapAttributes()
{
    constexpr auto palette = ColorChoice::PaletteOnly;
    return {
        text("LineMap/Name", CV_NAME("Map name"), "&DV&"),
        zoneNumber("LineMap/Assign/Zone", CV_NAME("Zone")),
        choice("LineMap/Assign/Sort", CV_NAME("Sort"), kSorts, 0),
        variable("LineMap/Assign/SortVar", CV_NAME("Sort variable"), 1, 1),
        choice("LineMap/Assign/ShowInLegend", CV_NAME("Show in legend"), kLegendShows, 0),
        variable("LineMap/Assign/XAxisVar", CV_NAME("X-axis variable"), 1, 1),
        variable("LineMap/Assign/YAxisVar", CV_NAME("Y-axis variable"), 1, 2),
        integer("LineMap/Assign/XAxis", CV_NAME("X-axis"), 1, 5, 1),
        integer("LineMap/Assign/YAxis", CV_NAME("Y-axis"), 1, 5, 1),
        variable("LineMap/Assign/ThetaAxisVar", CV_NAME("Theta variable"), 1, 1),
        variable("LineMap/Assign/RAxisVar", CV_NAME("Radius variable"), 1, 2),
        choice("LineMap/Assign/FunctionDependency", CV_NAME("Function dependency"), kDependencies,
               0),
        flag("LineMap/Lines/Show", CV_NAME("Show lines"), true),
        cyclingColor("LineMap/Lines/Color", CV_NAME("Line color"), palette),
        thickness("LineMap/Lines/LineThickness", CV_NAME("Line thickness")),
        choice("LineMap/Lines/LinePattern", CV_NAME("Line pattern"), kLinePatterns, 0),
        patternLength("LineMap/Lines/PatternLength", CV_NAME("Line pattern length")),
        choice("LineMap/Curves/CurveType", CV_NAME("Curve type"), kCurveTypes, 0),
        integer("LineMap/Curves/NumPts", CV_NAME("Curve points"), 2, 2000, 500),
        integer("LineMap/Curves/PolyOrder", CV_NAME("Polynomial order"), 1, 10, 3),
        flag("LineMap/Curves/UseIndVarRange", CV_NAME("Limit fit range"), false),
        real("LineMap/Curves/IndVarMin", CV_NAME("Fit range begin"), -kUnlimited, kUnlimited, 0),
        real("LineMap/Curves/IndVarMax", CV_NAME("Fit range end"), -kUnlimited, kUnlimited, 1),
        flag("LineMap/Curves/UseWeightVar", CV_NAME("Weighted fit"), false),
        variable("LineMap/Curves/WeightVar", CV_NAME("Weight variable"), 1, 1),
        flag("LineMap/Curves/ClampSpline", CV_NAME("Clamped spline"), false),
        real("LineMap/Curves/SplineDerivativeAtStart", CV_NAME("Spline slope at start"),
             -kUnlimited, kUnlimited, 0),
        real("LineMap/Curves/SplineDerivativeAtEnd", CV_NAME("Spline slope at end"), -kUnlimited,
             kUnlimited, 0),
        flag("LineMap/Symbols/Show", CV_NAME("Show symbols"), true),
        flag("LineMap/Symbols/SymbolShape/IsASCII", CV_NAME("Character symbol"), false),
        choice("LineMap/Symbols/SymbolShape/GeomShape", CV_NAME("Symbol shape"), kLineShapes, 0),
        character("LineMap/Symbols/SymbolShape/ASCIIShape/ASCIIChar", CV_NAME("Symbol character")),
        flag("LineMap/Symbols/SymbolShape/ASCIIShape/UseBaseFont", CV_NAME("Symbol base font"),
             true),
        choice("LineMap/Symbols/SymbolShape/ASCIIShape/FontOverride", CV_NAME("Symbol font"),
               kFontOverrides, 0),
        symbolSize("LineMap/Symbols/Size", CV_NAME("Symbol size")),
        choice("LineMap/Symbols/SkipMode", CV_NAME("Symbol spacing mode"), kSkipModes, 0),
        real("LineMap/Symbols/Skipping", CV_NAME("Symbol spacing"), 0, kLargest, 1),
        cyclingColor("LineMap/Symbols/Color", CV_NAME("Symbol color"), palette),
        thickness("LineMap/Symbols/LineThickness", CV_NAME("Symbol line thickness")),
        choice("LineMap/Symbols/FillMode", CV_NAME("Symbol fill mode"), kFillModes, 0),
        color("LineMap/Symbols/FillColor", CV_NAME("Symbol fill color"), palette, 1),
        flag("LineMap/ErrorBars/Show", CV_NAME("Show error bars"), false),
        variable("LineMap/ErrorBars/Var", CV_NAME("Error bar variable"), 0, 0),
        choice("LineMap/ErrorBars/BarType", CV_NAME("Error bar type"), kErrorBars, 5),
        choice("LineMap/ErrorBars/SkipMode", CV_NAME("Error bar spacing mode"), kSkipModes, 0),
        real("LineMap/ErrorBars/Skipping", CV_NAME("Error bar spacing"), 0, kLargest, 1),
        cyclingColor("LineMap/ErrorBars/Color", CV_NAME("Error bar color"), palette),
        symbolSize("LineMap/ErrorBars/Size", CV_NAME("Error bar size")),
        thickness("LineMap/ErrorBars/LineThickness", CV_NAME("Error bar line thickness")),
        flag("LineMap/BarCharts/Show", CV_NAME("Show bars"), true),
        symbolSize("LineMap/BarCharts/Size", CV_NAME("Bar size")),
        cyclingColor("LineMap/BarCharts/Color", CV_NAME("Bar color"), palette),
        thickness("LineMap/BarCharts/LineThickness", CV_NAME("Bar line thickness")),
        choice("LineMap/BarCharts/FillMode", CV_NAME("Bar fill mode"), kFillModes, 2),
        color("LineMap/BarCharts/FillColor", CV_NAME("Bar fill color"), palette, 1),
        choice("LineMap/Indices/IJKLines", CV_NAME("Varying index"), kIJKLines, 0),
        integer("LineMap/Indices/IRange/Min", CV_NAME("I range begin"), 1, kLargest, 1),
        integer("LineMap/Indices/IRange/Max", CV_NAME("I range end"), 0, kLargest, 0),
        integer("LineMap/Indices/IRange/Skip", CV_NAME("I range skip"), 1, kLargest, 1),
        integer("LineMap/Indices/JRange/Min", CV_NAME("J range begin"), 1, kLargest, 1),
        integer("LineMap/Indices/JRange/Max", CV_NAME("J range end"), 0, kLargest, 0),
        integer("LineMap/Indices/JRange/Skip", CV_NAME("J range skip"), 1, kLargest, 1),
        integer("LineMap/Indices/KRange/Min", CV_NAME("K range begin"), 1, kLargest, 1),
        integer("LineMap/Indices/KRange/Max", CV_NAME("K range end"), 0, kLargest, 0),
        integer("LineMap/Indices/KRange/Skip", CV_NAME("K range skip"), 1, kLargest, 1),
    };
}

#undef CV_NAME

} // namespace

std::vector<Attribute> schemaTable()
{
    std::vector<Attribute> table;
    for (auto* part : {documentAttributes, frameAttributes, fieldMapAttributes, lineMapAttributes})
        for (Attribute& attribute : part())
            table.push_back(std::move(attribute));
    return table;
}

} // namespace corvala::host
