// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/plot/field_columns.h"

#include "tests/plot/plot_document.h"

#include <QStringList>

namespace corvala::tests {

void openColumnsData(std::int64_t zones)
{
    openDemo("field3d", zones);
    editStyle("FieldLayers/ShowMesh=0 FieldLayers/ShowEdge=0 GlobalVector/ShowReferenceArrow=0 "
              "ContourGroups/ShowLegend[1]=0 ContourGroups/ShowLegend[2]=0 "
              "ContourGroups/Var[2]=2 Surfaces/SurfacesToPlot=0 Scatter/FrameSize=6 "
              "GlobalVector/RelativeLength=0.5 EdgeLayer/LineThickness=2");
}

/// "@" in the states stands for the group.
static std::vector<Column> ofGroup(const QString& group, std::vector<Column> columns)
{
    for (Column& column : columns) {
        column.change.prepend(group + "/");
        for (QString* const text : {&column.before, &column.grey})
            text->replace("@", group + "/");
    }
    return columns;
}

/// The columns of a layer; all are grey without it, and all but Show in maps that do not show it.
static std::vector<Column> ofLayer(const QString& layer, const QString& group,
                                   std::vector<Column> columns)
{
    const QString on = "FieldLayers/Show" + layer + "=1 ";
    const QString off = "FieldLayers/Show" + layer + "=0";
    // Deliberate: a row whose edges are not shown applies.
    const QString hidden = group == "EdgeLayer" ? off : off + "|@Show=0";
    for (Column& column : columns) {
        column.before.prepend(on);
        column.grey.prepend(hidden + "|");
    }
    columns.push_back({"Show=0", Ordered, on, off});
    return ofGroup(group, columns);
}

static std::vector<Column> pointColumns()
{
    const QString scatter = "FieldLayers/ShowScatter=1";
    const QString vector = "FieldLayers/ShowVector=1";
    const QString grey = "FieldLayers/ShowScatter=0|Scatter/Show=0";
    return {{"PointsToPlot=2", Ordered, scatter, grey},
            {"PointsToPlot=1", Ordered, vector, "FieldLayers/ShowVector=0|Vector/Show=0"},
            {"IJKSkip/I=3", Ordered, scatter, grey},
            {"IJKSkip/J=2", Ordered, scatter, grey},
            {"IJKSkip/K=2", Ordered, scatter, grey}};
}

static std::vector<Column> surfaceColumns()
{
    const QString mesh = "FieldLayers/ShowMesh=1 ";
    std::vector<Column> columns = {{"SurfacesToPlot=4", Ordered, mesh, ""},
                                   {"SurfacesToPlot=4", Triangles, "", mesh}};
    const auto addRange = [&](const QString& range, int planes, const QString& grey) {
        const QString shown = mesh + QStringLiteral("@SurfacesToPlot=%1").arg(planes);
        for (const char* end : {"Min=3", "Max=1", "Skip=2"}) {
            columns.push_back({range + end, Ordered, shown, grey});
            columns.push_back({range + end, Hexahedra, "", shown + "|" + mesh});
        }
    };
    addRange("IRange/", 2,
             "@SurfacesToPlot=3|@SurfacesToPlot=4|@SurfacesToPlot=6|@SurfacesToPlot=9");
    addRange("JRange/", 3,
             "@SurfacesToPlot=2|@SurfacesToPlot=4|@SurfacesToPlot=7|@SurfacesToPlot=9");
    addRange("KRange/", 4,
             "@SurfacesToPlot=2|@SurfacesToPlot=3|@SurfacesToPlot=5|@SurfacesToPlot=9");
    return columns;
}

static std::vector<Column> volumeColumns()
{
    const QString iso = "IsoSurfaces/Show=1 IsoSurfaces/Count=3";
    const QString slice = "Slices/Show[1]=1 Slices/Plane[1]=2 Surfaces/SurfacesToPlot=10";
    const QString traces = "Streamtraces/Show=1 Streamtraces/AutomaticRake=0 "
                           "Streamtraces/StartX=-4 Streamtraces/StartY=-1 Streamtraces/StartZ=0.6 "
                           "Streamtraces/EndX=2 Streamtraces/EndY=4 Streamtraces/EndZ=0.6 "
                           "Streamtraces/SeedCount=30 Surfaces/SurfacesToPlot=10";
    return {{"ShowIsosurfaces=0", Hexahedra, iso, "PlotType=2"},
            {"ShowSlices=0", Ordered, slice, "PlotType=2"},
            {"ShowStreamtraces=0", Hexahedra, traces, "PlotType=2"},
            {"ShowIsosurfaces=0", Triangles, "", iso},
            {"ShowSlices=0", Triangles, "", slice},
            {"ShowStreamtraces=0", Triangles, "", traces}};
}

static std::vector<Column> effectColumns()
{
    const QString constraint = "Blanking/Value/Constraint/";
    const QString blanking = " Blanking/Value/Include=1 " + constraint + "Var[1]=3 " + constraint
        + "Constant[1]=0.5 " + constraint + "Include[1]=1";
    const QString shade = "FieldLayers/ShowShade=1 ";
    const QString clear = shade + "FieldLayers/UseTranslucency=1 @UseTranslucency=";
    const QString opaque = "FieldLayers/UseTranslucency=0|PlotType=2|Shade/Show=0|Shade/Show=0 "
                           "FieldLayers/ShowContour=1 Contour/ContourType=0";
    return {{"UseValueBlanking=0", Ordered, shade + blanking,
             "Blanking/Value/Include=0|" + constraint + "Include[1]=0"},
            {"LightingEffect=0", Ordered, shade + "FieldLayers/UseLightingEffect=1",
             "FieldLayers/UseLightingEffect=0|PlotType=2|"
             "Contour/UseLightingEffect=0 Shade/UseLightingEffect=0"},
            {"UseTranslucency=1", Ordered, clear + "0", opaque},
            {"SurfaceTranslucency=90", Hexahedra, clear + "1", opaque + "|@UseTranslucency=0"}};
}

std::vector<Column> fieldColumns()
{
    const QString solid = "@LinePattern=0";
    const QString dashed = " @LinePattern=1";
    const QString wide = " @LineThickness=4";
    const QString flat = "PlotType=2";
    const QString noLines = "@ContourType=1|@ContourType=3|@ContourType=4|";
    const QString lines = "@ContourType=2";
    const QString point = "@SymbolShape/GeomShape=10";
    const QString noOutline = "@SymbolShape/GeomShape=7|@SymbolShape/GeomShape=8|"
                              "@SymbolShape/GeomShape=9|"
        + point + "|";
    const QString letter = "@SymbolShape/IsASCII=1 @SymbolShape/ASCIIShape/ASCIIChar=q "
                           "@SymbolShape/ASCIIShape/";
    const QString borders = "@EdgeType=0" + wide;
    std::vector<Column> all;
    for (const auto& columns :
         {ofLayer("Mesh", "Mesh",
                  {{"MeshType=2", Ordered, "", ""},
                   {"Color=7", Triangles, "", ""},
                   {"LinePattern=1", OrderedSheet, "@PatternLength=9", ""},
                   {"PatternLength=20", Hexahedra, dashed, solid},
                   {"LineThickness=1", OrderedSheet, flat + wide, ""}}),
          ofLayer("Contour", "Contour",
                  {{"ContourType=3", Triangles, "", ""},
                   {"FloodColoring=2", Ordered, "", "@ContourType=0"},
                   {"LineContourGroup=2", Hexahedra, lines, noLines},
                   {"Color=3", OrderedSheet, lines, noLines},
                   {"LinePattern=3", Hexahedra, lines + " @PatternLength=9", noLines},
                   {"PatternLength=20", Hexahedra, lines + dashed, noLines + solid},
                   {"LineThickness=1", Ordered, lines + wide, noLines},
                   {"UseLightingEffect=0", Ordered, "", ""}}),
          ofLayer("Vector", "Vector",
                  {{"VectorType=1", Ordered, "", ""},
                   {"IsTangent=1", Ordered, "", ""},
                   {"ArrowheadStyle=1", Ordered, "", ""},
                   {"Color=6", Triangles, flat, ""},
                   {"LinePattern=2", Ordered, "@PatternLength=3", ""},
                   {"PatternLength=20", Ordered, dashed, solid},
                   {"LineThickness=1", Hexahedra, wide, ""}}),
          ofLayer("Scatter", "Scatter",
                  {{"SymbolShape/IsASCII=1", Triangles, "", ""},
                   {"SymbolShape/GeomShape=8", Ordered, "", ""},
                   {"SymbolShape/ASCIIShape/ASCIIChar=W", Ordered, letter + "UseBaseFont=1", ""},
                   {"SymbolShape/ASCIIShape/UseBaseFont=0", Ordered, letter + "FontOverride=1", ""},
                   {"SymbolShape/ASCIIShape/FontOverride=1", Ordered, letter + "UseBaseFont=0", ""},
                   {"FrameSize=12", Ordered, "", point},
                   {"SizeByVariable=1", Ordered, "GlobalScatter/Var=4", point},
                   {"Color=5", Ordered, "", ""},
                   {"LineThickness=3", Hexahedra, "@FillMode=0", noOutline},
                   {"FillMode=0", Ordered, "", noOutline},
                   {"FillColor=6", Ordered, "@FillMode=1",
                    noOutline + "@FillMode=0|@FillMode=2|@FillMode=3"}}),
          ofLayer("Shade", "Shade",
                  {{"Color=7", Triangles, flat, ""}, {"UseLightingEffect=0", Hexahedra, "", ""}}),
          ofLayer("Edge", "EdgeLayer",
                  {{"EdgeType=0", Hexahedra, "", ""},
                   {"Color=3", Triangles, "", ""},
                   {"LineThickness=1", Ordered, wide, ""},
                   {"IBorder=1", Ordered, borders, ""},
                   {"JBorder=2", Ordered, borders, ""},
                   {"KBorder=0", Ordered, borders, ""}}),
          ofGroup("EdgeLayer",
                  {{"Color=3", Hexahedra, "", "FieldLayers/ShowEdge=1"},
                   {"LineThickness=5", Hexahedra, "", "FieldLayers/ShowEdge=1"},
                   {"IBorder=0", Triangles, "", "FieldLayers/ShowEdge=1"},
                   {"JBorder=0", Triangles, "", "FieldLayers/ShowEdge=1"},
                   {"KBorder=0", Hexahedra, "", "FieldLayers/ShowEdge=1"}}),
          ofGroup("Points", pointColumns()), ofGroup("Surfaces", surfaceColumns()),
          ofGroup("VolumeMode/VolumeObjectsToPlot", volumeColumns()),
          ofGroup("Effects", effectColumns())})
        all.insert(all.end(), columns.begin(), columns.end());
    return all;
}

} // namespace corvala::tests
