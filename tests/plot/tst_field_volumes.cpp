// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/io/one_thread.h"
#include "plot/field/geometry/surface_values.h"
#include "plot/field/geometry/zone_cuts.h"
#include "plot/field/geometry/zone_edges.h"
#include "plot/field/scene/field_scene.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <vtkAppendFilter.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdList.h>
#include <vtkPointData.h>
#include <vtkPolygon.h>
#include <vtkRenderer.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

enum Variable { X = 1, Y, Z, Number, NoNumber, Missing, One };
enum Zone { Ordered = 1, Hexahedra, OrderedSheet, Quads, Next };

static bool isOrdered(std::int64_t zone)
{
    return zone != Hexahedra && zone != Quads;
}
static bool isFlat(std::int64_t zone)
{
    return zone == OrderedSheet || zone == Quads;
}

/// 4 by 4 by 4 points, or 4 by 4, at their indices, as ordered zones and as cells; "Next" begins
/// where the others end in X. "Number" is that of a cell from 0, "NoNumber" is NaN at all points.
class Boxes : public host::ZoneSource
{
public:
    static std::shared_ptr<host::DataSet> dataSet()
    {
        auto data = std::make_shared<host::DataSet>();
        data->source = std::make_shared<Boxes>();
        for (int zone = Ordered; zone <= Next; ++zone) {
            const bool ordered = isOrdered(zone);
            const bool flat = isFlat(zone);
            host::ZoneInfo info {"box", ordered, {}, flat ? 16 : 64, flat ? 9 : 27, flat ? 2 : 3};
            if (ordered)
                info.dimensions = {4, 4, flat ? 1 : 4};
            info.sourceIndex = zone;
            data->zones.push_back(info);
        }
        data->variables = {{"X", {}, {}, 0},
                           {"Y", {}, {}, 1},
                           {"Z", {}, {}, 2},
                           {"Number", {}, "Number", 0},
                           {"NoNumber", {}, "NoNumber", 0},
                           {"Missing", {}, "Missing", 0},
                           {"One", {}, "One", 0}};
        data->vectorVariables = {One, 0, 0};
        data->contourVariables = {X, Y};
        return data;
    }

    vtkSmartPointer<vtkDataSet> zone(std::int64_t zone) const override
    {
        auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
        const int layers = isFlat(zone) ? 1 : 4;
        grid->SetDimensions(4, 4, layers);
        vtkNew<vtkPoints> points;
        for (int i = 0; i < 16 * layers; ++i)
            points->InsertNextPoint(i % 4 + (zone == Next ? 3 : 0), i / 4 % 4, i / 16);
        grid->SetPoints(points);
        const auto add = [](vtkDataSetAttributes& to, const char* name, int count, auto valueAt) {
            vtkNew<vtkDoubleArray> values;
            values->SetName(name);
            for (int i = 0; i < count; ++i)
                values->InsertNextValue(valueAt(i));
            to.AddArray(values);
        };
        add(*grid->GetCellData(), "Number", isFlat(zone) ? 9 : 27, [](int i) { return i; });
        add(*grid->GetPointData(), "NoNumber", 16 * layers,
            [](int) { return std::numeric_limits<double>::quiet_NaN(); });
        add(*grid->GetPointData(), "One", 16 * layers, [](int) { return 1.0; });
        if (isOrdered(zone))
            return grid;
        vtkNew<vtkAppendFilter> cells;
        cells->SetInputData(grid);
        cells->Update();
        return cells->GetOutput();
    }
};

static double areaOf(vtkPolyData& shape)
{
    double area = 0.0;
    vtkNew<vtkIdList> corners;
    for (vtkIdType cell = 0; cell < shape.GetNumberOfCells(); ++cell) {
        double normal[3];
        shape.GetCellPoints(cell, corners);
        if (corners->GetNumberOfIds() > 2)
            area += vtkPolygon::ComputeArea(shape.GetPoints(), corners->GetNumberOfIds(),
                                            corners->GetPointer(0), normal);
    }
    return area;
}

static SurfaceChoice blanked(BlankedCells_e cells, const BlankingTest& test,
                             SurfacesToPlot_e surfaces = SurfacesToPlot_BoundaryCellFaces)
{
    SurfaceChoice choice;
    choice.surfaces = surfaces;
    choice.blanking = {cells, {test}};
    return choice;
}

/// A value to write, "PATH=VALUE" or "PATH[INDEX]=VALUE"; of all maps, or of some.
static void edit(const QString& text, const char* maps = "all")
{
    const QStringList parts = text.split('=');
    const QString path = parts[0].section('[', 0, 0);
    const int index = parts[0].contains('[') ? parts[0].section('[', 1).chopped(1).toInt() : -1;
    write(path.toUtf8().constData(), path.startsWith("FieldMap/") ? maps : "", parts[1].toDouble(),
          index);
}

/// The boxes in space with a scene of them.
struct ShownBoxes
{
    ShownBoxes()
    {
        document().clear();
        document().execute(host::AddFrame {});
        document().execute(host::AttachData {{}, Boxes::dataSet(), PlotType_Field3D, 0});
        edit("FieldMap/Surfaces/SurfacesToPlot=0");
        scene.setFrame(document().activeFrameId());
        connection = document().events().connect([this](const auto& event) { scene.apply(event); });
        work();
    }
    void work()
    {
        scene.advance(-1);
        scene.prepare({800, 10.0, 1.0});
    }
    /// What is drawn of a map: its cells in each layer that is on, and how they look.
    QStringList drawn(CvlInt64 map)
    {
        work();
        QStringList result;
        for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
            const CompositeLayer& layer = scene.layer(static_cast<FieldLayer>(i));
            if (!layer.draws(map))
                continue;
            const MapperLook& look = layer.look(map).mapper;
            const double* const bounds = layer.geometry(map)->GetBounds();
            result << QStringLiteral("layer %1: %2 cells, light %3%4%5, %6 percent, from %7 %8 %9")
                          .arg(i)
                          .arg(layer.geometry(map)->GetNumberOfCells())
                          .arg(look.lit)
                          .arg(look.smooth)
                          .arg(look.shiny)
                          .arg(look.translucency)
                          .arg(bounds[0])
                          .arg(bounds[2])
                          .arg(bounds[4]);
        }
        return result;
    }
    std::int64_t built()
    {
        work();
        std::int64_t count = 0;
        for (std::size_t i = 0; i < kFieldLayerCount; ++i)
            count += scene.layer(static_cast<FieldLayer>(i)).counters().built;
        return count;
    }

    vtkNew<vtkRenderer> back;
    vtkNew<vtkRenderer> front;
    FieldScene scene {*back, *front, std::make_shared<SurfaceCache>()};
    boost::signals2::scoped_connection connection;
};

class tst_FieldVolumes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { host::io::runVtkInOneThread(); }

    void surfaces_data()
    {
        const Rows<SurfaceChoice, double> row;
        const auto all = BlankedCells_AllPoints;
        const auto any = BlankedCells_AnyPoint;
        const auto cut = BlankedCells_PreciseCut;
        const auto exposed = SurfacesToPlot_ExposedCellFaces;
        const BlankingTest upToOne {X, Relation_LessOrEqual, 0, 1.0};
        const BlankingTest upToMiddle {X, Relation_LessOrEqual, 0, 1.5};
        // Boxes have 6 * 9 faces; what is left has its part of these, and 9 that open.
        row("all points", blanked(all, upToOne), 9 + 8 * 3);
        row("all points, exposed", blanked(all, upToOne, exposed), 2 * 9 + 8 * 3);
        row("all points, all faces", blanked(all, upToOne, SurfacesToPlot_All), 27 + 24 + 24);
        row("any point", blanked(any, upToOne), 9 + 4 * 3);
        row("any point, exposed", blanked(any, upToOne, exposed), 2 * 9 + 4 * 3);
        row("first point", blanked(BlankedCells_FirstPoint, upToOne), 9 + 4 * 3);
        row("precise cut", blanked(cut, upToMiddle), 9 + 4 * 3 * 1.5);
        row("precise cut, exposed", blanked(cut, upToMiddle, exposed), 2 * 9 + 4 * 3 * 1.5);
        row("precise cut above", blanked(cut, {X, Relation_Greater, 0, 1.5}), 9 + 4 * 3 * 1.5);
        row("less", blanked(all, {X, Relation_Less, 0, 1.0}), 54);
        row("greater or equal", blanked(all, {X, Relation_GreaterOrEqual, 0, 2.0}), 9 + 8 * 3);
        row("greater", blanked(any, {X, Relation_Greater, 0, 2.0}), 9 + 8 * 3);
        row("equal", blanked(any, {X, Relation_Equal, 0, 1.0}), 9 + 4 * 3);
        row("equal has nothing to cut", blanked(cut, {X, Relation_Equal, 0, 1.0}), 54);
        row("not equal", blanked(all, {X, Relation_NotEqual, 0, 1.0}), 9 + 8 * 3);
        row("two variables", blanked(all, {X, Relation_LessOrEqual, Y, 0.0}), 54 - 18);
        row("two variables, cut", blanked(cut, {X, Relation_LessOrEqual, Y, 0.0}), 18 + 9);
        row("cells by cell", blanked(any, {Number, Relation_Less, 0, 9.0}), 9 + 8 * 3);
        row("cells are not cut", blanked(cut, {Number, Relation_Less, 0, 8.5}), 9 + 8 * 3);
        row("no number", blanked(any, {NoNumber, Relation_NotEqual, 0, 0.0}), 54);
        row("no number to cut", blanked(cut, {NoNumber, Relation_Greater, 0, 0.0}), 54);
        row("missing", blanked(any, {Missing, Relation_LessOrEqual, 0, 0.0}), 54);
        row("everything", blanked(all, {X, Relation_GreaterOrEqual, 0, 0.0}), 0);
        row("everything, cut", blanked(cut, {X, Relation_GreaterOrEqual, 0, -1.0}, exposed), 0);
        SurfaceChoice two = blanked(all, upToOne);
        two.blanking.tests.push_back({Y, Relation_LessOrEqual, 0, 1.0});
        row("two tests", two, 20);

        SurfaceChoice planes;
        const auto iso = [&planes](Variable variable, const std::vector<double>& values) {
            planes.iso = {variable, values};
            return planes;
        };
        row("plane", iso(X, {1.5}), 9);
        row("planes on points", iso(Z, {1, 2}), 2 * 9);
        row("planes at the ends", iso(X, {0, 3}), 2 * 9);
        row("plane outside", iso(X, {3.5, -1}), 0);
        row("surface without numbers", iso(NoNumber, {0}), 0);
        row("surface of a constant", iso(One, {1}), 0);
        row("surface of nothing", iso(Missing, {0}), 0);
        planes.blanking = {BlankedCells_AllPoints, {upToOne}};
        row("plane through what is left", iso(Y, {1.5}), 6);
        planes.blanking = {BlankedCells_PreciseCut, {upToMiddle}};
        row("plane through what is cut", iso(Y, {1.5}), 4.5);
    }

    void surfaces()
    {
        const auto [choice, area] = currentRow<SurfaceChoice, double>();
        const auto data = Boxes::dataSet();
        for (const int zone : {Ordered, Hexahedra}) {
            const auto surface = surfaceOf(*data, zone, choice);
            QCOMPARE(areaOf(*surface->shape), area);
            const vtkIdType points = surface->shape->GetNumberOfPoints();
            for (const int axis : {0, 1, 2}) {
                const auto values = pointValues(*data, zone, X + axis, *surface);
                QCOMPARE(values->GetNumberOfTuples(), points);
                for (vtkIdType i = 0; i < points; ++i)
                    QVERIFY(std::abs(values->GetValue(i) - surface->shape->GetPoint(i)[axis])
                            < 1e-4);
            }
            const auto numbers = cellValues(*data, zone, Number, *surface, CellValue::Primary);
            if (choice.iso.variable == 0)
                QCOMPARE(numbers->GetNumberOfTuples(), surface->shape->GetNumberOfCells());
        }
    }

    void blankedEdges_data()
    {
        const Rows<int, SurfaceChoice, double> row;
        const BlankingTest half {X, Relation_LessOrEqual, 0, 1.5};
        const auto rule = BlankedCells_FirstPoint;
        row("box", Ordered, {}, 12 * 3);
        row("part of a box", Ordered, blanked(rule, half), 4 * 3 + 4);
        row("cut box", Ordered, blanked(BlankedCells_PreciseCut, half), 4 * 3 + 4 * 1.5);
        // Without indices the rim of what is left is an edge.
        row("part of cells", Hexahedra, blanked(rule, half), 8 * 3 + 4);
        row("part of a sheet", Quads, blanked(rule, half), 2 * 3 + 2);
        row("rim of an ordered sheet", OrderedSheet, blanked(rule, half), 3 + 2);
        row("cut sheet", Quads, blanked(BlankedCells_PreciseCut, half), 2 * 3 + 2 * 1.5);
    }

    void blankedEdges()
    {
        const auto [zone, choice, length] = currentRow<int, SurfaceChoice, double>();
        const auto data = Boxes::dataSet();
        const auto geometry = data->geometry(zone);
        const CutFields fields = blank(*geometry, *data, zone, choice.blanking);
        const auto lines =
            zoneEdges(*geometry, data->zone(zone), *surfaceOf(*data, zone, choice), {}, fields);
        double sum = 0.0;
        for (vtkIdType line = 0; line < lines->GetNumberOfCells(); ++line)
            sum += std::sqrt(lines->GetCell(line)->GetLength2());
        QCOMPARE(sum, length);
    }

    void columns_data()
    {
        const Rows<QString, QString, bool> row;
        const QString blanking = "Blanking/Value/Include=1 Blanking/Value/Constraint/Var[%1]=1 "
                                 "Blanking/Value/Constraint/Constant[%1]=1 "
                                 "Blanking/Value/Constraint/Include[%1]=1";
        const QString noBlanking = "FieldMap/Effects/UseValueBlanking=0";
        row("blanking", blanking.arg(3), noBlanking, true);
        row("the last constraint only", blanking.arg(8), noBlanking, false);
        row("constraint", "", blanking.arg(1), true);
        row("last constraint", "", blanking.arg(8), true);
        row("constraint without variable", "",
            "Blanking/Value/Include=1 Blanking/Value/Constraint/Include[1]=1", false);
        row("rule", blanking.arg(1), "Blanking/Value/BlankedCells=1", true);
        const QString on = "FieldLayers/ShowShade=1 ";
        row("slice", "", "Slices/Show[8]=1", true);
        row("plane of a slice", "Slices/Show[2]=1", "Slices/Plane[2]=2", true);
        row("index without indices", "Slices/Show[2]=1", "Slices/Plane[2]=3", true);
        row("place", "Slices/Show[2]=1", "Slices/AutomaticPosition[2]=0", true);
        row("slice by nothing", "Slices/Show[2]=1", "Slices/Coloring[2]=5", true);
        row("slice by RGB without variables", "Slices/Show[2]=1", "Slices/Coloring[2]=0", true);
        row("blanked slice", "Slices/Show[2]=1 " + blanking.arg(1), noBlanking, true);
        row("more of them", "IsoSurfaces/Show=1", "IsoSurfaces/Count=3", true);
        row("of another variable", "IsoSurfaces/Show=1", "IsoSurfaces/Var=2", true);
        row("of a constant", "IsoSurfaces/Show=1", "IsoSurfaces/Var=7", true);
        row("at no value", "IsoSurfaces/Show=1",
            "IsoSurfaces/AutomaticValues=0 IsoSurfaces/Value1=-9", true);
        const QString clear = "FieldMap/Effects/UseTranslucency=1";
        const QString percent = "FieldMap/Effects/SurfaceTranslucency=80";
        const QString layer = "FieldLayers/UseTranslucency=1 ";
        row("percent of hidden lines", layer + clear + " FieldMap/Mesh/MeshType=2", percent, true);
        row("percent of contours", layer + clear + " FieldLayers/ShowContour=1", percent, true);
        row("percent of slices",
            on + layer + clear
                + " Slices/Show[1]=1 FieldMap/Shade/Show=0 "
                  "FieldLayers/ShowContour=1",
            percent, true);
        row("slices without surfaces", layer + clear + " Slices/Show[1]=1", percent, false);
        const QString noShade = "FieldMap/Shade/Show=0";
        row("shade below a flood", on + layer + "FieldLayers/ShowContour=1", noShade, true);
        row("it does not shine through", on + layer + clear + " FieldLayers/ShowContour=1", noShade,
            false);
        row("crease angle", "", "EdgeDetails/CreaseAngle=100", true);
    }

    /// A value of maps shows in the map that it is written for and nowhere else; one of the frame
    /// shows in this map, too.
    void columns()
    {
        const auto [before, change, shows] = currentRow<QString, QString, bool>();
        ShownBoxes shown;
        for (const QString& text : before.split(' ', Qt::SkipEmptyParts))
            edit(text);
        const QStringList map = shown.drawn(Hexahedra);
        const QStringList other = shown.drawn(Ordered);
        const std::int64_t built = shown.built();
        for (const QString& text : change.split(' '))
            edit(text, "2");
        QCOMPARE(shown.drawn(Hexahedra) != map, shows);
        QVERIFY(shows || shown.built() == built);
        if (change.startsWith("FieldMap/"))
            QCOMPARE(shown.drawn(Ordered), other);
    }

    void lightTurns()
    {
        ShownBoxes shown;
        QVERIFY(shown.scene.lightDirection()[0] < -0.3); // over the left shoulder
        edit("LightSource/Azimuth=0");
        edit("LightSource/Elevation=90");
        QVERIFY(std::abs(shown.scene.lightDirection()[1] - 1.0) < 1e-6);
    }

    void nothingIsLeft()
    {
        ShownBoxes shown;
        edit("Blanking/Value/Constraint/Var[1]=1");
        edit("Blanking/Value/Constraint/Constant[1]=9");
        edit("Blanking/Value/Constraint/Include[1]=1");
        edit("Blanking/Value/Include=1");
        QVERIFY(shown.drawn(Ordered).isEmpty());
        QVERIFY(!shown.scene.bounds().IsValid());
        edit("FieldMap/Effects/UseValueBlanking=0", "2");
        QVERIFY(!shown.drawn(Hexahedra).isEmpty());
        QCOMPARE(shown.scene.zoneAt({{1.5, 1.5, 9.0}, {1.5, 1.5, -9.0}, 0.01}), Hexahedra);
    }

    void slices_data()
    {
        const Rows<int, double, QString> row;
        row("X in the middle of all", 0, 0, "3 3 0 3 0 3");
        row("Z in the middle", 2, 0, "0 3 0 3 1.5 1.5");
        row("J in the middle", 4, 0, "0 3 1 1 0 3");
        row("Y at a place", 1, 0.25, "0 3 0.25 0.25 0 3");
        row("K at a number", 5, 3.0, "0 3 0 3 2 2");
        row("X outside", 0, -4.0, "");
        row("I outside", 3, 5.0, "");
    }

    void slices()
    {
        const auto [plane, position, box] = currentRow<int, double, QString>();
        ShownBoxes shown;
        edit(QStringLiteral("Slices/Plane[1]=%1").arg(plane));
        edit(QStringLiteral("Slices/Position[1]=%1").arg(position));
        edit(QStringLiteral("Slices/AutomaticPosition[1]=%1").arg(position == 0.0));
        edit("Slices/Show[1]=1");
        shown.work();
        vtkPolyData* const slice = shown.scene.layer(FieldLayer::Slice1).geometry(Ordered);
        QStringList bounds;
        for (int i = 0; slice && i < 6; ++i)
            bounds << QString::number(slice->GetBounds()[i], 'g', 5);
        QCOMPARE(bounds.join(' '), box);
        QCOMPARE(shown.scene.legends().size(), std::size_t(slice ? 1 : 0));
    }

    void streams_data()
    {
        const Rows<StreamChoice, double> row;
        StreamChoice rake;
        rake.vector = {One, 0, 0};
        rake.zones = {{Ordered}};
        rake.seedCount = 4;
        rake.automaticRake = false;
        rake.rake = {1, 0, 1, 1, 3, 2};
        const auto changed = [&rake](const std::function<void(StreamChoice&)>& change) {
            StreamChoice choice = rake;
            change(choice);
            return choice;
        };
        row("both ways", rake, 4 * 3);
        row("forward", changed([](auto& it) { it.direction = StreamDirection_Forward; }), 4 * 2);
        row("backward", changed([](auto& it) { it.direction = StreamDirection_Backward; }), 4 * 1);
        row("cells", changed([](auto& it) { it.zones = {{Hexahedra}}; }), 4 * 3);
        row("across zones", changed([](auto& it) { it.zones = {{Hexahedra}, {Next}}; }), 4 * 6);
        const BlankingTest beyond {X, Relation_Greater, 0, 1.5};
        row("up to blanked cells", changed([&](auto& it) {
                it.zones = {{Ordered, {BlankedCells_AnyPoint, {beyond}}}};
            }),
            4 * 1);
        row("up to a cut", changed([&](auto& it) {
                it.zones = {{Hexahedra, {BlankedCells_PreciseCut, {beyond}}}, {Next}};
            }),
            4 * 1.4); // the last step does not fit
        row("on a rake of its own", changed([](auto& it) { it.automaticRake = true; }), 4 * 3);
        row("from points", changed([](auto& it) {
                it.seedCount = 0;
                it.points = {0.5, 0.5, 0.5, 2, 2, 2};
            }),
            2 * 3);
        row("from nowhere", changed([](auto& it) { it.seedCount = 0; }), 0);
        row("outside", changed([](auto& it) { it.rake = {9, 9, 9, 99, 9, 9}; }), 0);
        row("no vectors", changed([](auto& it) { it.vector = {}; }), 0);
        row("no numbers", changed([](auto& it) { it.vector = {NoNumber, Missing, 0}; }), 0);
        row("no zones", changed([](auto& it) { it.zones.clear(); }), 0);
    }

    void streams()
    {
        const auto [choice, length] = currentRow<StreamChoice, double>();
        const Streamtraces traces = streamtraces(*Boxes::dataSet(), choice, {X});
        double sum = 0.0;
        for (vtkIdType line = 0; line < traces.lines->GetNumberOfCells(); ++line) {
            const double* const bounds = traces.lines->GetCell(line)->GetBounds();
            sum += bounds[1] - bounds[0];
        }
        QVERIFY2(std::abs(sum - length) < 0.05 * length + 1e-9, QByteArray::number(sum));
        for (vtkIdType i = 0; i < traces.lines->GetNumberOfPoints(); ++i)
            QVERIFY(std::abs(traces.values[0]->GetValue(i) - traces.lines->GetPoint(i)[0]) < 1e-3);
    }

    void proposals_data()
    {
        const Rows<QString, style::Key, int, QString> row; // style, value, index, what is in force
        const QString slice = "Slices/Show[2]=1 Slices/Plane[2]=%1";
        row("slice", slice.arg(1), style::slices.position, 2, "1.5");
        row("index plane", slice.arg(4), style::slices.position, 2, "2");
        row("no slice", "", style::slices.position, 2, "");
        const QString iso = "IsoSurfaces/Show=1 IsoSurfaces/Count=2";
        row("iso-surface", iso, style::isoSurfaces.value2, -1, "4");
        row("one more than there are", iso, style::isoSurfaces.value3, -1, "");
        const QString sizes = "FieldLayers/ShowScatter=1 GlobalScatter/Var=1 "
                              "FieldMap/Scatter/SizeByVariable=1";
        row("largest symbol", sizes, style::globalScatter.rangeMax, -1, "6");
        row("rake", "Streamtraces/Show=1", style::streamtraces.endY, -1, "3");
        row("level", "FieldLayers/ShowContour=1 FieldMap/Surfaces/SurfacesToPlot=1",
            style::contourGroups.levelMax, 1, "6");
    }

    /// The scene tells what it takes for values that follow from the data.
    void proposals()
    {
        const auto [values, key, index, inForce] = currentRow<QString, style::Key, int, QString>();
        ShownBoxes shown;
        for (const QString& text : values.split(' ', Qt::SkipEmptyParts))
            edit(text);
        shown.work();
        const auto proposed = shown.scene.proposal(key, index);
        QCOMPARE(proposed ? QString::number(*proposed) : QString(), inForce);
    }

    void notes_data()
    {
        const Rows<QString, QString> row; // style, beginning of the note
        const QString blanking = "Blanking/Value/Include=1 Blanking/Value/Constraint/Include[2]=1 "
                                 "Blanking/Value/Constraint/Var[2]=1 "
                                 "Blanking/Value/Constraint/Constant[2]=%1";
        row("all blanked", blanking.arg(9),
            "Value blanking takes away every cell of the active zones, by constraint 2 (\"X\").");
        row("some blanked", blanking.arg(3), "");
        row("blanked by nothing", blanking.arg(3) + " Blanking/Value/Constraint/Include[4]=1",
            "Blanking constraint 4 takes nothing away");
        row("axis upside down",
            "FieldAxes/Z/AutomaticRange=0 FieldAxes/Z/RangeMin=3 FieldAxes/Z/RangeMax=1",
            "The Z axis has the range of the data: its minimum, 3, is not below its maximum, 1.");
        const QString slice = "Slices/Show[3]=1 Slices/AutomaticPosition[3]=0 Slices/Plane[3]=%1 "
                              "Slices/Position[3]=%2";
        row("slice beside", slice.arg(2).arg(-4),
            "Slice 3 at Z = -4 lies outside the zones that show slices (0 to 3).");
        row("slice at the rim", slice.arg(2).arg(3), "");
        row("no such plane", slice.arg(3).arg(9), "Slice 3 shows nothing: no zone");
        const QString iso = "IsoSurfaces/Show=1 IsoSurfaces/AutomaticValues=0 IsoSurfaces/Value1=";
        row("no such value", iso + "-9",
            "The iso-surface value -9 lies outside the values of \"X\"");
        row("value of the data", iso + '2', "");
        row("surfaces of a constant", QString("IsoSurfaces/Show=1 IsoSurfaces/Var=%1").arg(One),
            "No iso-surface is drawn: its variable");
        row("seeds beside",
            "Streamtraces/AutomaticRake=0 Streamtraces/StartX=90 Streamtraces/EndX=99 "
            "Streamtraces/Show=1",
            "No streamtrace is drawn");
        const QString faces =
            "Slices/Show[3]=1 FieldLayers/ShowShade=1 "
            "FieldMap/Surfaces/SurfacesToPlot=0 FieldMap/Effects/UseTranslucency=1 "
            "FieldLayers/UseTranslucency=";
        row("behind faces", faces + '0', "Slices, iso-surfaces and streamtraces are hidden");
        row("behind translucent faces", faces + '1', "");
        row("no flow", "GlobalVector/UVar=0 Streamtraces/Show=1",
            "No streamtrace is drawn: no vector variables");
        const QString levels = QString("FieldLayers/ShowContour=1 ContourGroups/Var[1]=%1 "
                                       "ContourGroups/AutomaticLevels[1]=0 "
                                       "ContourGroups/LevelMin[1]=")
                                   .arg(X);
        row("levels upside down", levels + "5", "Contour group 1 has levels by the data");
        row("levels", levels + "0", "");
        const QString vectors = "FieldLayers/ShowVector=1 GlobalVector/UVar=%1 "
                                "FieldMap/Vector/Show=1 ActiveFieldMaps=3-4";
        row("no length", vectors.arg(Z), "No arrow is drawn: the vectors (Z) are zero");
        row("a length", vectors.arg(X), "");
        const QString sizes = "FieldLayers/ShowScatter=1 FieldMap/Scatter/SizeByVariable=1 "
                              "FieldMap/Surfaces/SurfacesToPlot=1 GlobalScatter/Var=%1";
        row("sizes by a constant", sizes.arg(One), "All symbols have one size");
        row("sizes", sizes.arg(X), "");
    }

    /// What one would wonder at is said, and no longer when it is mended.
    void notes()
    {
        const auto [values, note] = currentRow<QString, QString>();
        ShownBoxes shown;
        for (const QString& text : values.split(' ', Qt::SkipEmptyParts)) {
            if (text.startsWith("ActiveFieldMaps="))
                activate("1,2,5", false);
            else
                edit(text);
        }
        shown.work();
        const auto found = shown.scene.notes();
        QCOMPARE(found.empty() ? QString() : found.front().text.left(note.size()), note);
        QCOMPARE(found.empty(), note.isEmpty());
        const bool isMended = !found.empty() && found.front().mending;
        QVERIFY(!isMended || document().execute(*found.front().mending).isDone());
        shown.work();
        QVERIFY(!isMended || shown.scene.notes().empty());
    }

    void streamsAreOfAllMaps()
    {
        ShownBoxes shown;
        const auto bounds = [&shown] {
            shown.work();
            const vtkBoundingBox box = shown.scene.layer(FieldLayer::Streamtraces).bounds();
            return box.IsValid() ? box.GetLength(0) : 0.0;
        };
        QCOMPARE(bounds(), 0.0);
        edit("Streamtraces/Show=1");
        QVERIFY(bounds() > 5.5);
        edit("FieldMap/VolumeMode/VolumeObjectsToPlot/ShowStreamtraces=0", "5");
        QVERIFY(bounds() > 2.5 && bounds() < 3.5);
        edit("FieldMap/VolumeMode/VolumeObjectsToPlot/ShowStreamtraces=0", "1");
        QVERIFY(bounds() > 2.5);
        QVERIFY(!shown.scene.layer(FieldLayer::Streamtraces).geometry(Ordered));
        edit("Streamtraces/Color=101");
        edit("Streamtraces/SeedCount=5");
        QVERIFY(bounds() > 2.5);
        QCOMPARE(shown.scene.legends().size(), std::size_t {1});
        activate("2", false);
        QCOMPARE(bounds(), 0.0);
        activate("2", true);
        for (const char* value : {"AutomaticRake=0", "StartX=1", "StartY=0.5", "StartZ=1", "EndX=1",
                                  "EndY=2.5", "EndZ=1"})
            edit(QStringLiteral("Streamtraces/") + value);
        QVERIFY(bounds() > 1.5);
        const vtkBoundingBox rake = shown.scene.layer(FieldLayer::Streamtraces).bounds();
        QVERIFY(rake.GetLength(1) > 1.5 && rake.GetLength(2) < 0.01);
    }
};

QTEST_GUILESS_MAIN(tst_FieldVolumes)

#include "tst_field_volumes.moc"
