// SPDX-License-Identifier: BSD-3-Clause
#include "samples/demo_data.h"
#include "tests/models/table_fixture.h"
#include "tests/support/modal_responder.h"
#include "tests/support/rows.h"
#include "zonestyle/actions/action.h"
#include "zonestyle/models/field_contour_3d_model.h"
#include "zonestyle/models/field_contour_model.h"
#include "zonestyle/models/field_edge_model.h"
#include "zonestyle/models/field_effects_3d_model.h"
#include "zonestyle/models/field_effects_model.h"
#include "zonestyle/models/field_mesh_model.h"
#include "zonestyle/models/field_points_model.h"
#include "zonestyle/models/field_scatter_model.h"
#include "zonestyle/models/field_shade_3d_model.h"
#include "zonestyle/models/field_shade_model.h"
#include "zonestyle/models/field_static_area_model.h"
#include "zonestyle/models/field_surfaces_model.h"
#include "zonestyle/models/field_vector_model.h"
#include "zonestyle/models/field_volume_model.h"
#include "zonestyle/models/line_bars_model.h"
#include "zonestyle/models/line_curves_model.h"
#include "zonestyle/models/line_definitions_model.h"
#include "zonestyle/models/line_definitions_polar_model.h"
#include "zonestyle/models/line_definitions_xy_model.h"
#include "zonestyle/models/line_error_bars_model.h"
#include "zonestyle/models/line_indices_model.h"
#include "zonestyle/models/line_lines_model.h"
#include "zonestyle/models/line_static_area_model.h"
#include "zonestyle/models/line_symbols_model.h"
#include "zonestyle/models/model_for_page_map.h"
#include "zonestyle/models/name_pattern.h"

#include <sdk/base/cvl.h>

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QTest>
#include <QWidget>

using namespace corvala::tests;
using namespace corvala::sdk::ui::dialogs::zonestyle::intern::models;
using corvala::host::Document;

namespace style = corvala::style;
using corvala::sdk::ui::dialogs::zonestyle::intern::actions::Action;

namespace {

using Make = ModelAbstract* (*)();

/// The tables that the dialog builds, by name.
struct Chain
{
    const char* demo;
    Make make;
};

const std::map<QString, Chain>& chains()
{
    static const std::map<QString, Chain> all {
        {"mesh", {"field2d", makeChain<FieldStaticAreaModel, FieldMeshModel>}},
        {"contour", {"field2d", makeChain<FieldStaticAreaModel, FieldContourModel>}},
        {"contour 3D",
         {"field3d", makeChain<FieldStaticAreaModel, FieldContourModel, FieldContour3DModel>}},
        {"shade", {"field2d", makeChain<FieldStaticAreaModel, FieldShadeModel>}},
        {"shade 3D",
         {"field3d", makeChain<FieldStaticAreaModel, FieldShadeModel, FieldShade3DModel>}},
        {"vector", {"field3d", makeChain<FieldStaticAreaModel, FieldVectorModel>}},
        {"scatter", {"field3d", makeChain<FieldStaticAreaModel, FieldScatterModel>}},
        {"scatter 2D", {"field2d", makeChain<FieldStaticAreaModel, FieldScatterModel>}},
        {"edge", {"kinds", makeChain<FieldStaticAreaModel, FieldEdgeModel>}},
        {"points", {"field3d", makeChain<FieldStaticAreaModel, FieldPointsModel>}},
        {"surfaces", {"kinds", makeChain<FieldStaticAreaModel, FieldSurfacesModel>}},
        {"surfaces 3D", {"field3d", makeChain<FieldStaticAreaModel, FieldSurfacesModel>}},
        {"volume", {"kinds", makeChain<FieldStaticAreaModel, FieldVolumeModel>}},
        {"effects", {"field2d", makeChain<FieldStaticAreaModel, FieldEffectsModel>}},
        {"effects 3D",
         {"field3d", makeChain<FieldStaticAreaModel, FieldEffectsModel, FieldEffects3DModel>}},
        {"xy",
         {"xy", makeChain<LineStaticAreaModel, LineDefinitionsModel, LineDefinitionsXYModel>}},
        {"polar",
         {"polar",
          makeChain<LineStaticAreaModel, LineDefinitionsModel, LineDefinitionsPolarModel>}},
        {"lines", {"xy", makeChain<LineStaticAreaModel, LineLinesModel>}},
        {"curves", {"xy", makeChain<LineStaticAreaModel, LineCurvesModel>}},
        {"polar curves", {"polar", makeChain<LineStaticAreaModel, LineCurvesModel>}},
        {"symbols", {"xy", makeChain<LineStaticAreaModel, LineSymbolsModel>}},
        {"error bars", {"xy", makeChain<LineStaticAreaModel, LineErrorBarsModel>}},
        {"bars", {"xy", makeChain<LineStaticAreaModel, LineBarsModel>}},
        {"indices", {"xy", makeChain<LineStaticAreaModel, LineIndicesModel>}},
    };
    return all;
}

void addChainRows()
{
    QTest::addColumn<QString>("chain");
    for (const auto& [name, chain] : chains())
        QTest::newRow(qPrintable(name)) << name;
}

/// A change of the document before a look: "path maps value".
struct Setting
{
    const char* path;
    const char* maps;
    double value;
};

} // namespace

/// The tables of the tabs on the real engine: what they show, grey, offer and write.
class tst_TableModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_model.reset(); }

    void areWellBehaved_data() { addChainRows(); }
    void areWellBehaved()
    {
        QFETCH(QString, chain);
        open(chain);
        const auto test = [this] {
            const QAbstractItemModelTester tester(
                m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        };
        test();
        m_model->setData(m_model->index(1, m_model->columnCount() - 1), Qt::Checked,
                         Qt::CheckStateRole);
        test();
        Document::instance().execute(corvala::host::DetachData {});
        QCOMPARE(m_model->rowCount(), 0);
        test();
        while (Document::instance().frameCount() > 0)
            Document::instance().execute(corvala::host::DeleteFrame {});
        QCOMPARE(m_model->rowCount(), 0);
        test();
    }

    void showRows_data()
    {
        // Chain, settings (before the look at the first map), row without what all maps show.
        const Rows<QString, QVector<Setting>, QString> row;
        row("mesh", "mesh", {}, "[x]|Overlay|#d62728|Solid|(2.00%)|0.15%");
        row("mesh dashed", "mesh",
            {{"FieldMap.Mesh.LinePattern", "1", 1}, {"FieldMap.Mesh.LineThickness", "1", 0.5}},
            "[x]|Overlay|#d62728|Dashed|2.00%|0.50%");
        row("mesh colored by a group", "mesh", {{"FieldMap.Mesh.Color", "1", 103}},
            "[x]|Overlay|#365c8d C3|Solid|(2.00%)|0.15%");
        row("mesh hidden", "mesh", {{"FieldMap.Mesh.Show", "1", 0}},
            "([ ])|(Overlay)|(#d62728)|(Solid)|(2.00%)|(0.15%)");
        row("mesh layer off", "mesh", {{"FieldLayers.ShowMesh", "", 0}},
            "([x])|(Overlay)|(#d62728)|(Solid)|(2.00%)|(0.15%)");

        const Setting contours {"FieldLayers.ShowContour", "", 1};
        row("contour layer off", "contour", {},
            "([x])|(Flood)|(C1: Pressure)|(C1: Pressure)|(#000000)|(Solid)|(2.00%)|(0.15%)");
        row("flood", "contour 3D", {contours},
            "[x]|Flood|C1: Pressure|(C1: Pressure)|(#000000)|(Solid)|(2.00%)|(0.15%)|[x]");
        row("lines", "contour", {contours, {"FieldMap.Contour.ContourType", "1", 0}},
            "[x]|Lines|(C1: Pressure)|C1: Pressure|#000000|Solid|(2.00%)|0.15%");
        row("dashed lines", "contour",
            {contours,
             {"FieldMap.Contour.ContourType", "1", 2},
             {"FieldMap.Contour.LinePattern", "1", 1}},
            "[x]|Lines and flood|C1: Pressure|C1: Pressure|#000000|Dashed|2.00%|0.15%");
        row("flood by cell in RGB", "contour",
            {contours,
             {"FieldMap.Contour.ContourType", "1", 3},
             {"FieldMap.Contour.FloodColoring", "1", 0}},
            "[x]|Average cell flood|RGB|(C1: Pressure)|(#000000)|(Solid)|(2.00%)|(0.15%)");
        row("contour hidden", "contour 3D", {contours, {"FieldMap.Contour.Show", "1", 0}},
            "([ ])|(Flood)|(C1: Pressure)|(C1: Pressure)|(#000000)|(Solid)|(2.00%)|(0.15%)|([x])");

        const Setting shades {"FieldLayers.ShowShade", "", 1};
        row("shade", "shade 3D", {shades, {"FieldMap.Shade.UseLightingEffect", "1", 0}},
            "[x]|#d62728|[ ]");
        row("shade layer off", "shade 3D", {}, "([x])|(#d62728)|([x])");
        row("shade hidden", "shade 3D", {shades, {"FieldMap.Shade.Show", "1", 0}},
            "([ ])|(#d62728)|([x])");

        const Setting vectors {"FieldLayers.ShowVector", "", 1};
        row("vector layer off", "vector", {},
            "([x])|(Tail at point)|([ ])|(Plain)|(#d62728)|(Solid)|(2.00%)|(0.15%)");
        row("vectors", "vector",
            {vectors,
             {"FieldMap.Vector.IsTangent", "1", 1},
             {"FieldMap.Vector.VectorType", "1", 3},
             {"FieldMap.Vector.LinePattern", "1", 2}},
            "[x]|Head only|[x]|Plain|#d62728|Dash dot|2.00%|0.15%");
        row("vectors hidden", "vector", {vectors, {"FieldMap.Vector.Show", "1", 0}},
            "([ ])|(Tail at point)|([ ])|(Plain)|(#d62728)|(Solid)|(2.00%)|(0.15%)");

        const Setting symbols {"FieldLayers.ShowScatter", "", 1};
        const Setting points {"FieldMap.Scatter.SymbolShape.GeomShape", "1", 10};
        const Setting spheres {"FieldMap.Scatter.SymbolShape.GeomShape", "1", 8};
        row("scatter layer off", "scatter", {},
            "([x])|(Square)|(2.00%)|(#d62728)|(0.15%)|(Line color)|(#ffffff)");
        row("scatter", "scatter", {symbols, {"FieldMap.Scatter.FillMode", "1", 1}},
            "[x]|Square|2.00%|#d62728|0.15%|Specific color|#ffffff");
        row("scatter hidden", "scatter", {symbols, {"FieldMap.Scatter.Show", "1", 0}},
            "([ ])|(Square)|(2.00%)|(#d62728)|(0.15%)|(Line color)|(#ffffff)");
        row("scatter by variable", "scatter",
            {symbols, {"GlobalScatter.Var", "", 4}, {"FieldMap.Scatter.SizeByVariable", "1", 1}},
            "[x]|Square|By: 4: U|#d62728|0.15%|Line color|(#ffffff)");
        row("scatter by no variable", "scatter",
            {symbols, {"FieldMap.Scatter.SizeByVariable", "1", 1}},
            "[x]|Square|By: unassigned|#d62728|0.15%|Line color|(#ffffff)");
        row("spheres in space", "scatter", {symbols, spheres},
            "[x]|Sphere|2.00%|#d62728|(0.15%)|(Line color)|(#ffffff)");
        row("spheres in the plane", "scatter 2D", {symbols, spheres},
            "[x]|Sphere|2.00%|#d62728|0.15%|Line color|(#ffffff)");
        row("points have no size", "scatter 2D", {symbols, points},
            "[x]|Point|(2.00%)|#d62728|(0.15%)|(Line color)|(#ffffff)");
        row("characters", "scatter",
            {symbols,
             points,
             {"FieldMap.Scatter.SymbolShape.IsASCII", "1", 1},
             {"FieldMap.Scatter.SymbolShape.ASCIIShape.UseBaseFont", "1", 0},
             {"FieldMap.Scatter.SymbolShape.ASCIIShape.FontOverride", "1", 2}},
            "[x]|A (Math)|2.00%|#d62728|0.15%|Line color|(#ffffff)");
        row("characters of the base font", "scatter",
            {symbols,
             {"FieldMap.Scatter.SymbolShape.IsASCII", "1", 1},
             {"FieldMap.Scatter.SymbolShape.ASCIIShape.FontOverride", "1", 2}},
            "[x]|A|2.00%|#d62728|0.15%|Line color|(#ffffff)");

        row("points carry nothing", "points", {}, "(Surface nodes)|(1,1,1)");
        row("points carry vectors", "points",
            {vectors, {"FieldMap.Points.IJKSkip.I", "1", 2}, {"FieldMap.Points.IJKSkip.K", "1", 3}},
            "Surface nodes|2,1,3");
        row("points carry symbols", "points", {symbols, {"FieldMap.Vector.Show", "1", 0}},
            "Surface nodes|1,1,1");
        row("points carry hidden symbols", "points", {symbols, {"FieldMap.Scatter.Show", "1", 0}},
            "(Surface nodes)|(1,1,1)");

        const auto surfaces = [](double choice) {
            return Setting {"FieldMap.Surfaces.SurfacesToPlot", "1", choice};
        };
        row("boundary", "surfaces 3D", {surfaces(0), {"FieldMap.Surfaces.IRange.Skip", "1", 2}},
            "Boundary cell faces|1,0,2|1,0,1|1,0,1");
        row("I-planes", "surfaces 3D", {surfaces(2)}, "I-Planes|1,0,1|(1,0,1)|(1,0,1)");
        row("J-planes", "surfaces 3D", {surfaces(3)}, "J-Planes|(1,0,1)|1,0,1|(1,0,1)");
        row("K-planes", "surfaces 3D", {surfaces(4)}, "K-Planes|(1,0,1)|(1,0,1)|1,0,1");
        row("IJ-planes", "surfaces 3D", {surfaces(5)}, "IJ-Planes|1,0,1|1,0,1|(1,0,1)");
        row("JK-planes", "surfaces 3D", {surfaces(6)}, "JK-Planes|(1,0,1)|1,0,1|1,0,1");
        row("IK-planes", "surfaces 3D", {surfaces(7)}, "IK-Planes|1,0,1|(1,0,1)|1,0,1");
        row("IJK-planes", "surfaces 3D", {surfaces(8)}, "IJK-Planes|1,0,1|1,0,1|1,0,1");
        row("all surfaces", "surfaces 3D", {surfaces(9)}, "All surfaces|(1,0,1)|(1,0,1)|(1,0,1)");
        row("no surfaces", "surfaces 3D", {surfaces(10)}, "None|1,0,1|1,0,1|1,0,1");

        row("volume in the plane", "volume", {{"PlotType", "", PlotType_Field2D}},
            "([x])|([x])|([x])");

        const Setting blanking {"Blanking.Value.Include", "", 1};
        row("no blanking", "effects", {}, "([x])");
        row("no constraint", "effects", {blanking}, "([x])");

        const Setting light {"FieldLayers.UseLightingEffect", "", 1};
        const Setting glass {"FieldLayers.UseTranslucency", "", 1};
        const Setting glassy {"FieldMap.Effects.UseTranslucency", "1", 1};
        row("no light", "effects 3D", {}, "([x])|(Gouraud)|([ ])|(50)");
        row("light", "effects 3D", {light, {"FieldMap.Contour.UseLightingEffect", "1", 0}},
            "([x])|Gouraud|([ ])|(50)");
        row("light on nothing", "effects 3D",
            {light,
             {"FieldMap.Contour.UseLightingEffect", "1", 0},
             {"FieldMap.Shade.UseLightingEffect", "1", 0}},
            "([x])|(Gouraud)|([ ])|(50)");
        row("wire frame", "effects 3D", {glass, glassy}, "([x])|(Gouraud)|([x])|(50)");
        row("translucent mesh", "effects 3D", {glass, glassy, {"FieldMap.Mesh.MeshType", "1", 2}},
            "([x])|(Gouraud)|[x]|50");
        row("translucent contour", "effects 3D", {glass, contours}, "([x])|(Gouraud)|[ ]|(50)");
        row("contour lines", "effects 3D",
            {glass, contours, {"FieldMap.Contour.ContourType", "1", 0}},
            "([x])|(Gouraud)|([ ])|(50)");
        row("translucent shade", "effects 3D",
            {glass, glassy, shades, {"FieldMap.Effects.LightingEffect", "1", 0}},
            "([x])|(Paneled)|[x]|50");

        row("XY definitions", "xy", {}, "1|Force|[x]|1: Zone 1|None|Always|1: Time|2: Force|X1|Y1");
        row("spline is not sorted", "xy",
            {{"LineMap.Curves.CurveType", "1", 4}, {"LineMap.Assign.XAxis", "1", 5}},
            "1|Force|[x]|1: Zone 1|(N/A)|Always|1: Time|2: Force|X5|Y1");
        row("parametric spline is", "xy",
            {{"LineMap.Curves.CurveType", "1", 5}, {"LineMap.Assign.Sort", "1", 2}},
            "1|Force|[x]|1: Zone 1|By dependent variable|Always|1: Time|2: Force|X1|Y1");
        row("sorted by a variable", "xy",
            {{"LineMap.Assign.Sort", "1", 3}, {"LineMap.Assign.SortVar", "1", 5}},
            "1|Force|[x]|1: Zone 1|Error|Always|1: Time|2: Force|X1|Y1");
        row("polar definitions", "polar", {}, "1|Gain|[x]|1: Zone 1|None|Always|6: Angle|7: Gain");

        row("lines", "lines",
            {{"LineMap.Lines.LineThickness", "1", 0.5}, {"LineMap.Lines.LinePattern", "1", 5}},
            "1|Force|[x]|[x]|#d62728|0.50%|Dash dot dot|2.00%");
        row("solid line", "lines", {}, "1|Force|[x]|[x]|#d62728|0.15%|Solid|(2.00%)");
        row("line layer off", "lines", {{"LinePlotLayers.ShowLines", "", 0}},
            "1|Force|[x]|([x])|(#d62728)|(0.15%)|(Solid)|(2.00%)");
        row("line hidden", "lines", {{"LineMap.Lines.Show", "1", 0}},
            "1|Force|[x]|([ ])|(#d62728)|(0.15%)|(Solid)|(2.00%)");

        const auto curve = [](double type) {
            return Setting {"LineMap.Curves.CurveType", "1", type};
        };
        row("segments", "curves", {}, "1|Force|[x]|Line segments|y=f(x)|(500)|(N/A)");
        row("clamped spline", "polar curves",
            {curve(4),
             {"LineMap.Curves.ClampSpline", "1", 1},
             {"LineMap.Assign.FunctionDependency", "1", 1}},
            "1|Angle|[x]|Spline|Theta=f(R)|500|Clamped: D1=0, D2=0");
        row("parametric spline", "curves", {curve(5)},
            "1|Force|[x]|Parametric spline|(y=f(x))|500|Not clamped");
        row("extended fit", "curves", {curve(6)},
            "1|Force|[x]|Smoothing spline|y=f(x)|500|Closeness=0.9, Using all points, Not using "
            "weighting variable");

        const Setting marks {"LinePlotLayers.ShowSymbols", "", 1};
        row("symbol layer off", "symbols", {},
            "1|Force|[x]|([x])|(Square)|(2.00%)|(Draw all)|(#d62728)|(0.15%)|(None)|(#ffffff)");
        row("symbols", "symbols",
            {marks,
             {"LineMap.Symbols.Skipping", "1", 3},
             {"LineMap.Symbols.SymbolShape.GeomShape", "1", 255},
             {"LineMap.Symbols.FillMode", "1", 1}},
            "1|Force|[x]|[x]|Character|2.00%|I=3|#d62728|0.15%|Specific color|#ffffff");
        row("symbols apart", "symbols",
            {marks,
             {"LineMap.Symbols.Skipping", "1", 2.5},
             {"LineMap.Symbols.SkipMode", "1", 1},
             {"LineMap.Symbols.FillMode", "1", 2}},
            "1|Force|[x]|[x]|Square|2.00%|D=2.5%|#d62728|0.15%|Line color|(#ffffff)");
        row("symbols at no distance", "symbols",
            {marks, {"LineMap.Symbols.Skipping", "1", 0}, {"LineMap.Symbols.SkipMode", "1", 1}},
            "1|Force|[x]|[x]|Square|2.00%|Draw all|#d62728|0.15%|None|(#ffffff)");
        row("symbols hidden", "symbols", {marks, {"LineMap.Symbols.Show", "1", 0}},
            "1|Force|[x]|([ ])|(Square)|(2.00%)|(Draw all)|(#d62728)|(0.15%)|(None)|(#ffffff)");

        const Setting errors {"LinePlotLayers.ShowErrorBars", "", 1};
        row("error bars hidden", "error bars", {errors},
            "1|Force|[x]|([ ])|(<Undef>)|(Vertical)|(Draw all)|(#d62728)|(2.00%)|(0.15%)");
        row("error bars", "error bars",
            {errors,
             {"LineMap.ErrorBars.Show", "1", 1},
             {"LineMap.ErrorBars.Var", "1", 5},
             {"LineMap.ErrorBars.Skipping", "1", 4}},
            "1|Force|[x]|[x]|5: Error|Vertical|I=4|#d62728|2.00%|0.15%");
        row("bar layer off", "bars", {},
            "1|Force|[x]|([x])|(Vertical (y=f(x)))|(2.00%)|(#d62728)|(0.15%)|(Line color)|"
            "(#ffffff)");
        row("bars", "bars",
            {{"LinePlotLayers.ShowBarCharts", "", 1},
             {"LineMap.Assign.FunctionDependency", "1", 1},
             {"LineMap.BarCharts.FillMode", "1", 1}},
            "1|Time|[x]|[x]|Horizontal (x=f(y))|2.00%|#d62728|0.15%|Specific color|#ffffff");

        const auto zone = [](double number) {
            return Setting {"LineMap.Assign.Zone", "1", number};
        };
        row("line of points", "indices", {{"LineMap.Indices.IRange.Skip", "1", 3}},
            "1|Force|[x]|I-Varying|1,0,3|(1,0,1)|(1,0,1)");
        row("points without an order", "indices", {zone(4)},
            "1|Force|[x]|(I-Varying)|1,0,1|(1,0,1)|(1,0,1)");
    }

    void showRows()
    {
        const auto [chain, settings, row] = currentRow<QString, QVector<Setting>, QString>();
        open(chain);
        for (const Setting& setting : settings)
            QVERIFY(setStyle(setting.path, setting.maps, setting.value));
        const QString shown = m_model->rowCount() == 6 ? "" : "1|Zone 1|1|[x]|";
        QCOMPARE(rowText(*m_model, 0), shown + row);
        for (int column = 0; column < m_model->columnCount(); ++column) {
            const QModelIndex cell = m_model->index(0, column);
            if (cell.data().userType() == QMetaType::QColor)
                QCOMPARE(cell.data(Qt::EditRole), cell.data());
        }
    }

    /// What applies depends on the kinds of a map's zones: ordered volume, ordered surface,
    /// triangles, tetrahedra, line, empty, hexahedra, polygons.
    void followZones_data()
    {
        const Rows<QString, QString, QString> row; // chain, column, its cells
        row("edge type", "edge", "Edge Type",
            "Borders and creases|Borders and creases|Borders and creases|Borders and "
            "creases|Borders and creases|Borders and creases|Borders and creases|Borders and "
            "creases");
        row("edge color", "edge", "Edge Color",
            "#000000|#000000|#000000|(#000000)|#000000|#000000|(#000000)|#000000");
        row("edge thickness", "edge", "Line Thickness",
            "0.30%|0.30%|0.30%|(0.30%)|0.30%|0.30%|(0.30%)|0.30%");
        row("border", "edge", "J-Index Border",
            "Both|Both|(Both)|(Both)|Both|(Both)|(Both)|(Both)");
        row("surfaces", "surfaces", "Surfaces to Plot",
            "None|(N/A)|(N/A)|None|(N/A)|(N/A)|None|(N/A)");
        row("ranges", "surfaces", "I-Plane Range", "1,0,1|()|()|(1,0,1)|()|()|(1,0,1)|()");
        row("volume", "volume", "Show Slices", "[x]|(N/A)|(N/A)|[x]|(N/A)|(N/A)|[x]|(N/A)");
    }

    void followZones()
    {
        const auto [chain, column, cells] = currentRow<QString, QString, QString>();
        open(chain);
        QCOMPARE(columnText(*m_model, columnOf(column)), cells);
    }

    void countSevenConstraints()
    {
        open("effects");
        QVERIFY(setStyle("Blanking.Value.Include", "", 1));
        for (const int constraint : {style::BlankingConstraint::kCount, 7}) {
            QVERIFY(setStyle("Blanking.Value.Constraint.Include", "", 1, constraint));
            QCOMPARE(cellText(*m_model, 0, 4), QString(constraint == 7 ? "[x]" : "([x])"));
        }
    }

    void writeEdits_data()
    {
        const Rows<QString, QString, QVariant, int,
                   QString>
            add; // chain, column, value, role, written (for maps 2 and 3)
        const auto row = [&add](const char* chain, const char* column, const QVariant& value,
                                const char* written, int role = Qt::EditRole) {
            add(qPrintable(QString::asprintf("%s, %s = %s for %d", chain, column,
                                             qPrintable(value.toString()), role)),
                chain, column, value, role, written);
        };

        row("mesh", "Zone Number", 5, "");
        row("vector", "Vector Tangents", 2, "FieldMap.Vector.IsTangent 2-3 = true");
        row("vector", "Head Style", "Hollow", "FieldMap.Vector.ArrowheadStyle 2-3 = 2");
        row("vector", "Pattern Length", "1.60", "FieldMap.Vector.PatternLength 2-3 = 2");
        row("scatter", "Symbol Shape", "Sphere", "FieldMap.Scatter.SymbolShape.GeomShape 2-3 = 8");
        row("scatter", "Symbol Shape", "LineArt", ""); // not offered
        row("scatter", "Scatter Size", "3.00", "FieldMap.Scatter.FrameSize 2-3 = 3");
        row("edge", "K-Index Border", 1, "FieldMap.EdgeLayer.KBorder 2-3 = 1");
        row("surfaces", "Surfaces to Plot", "None", "FieldMap.Surfaces.SurfacesToPlot 2-3 = 10");
        row("surfaces", "I-Plane Range", 2, "FieldMap.Surfaces.IRange 2-3 = 2 (4)");
        row("surfaces", "J-Plane Range", 2, "FieldMap.Surfaces.JRange 2-3 = 2 (4)");
        row("surfaces", "K-Plane Range", 2, "FieldMap.Scatter.KRange 2-3 = 2 (3)");
        row("volume", "Show Slices", Qt::Checked,
            "FieldMap.VolumeMode.VolumeObjectsToPlot.ShowSlices 2-3 = true");
        row("effects 3D", "Surface Translucency", "30",
            "FieldMap.Effects.SurfaceTranslucency 2-3 = 30");
        row("mesh", "Zone Name", "x", "");
        row("mesh", "Group Number", "3", "FieldMap.Group 2-3 = 3");
        row("mesh", "Group Number", "3", "", Qt::DisplayRole);
        row("mesh", "Group Number", "", "FieldMap.Group 2-3 = 0 (6)");
        row("mesh", "Show Zone", 0, "ActiveFieldMaps - 2-3", Qt::CheckStateRole);
        row("mesh", "Show Zone", 0, "", Qt::EditRole);

        row("mesh", "Show Mesh", 2, "FieldMap.Mesh.Show 2-3 = true", Qt::CheckStateRole);
        row("mesh", "Show Mesh", 2, "FieldMap.Mesh.Show 2-3 = true", Qt::DisplayRole);
        row("mesh", "Show Mesh", true, "FieldMap.Mesh.Show 2-3 = false", Qt::CheckStateRole);
        row("mesh", "Mesh Type", "Hidden line", "FieldMap.Mesh.MeshType 2-3 = 2");
        row("mesh", "Mesh Type", 2, "FieldMap.Mesh.MeshType 2-3 = 2");
        row("mesh", "Mesh Type", 2, "", Qt::DisplayRole);
        for (const char* column : {"Line Pattern", "Pattern Length", "Line Thickness"})
            row("mesh", column, 2, "", Qt::DisplayRole);
        row("mesh", "Mesh Type", "Hidden", "");
        row("mesh", "Mesh Type", 3, "FieldMap.Mesh.MeshType 2-3 = 3 (6)");
        row("mesh", "Mesh Color", 5, "");
        row("mesh", "Pattern Length", "0.50", "FieldMap.Mesh.PatternLength 2-3 = 1");
        row("mesh", "Line Thickness", "0.30%", "FieldMap.Mesh.LineThickness 2-3 = 0 (6)");

        row("contour", "Contour Type", "lines", "FieldMap.Contour.ContourType 2-3 = 0",
            Qt::UserRole);
        row("contour", "Flood By", "RGB", "FieldMap.Contour.FloodColoring 2-3 = 0");
        row("contour", "Flood By", "C1: Pressure", "FieldMap.Contour.FloodColoring 2-3 = 1");
        row("contour", "Lines By", "C2: Density", "FieldMap.Contour.LineContourGroup 2-3 = 2");
        row("contour", "Lines By", "RGB", "FieldMap.Contour.LineContourGroup 2-3 = 0 (6)");
        row("contour", "Pattern Length", 4, "FieldMap.Contour.PatternLength 2-3 = 4",
            Qt::DisplayRole);
        row("contour 3D", "Use Lighting", 0, "FieldMap.Contour.UseLightingEffect 2-3 = false",
            Qt::CheckStateRole);
        row("shade 3D", "Use Lighting", 0, "FieldMap.Shade.UseLightingEffect 2-3 = false",
            Qt::CheckStateRole);

        row("xy", "Show Map", 0, "ActiveLineMaps - 2-3", Qt::DisplayRole);
        row("xy", "Zone", "3: Zone 3", "LineMap.Assign.Zone 2-3 = 3");
        row("xy", "Zone", 1, "LineMap.Assign.Zone 2-3 = 2");
        row("xy", "Zone", "", "");
        row("xy", "Zone", 2147483647, "LineMap.Assign.Zone 2-3 = 2147483647 (6)");
        row("xy", "Sort", "By dependent variable", "LineMap.Assign.Sort 2-3 = 2");
        row("xy", "Sort", "By specific variable", "");
        row("xy", "Show in Legend", "Never", "LineMap.Assign.ShowInLegend 2-3 = 1");
        row("xy", "X-Axis Variable", "4: Power", "LineMap.Assign.XAxisVar 2-3 = 4");
        row("xy", "Y-Axis Variable", 0, "LineMap.Assign.YAxisVar 2-3 = 1");
        row("xy", "Which X-Axis", "X5", "LineMap.Assign.XAxis 2-3 = 5");
        row("xy", "Which Y-Axis", 0, "LineMap.Assign.YAxis 2-3 = 1");
        row("polar", "Theta Variable", "7: Gain", "LineMap.Assign.ThetaAxisVar 2-3 = 7");
        row("polar", "Radius Variable", 1, "LineMap.Assign.RAxisVar 2-3 = 2");

        row("lines", "Line Thickness", 2, "FieldMap.Lines.LineThickness 2-3 = 2 (3)");
        row("lines", "Pattern Length", 2, "FieldMap.Lines.PatternLength 2-3 = 2 (3)");
        row("curves", "Curve Type", "power fit", "LineMap.Curves.CurveType 2-3 = 3");
        row("curves", "Curve Type", 6, "LineMap.Curves.ExtendedFit 2-3 = 0");
        row("curves", "Curve Type", 8, "");
        row("curves", "Curve Points", "250", "LineMap.Curves.NumPts 2-3 = 250");
        row("polar curves", "Dependent Variable", "theta=f(r)",
            "LineMap.Assign.FunctionDependency 2-3 = 1");
        row("symbols", "Symbol Shape", "Character",
            "LineMap.Symbols.SymbolShape.GeomShape 2-3 = 255");
        row("symbols", "Line Thickness", "0.60", "LineMap.Symbols.Size 2-3 = 1");
        row("symbols", "Symbol Spacing", "2", "");
        row("error bars", "Error Bar Variable", "4: Power", "LineMap.ErrorBars.Var 2-3 = 4");
        row("error bars", "Show Error Bars", 0, "LineMap.ErrorBars.Show 2-3 = false");
        row("bars", "Bar Direction", "Horizontal (x=f(y))",
            "LineMap.Assign.FunctionDependency 2-3 = 1");
        row("indices", "Varying Index", "K-Varying", "LineMap.Indices.IJKLines 2-3 = 2");
        row("indices", "I-Index Range", "1,2,3", "");

        // What an edit of numbers and of choices stands for.
        const auto group = [&](const QVariant& value, const char* number) {
            row("mesh", "Group Number", value,
                qPrintable(QString("FieldMap.Group 2-3 = ") + number));
        };
        group(0.5, "1");
        group(2.5, "3");
        group(1e300, "2147483647");
        group(-1e300, "-2147483648 (6)");
        group(qQNaN(), "0 (6)");
        group(true, "1");
        group("  12.4 % ", "12");
        group("1,5", "0 (6)");
        group("inf", "0 (6)");
        group("none", "0 (6)");
        group(QVariant(), "0 (6)");
        row("contour", "Line Pattern", "Dash dot", "FieldMap.Contour.LinePattern 2-3 = 2");
        row("contour", "Line Pattern", "Dash", "");
        row("contour", "Line Pattern", " 4 ", "FieldMap.Contour.LinePattern 2-3 = 4");
        row("contour", "Line Pattern", "1.5", "");
    }

    void writeEdits()
    {
        const auto [chain, column, value, role, written] =
            currentRow<QString, QString, QVariant, int, QString>();
        open(chain);
        QVERIFY(m_model->setDataForIndexes(cells(*m_model, {1, 2}, columnOf(column)), value, role));
        QCOMPARE(takeWrites(), written);
    }

    void offerMenus_data()
    {
        const Rows<QString, QString, QString, QString,
                   QString>
            add; // chain, column, entries, chosen, written (for maps 3 and 1)
        const auto row = [&add](const char* chain, const char* column, const char* entries,
                                const char* chosen = "", const char* written = "") {
            add(QString::asprintf("%s, %s", chain, column), chain, column, entries, chosen,
                written);
        };
        const char* lengths = "0.50|1.00|2.00|4.00|8.00|-|Enter...";
        const char* thicknesses = "0.05|0.15|0.30|0.60|1.20|-|Enter...";
        const char* patterns = "Solid|Dashed|Dash dot|Dotted|Long dash|Dash dot dot";

        row("mesh", "Zone Number", "");
        row("mesh", "Zone Name", "");
        row("mesh", "Group Number", "");
        row("mesh", "Show Zone", "Activate|Deactivate|Show selected only|Invert", "Invert",
            "ActiveFieldMaps - 1,3");
        row("mesh", "Show Mesh", "Yes|No", "No", "FieldMap.Mesh.Show 1,3 = false");
        row("mesh", "Mesh Type", "Wire frame|Overlay|Hidden line", "Hidden line",
            "FieldMap.Mesh.MeshType 1,3 = 2");
        row("mesh", "Mesh Color", "<colors and groups>");
        row("mesh", "Line Pattern", patterns, "Dash dot dot", "FieldMap.Mesh.LinePattern 1,3 = 5");
        row("mesh", "Pattern Length", lengths, "0.50", "FieldMap.Mesh.PatternLength 1,3 = 0.5");
        row("mesh", "Line Thickness", thicknesses, "0.05",
            "FieldMap.Mesh.LineThickness 1,3 = 0.05");

        row("contour", "Contour Type",
            "Lines|Flood|Lines and flood|Average cell flood|Primary value flood",
            "Primary value flood", "FieldMap.Contour.ContourType 1,3 = 4");
        row("contour", "Flood By",
            "C1: Pressure|C2: Density|C3: unassigned|C4: unassigned|C5: unassigned|C6: "
            "unassigned|C7: unassigned|C8: unassigned|-|(RGB)",
            "C3: unassigned", "FieldMap.Contour.FloodColoring 1,3 = 3");
        row("contour", "Lines By",
            "C1: Pressure|C2: Density|C3: unassigned|C4: unassigned|C5: unassigned|C6: "
            "unassigned|C7: unassigned|C8: unassigned",
            "C8: unassigned", "FieldMap.Contour.LineContourGroup 1,3 = 8");
        row("contour", "Line Color", "<colors and groups>");
        row("contour 3D", "Use Lighting", "Yes|No", "No",
            "FieldMap.Contour.UseLightingEffect 1,3 = false");
        row("shade", "Shade Color", "<colors>");
        row("shade 3D", "Use Lighting", "Yes|No", "No",
            "FieldMap.Shade.UseLightingEffect 1,3 = false");

        row("vector", "Vector Type", "Tail at point|Head at point|Anchor at midpoint|Head only",
            "Head only", "FieldMap.Vector.VectorType 1,3 = 3");
        row("vector", "Line Color", "<colors and groups>");
        row("scatter", "Symbol Shape",
            "Square|Delta|Gradient|Right triangle|Left "
            "triangle|Diamond|Circle|Cube|Sphere|Octahedron|Point|-|Enter character...",
            "Cube", "FieldMap.Scatter.SymbolShape.GeomShape 1,3 = 7");
        row("scatter", "Scatter Size",
            "0.50|1.00|2.00|3.00|5.00|-|Enter...|By: unassigned|Select variable...", "1.00",
            "FieldMap.Scatter.FrameSize 1,3 = 1; FieldMap.Scatter.SizeByVariable 1,3 = false");
        row("scatter", "Fill Mode", "None|Specific color|Line color|Background color", "None",
            "FieldMap.Scatter.FillMode 1,3 = 0");
        row("scatter", "Fill Color", "<colors and groups>");
        row("edge", "Edge Type", "Borders|Creases|Borders and creases", "Creases",
            "FieldMap.EdgeLayer.EdgeType 1,3 = 1");
        row("edge", "Edge Color", "<colors>");
        row("edge", "I-Index Border", "None|Min only|Max only|Both", "Max only",
            "FieldMap.EdgeLayer.IBorder 1,3 = 2");
        row("points", "Points to Plot",
            "Surface nodes|All nodes|Surface cell centers|All cell centers|All connected nodes",
            "All cell centers", "FieldMap.Points.PointsToPlot 1,3 = 3");
        row("points", "Index Skip", "No skip|Enter skip...", "No skip",
            "FieldMap.Points.IJKSkip.I 1,3 = 1; FieldMap.Points.IJKSkip.J 1,3 = 1; "
            "FieldMap.Points.IJKSkip.K 1,3 = 1");
        row("surfaces", "Surfaces to Plot",
            "None|Boundary cell faces|Exposed cell "
            "faces|I-Planes|J-Planes|K-Planes|IJ-Planes|JK-Planes|IK-Planes|IJK-Planes|All "
            "surfaces",
            "None", "FieldMap.Surfaces.SurfacesToPlot 1,3 = 10");
        row("surfaces", "K-Plane Range", "Enter range...");
        row("volume", "Show Iso-Surfaces", "Yes|No", "No",
            "FieldMap.VolumeMode.VolumeObjectsToPlot.ShowIsosurfaces 1,3 = false");
        row("effects 3D", "Lighting Effect", "Paneled|Gouraud", "Paneled",
            "FieldMap.Effects.LightingEffect 1,3 = 0");
        row("effects 3D", "Surface Translucency", "10|20|30|40|50|60|70|80|90|Enter...", "90",
            "FieldMap.Effects.SurfaceTranslucency 1,3 = 90");

        row("xy", "Map Number", "");
        row("xy", "Map Name", "");
        row("xy", "Show Map", "Activate|Deactivate|Show selected only|Invert", "Show selected only",
            "ActiveLineMaps + 1,3; ActiveLineMaps - 2,4-6");
        row("xy", "Zone", "Select Zone...");
        row("xy", "Sort", "None|By independent variable|By dependent variable",
            "By dependent variable", "LineMap.Assign.Sort 1,3 = 2");
        row("xy", "Show in Legend", "Always|Never|Auto", "Auto",
            "LineMap.Assign.ShowInLegend 1,3 = 2");
        row("xy", "X-Axis Variable", "Select Variable...", "Select Variable...",
            "LineMap.Assign.XAxisVar 1,3 = 7");
        row("xy", "Y-Axis Variable", "Select Variable...", "Select Variable...",
            "LineMap.Assign.YAxisVar 1,3 = 7");
        row("xy", "Which X-Axis", "X1|X2|X3|X4|X5", "X5", "LineMap.Assign.XAxis 1,3 = 5");
        row("xy", "Which Y-Axis", "Y1|Y2|Y3|Y4|Y5", "Y2", "LineMap.Assign.YAxis 1,3 = 2");
        row("polar", "Theta Variable", "Select Variable...", "Select Variable...",
            "LineMap.Assign.XAxisVar 1,3 = 7");
        row("polar", "Radius Variable", "Select Variable...", "Select Variable...",
            "LineMap.Assign.YAxisVar 1,3 = 7");

        row("lines", "Line Thickness", thicknesses, "0.05",
            "LineMap.Lines.LineThickness 1,3 = 0.05");
        row("lines", "Line Color", "<colors>");
        row("curves", "Curve Type",
            "Line segments|Polynomial fit|Exponential fit|Power fit|Spline|Parametric spline|-|"
            "Smoothing spline|Gaussian",
            "Gaussian", "LineMap.Curves.ExtendedFit 1,3 = 1");
        row("curves", "Curve Points", "250|500|1000|-|Enter...", "1000",
            "LineMap.Curves.NumPts 1,3 = 1000");
        row("curves", "Curve Setting", "(&Settings...)");
        row("polar curves", "Dependent Variable", "R=f(Theta)|Theta=f(R)", "Theta=f(R)",
            "LineMap.Assign.FunctionDependency 1,3 = 1");
        row("symbols", "Symbol Shape",
            "Square|Delta|Gradient|Right triangle|Left triangle|Diamond|Circle|-|Enter "
            "character...",
            "Circle", "LineMap.Symbols.SymbolShape.GeomShape 1,3 = 6");
        row("symbols", "Line Thickness", thicknesses, "0.60",
            "LineMap.Symbols.LineThickness 1,3 = 0.6");
        const char* spacings = "Draw all|-|I skip=2|I skip=3|I skip=4|-|Distance=1|Distance=2|"
                               "Distance=3|-|Enter index...|Enter distance...";
        row("symbols", "Symbol Spacing", spacings, "I skip=3",
            "LineMap.Symbols.SkipMode 1,3 = 0; LineMap.Symbols.Skipping 1,3 = 3");
        row("error bars", "Error Bar Spacing", spacings, "Distance=2",
            "LineMap.ErrorBars.SkipMode 1,3 = 1; LineMap.ErrorBars.Skipping 1,3 = 2");
        row("error bars", "Error Bar Type", "Up|Down|Left|Right|Horizontal|Vertical|Cross", "Cross",
            "LineMap.ErrorBars.BarType 1,3 = 6");
        row("error bars", "Error Bar Size", "0.50|1.00|2.00|3.00|5.00|-|Enter...", "5.00",
            "LineMap.ErrorBars.Size 1,3 = 5");
        row("bars", "Bar Direction", "Vertical (y=f(x))|Horizontal (x=f(y))", "Horizontal (x=f(y))",
            "LineMap.Assign.FunctionDependency 1,3 = 1");
        row("indices", "Varying Index", "I-Varying|J-Varying|K-Varying", "K-Varying",
            "LineMap.Indices.IJKLines 1,3 = 2");
        row("indices", "J-Index Range", "Enter range...");
    }

    void offerMenus()
    {
        const auto [chain, column, entries, chosen, written] =
            currentRow<QString, QString, QString, QString, QString>();
        open(chain);
        ModalResponder user;
        if (chosen == "Select Variable...")
            user.reply("Gain");
        ColumnMenu menu(*m_model, {2, 0}, columnOf(column));
        QCOMPARE(menu.text(), entries);
        if (!chosen.isEmpty())
            QVERIFY(menu.choose(chosen));
        QCOMPARE(takeWrites(), written);
        QVERIFY(user.isSettled());
        for (const QString& seen : user.takeSeen())
            QVERIFY2(seen.startsWith("Choose the variable: Choose the variable ["),
                     qPrintable(seen));
    }

    void markWhatCounts_data()
    {
        const Setting character {"FieldMap.Scatter.SymbolShape.IsASCII", "1", 1};
        const Rows<QString, QVector<Setting>, QString,
                   QString>
            row; // chain, settings, column, the marked entries
        row("skip", "points", {}, "Index Skip", "No skip");
        row("other skip", "points", {{"FieldMap.Points.IJKSkip.K", "1", 3}}, "Index Skip", "");
        row("shape", "scatter", {}, "Symbol Shape", "Square");
        row("character", "scatter", {character}, "Symbol Shape", "");
        row("size", "scatter", {}, "Scatter Size", "2.00");
        row("size by variable", "scatter", {{"FieldMap.Scatter.SizeByVariable", "1", 1}},
            "Scatter Size", "By: unassigned");
    }

    void markWhatCounts()
    {
        const auto [chain, settings, column, marked] =
            currentRow<QString, QVector<Setting>, QString, QString>();
        open(chain);
        for (const Setting& setting : settings)
            QVERIFY(setStyle(setting.path, setting.maps, setting.value));
        const ColumnMenu menu(*m_model, {0}, columnOf(column));
        QStringList texts;
        for (const QAction* entry : menu.actions())
            if (const auto* action = qobject_cast<const Action*>(entry))
                texts << (action->isPresentValue() ? action->text() : QString());
        texts.removeAll(QString());
        QCOMPARE(texts.join('|'), marked);
    }

    void greyInactiveMaps()
    {
        open("mesh");
        QVERIFY(m_model->setData(m_model->index(0, columnOf("Show Zone")), Qt::Unchecked,
                                 Qt::CheckStateRole));
        QVERIFY(rowText(*m_model, 0).startsWith("(1)|(Zone 1)|(1)|([ ])|([x])|("));
        QVERIFY(rowText(*m_model, 1).startsWith("2|Zone 2|1|[x]|[x]|"));

        open("xy");
        QVERIFY(m_model->setData(m_model->index(0, columnOf("Show Map")), Qt::Unchecked,
                                 Qt::CheckStateRole));
        QCOMPARE(
            rowText(*m_model, 0),
            QString("(1)|(Force)|([ ])|(1: Zone 1)|(None)|Always|(1: Time)|(2: Force)|(X1)|(Y1)"));
    }

    void enableRGBWithItsVariables()
    {
        open("contour");
        for (const char* channel : {"RedVar", "GreenVar", "BlueVar"}) {
            QVERIFY(!ColumnMenu(*m_model, {0}, columnOf("Flood By")).choose("RGB"));
            QVERIFY(setStyle(QString("GlobalRGB.") + channel, "", 3));
        }
        QVERIFY(ColumnMenu(*m_model, {0}, columnOf("Flood By")).choose("RGB"));
        QCOMPARE(takeWrites(), QString("FieldMap.Contour.FloodColoring 1 = 0"));
    }

    void describeColumns_data()
    {
        const Rows<QString> add;
        const auto row = [&add](const char* chain, const QString& columns) {
            add(chain,
                "Zone Number i 0/0, Zone Name i 1/2, Group Number i 1/0 e, Show Zone i 7/0 c, "
                    + columns);
        };
        // Header, i/p/s for the brush, editor type and option, flags: e editable, c checkable.
        row("mesh",
            "Show Mesh p 7/0 c, Mesh Type p 3/1, Mesh Color p 8/0, Line Pattern s 3/1, Pattern "
            "Length s 5/0, Line Thickness s 5/0");
        row("contour 3D",
            "Show Contour p 7/0 c, Contour Type p 3/1, Flood By p 3/4, Lines By p 3/4, Line Color "
            "s 8/0, Line Pattern s 3/1, Pattern Length s 5/0, Line Thickness s 5/0, Use Lighting s "
            "7/0 c");
        row("shade 3D", "Show Shade p 7/0 c, Shade Color p 8/0, Use Lighting s 7/0 c");
        row("vector",
            "Show Vector p 7/0 c, Vector Type p 3/1, Vector Tangents p 7/0 c, Head Style s 3/1, "
            "Line Color s 8/0, Line Pattern s 3/1, Pattern Length s 5/0, Line Thickness s 5/0");
        row("scatter",
            "Show Scatter p 7/0 c, Symbol Shape p 4/1, Scatter Size p 4/0, Outline Color s 8/0, "
            "Line Thickness s 3/0, Fill Mode s 3/1, Fill Color s 8/0");
        row("edge",
            "Show Edges p 7/0 c, Edge Type p 3/1, Edge Color p 8/0, Line Thickness p 5/0, I-Index "
            "Border s 3/1, J-Index Border s 3/1, K-Index Border s 3/1");
        row("points", "Points to Plot p 3/1, Index Skip s 1/0");
        row("surfaces",
            "Surfaces to Plot p 3/1, I-Plane Range s 2/0, J-Plane Range s 2/0, K-Plane Range s "
            "2/0");
        row("volume", "Show Iso-Surfaces p 7/0 c, Show Slices p 7/0 c, Show Streamtraces p 7/0 c");
        row("effects 3D",
            "Use Value Blanking p 7/0 c, Lighting Effect p 3/1, Use Surface Translucency p 7/0 c, "
            "Surface Translucency s 3/0");
        add("xy",
            "Map Number i 0/0, Map Name i 9/2 e, Show Map i 7/0 c, Zone p 6/2 e, Sort s 3/1, Show "
            "in Legend s 3/1, X-Axis Variable p 6/3 e, Y-Axis Variable p 6/3 e, Which X-Axis s "
            "3/0, Which Y-Axis s 3/0");
        add("polar",
            "Map Number i 0/0, Map Name i 9/2 e, Show Map i 7/0 c, Zone p 6/2 e, Sort s 3/1, Show "
            "in Legend s 3/1, Theta Variable p 6/3 e, Radius Variable p 6/3 e");
        const auto ofLines = [&add](const char* chain, const QString& columns) {
            add(chain, "Map Number i 0/0, Map Name i 9/2 e, Show Map i 7/0 c, " + columns);
        };
        ofLines("lines",
                "Show Lines p 7/0 c, Line Color s 8/0, Line Thickness s 5/0, Line Pattern s 3/1, "
                "Pattern Length s 5/0");
        ofLines("curves",
                "Curve Type p 3/1, Dependent Variable p 3/0, Curve Points s 5/1, Curve Setting s "
                "0/3");
        ofLines("symbols",
                "Show Symbols p 7/0 c, Symbol Shape p 4/1, Symbol Size p 5/0, Symbol Spacing p "
                "0/0, Outline Color s 8/0, Line Thickness s 5/0, Fill Mode s 3/1, Fill Color s "
                "8/0");
        ofLines("error bars",
                "Show Error Bars p 7/0 c, Error Bar Variable p 6/3 e, Error Bar Type p 3/2, Error "
                "Bar Spacing p 0/0, Error Bar Color p 8/0, Error Bar Size p 5/0, Line Thickness s "
                "5/0");
        ofLines("bars",
                "Show Bars p 7/0 c, Bar Direction p 3/1, Bar Size p 5/0, Outline Color s 8/0, Line "
                "Thickness s 5/0, Fill Mode s 3/1, Fill Color s 8/0");
        ofLines("indices",
                "Varying Index p 1/1, I-Index Range s 2/0, J-Index Range s 2/0, K-Index Range s "
                "2/0");
    }

    void describeColumns()
    {
        const auto [columns] = currentRow<QString>();
        open(QTest::currentDataTag());
        const std::map<QString, QString> brushes {
            {"#3a5a95", "i"}, {"#1f731c", "p"}, {"#c24809", "s"}};
        QStringList texts;
        for (int column = 0; column < m_model->columnCount(); ++column) {
            const auto brush =
                m_model->headerData(column, Qt::Horizontal, Qt::BackgroundRole).value<QBrush>();
            const Qt::ItemFlags flags = m_model->flags(m_model->index(0, column));
            QVERIFY(flags.testFlag(Qt::ItemIsSelectable) && flags.testFlag(Qt::ItemIsEnabled));
            texts << QString("%1 %2 %3/%4%5%6")
                         .arg(m_model->headerData(column, Qt::Horizontal)
                                  .toString()
                                  .replace('\n', ' '),
                              brushes.at(brush.color().name()))
                         .arg(m_model->columnEditorType(column))
                         .arg(m_model->columnEditorOption(column))
                         .arg(flags.testFlag(Qt::ItemIsEditable) ? " e" : "",
                              flags.testFlag(Qt::ItemIsUserCheckable) ? " c" : "");
        }
        QCOMPARE(texts.join(", "), columns);
    }

    void refuseEdits()
    {
        open("points");
        QVERIFY(!m_model->setData(m_model->index(0, columnOf("Points to Plot")), 1));
        QCOMPARE(takeWrites(), QString());
    }

    /// Reading a step that marks nothing mends it, once, and undo leads back before it.
    void mendSpacing()
    {
        open("symbols");
        QVERIFY(setStyle("LineMap.Symbols.Skipping", "2", 3));
        QVERIFY(setStyle("LineMap.Symbols.Skipping", "2", 0));
        const QModelIndex spacing = m_model->index(1, columnOf("Symbol Spacing"));
        QCOMPARE(spacing.data().toString(), QString("Draw all"));
        QCOMPARE(takeWrites(), QString("LineMap.Symbols.Skipping 2 = 1"));
        QCOMPARE(spacing.data().toString(), QString("Draw all"));
        QCOMPARE(takeWrites(), QString());
        Document::instance().undo().undo();
        QCOMPARE(spacing.data().toString(), QString("I=3"));
        QVERIFY(Document::instance().undo().redo());
        QCOMPARE(spacing.data().toString(), QString("Draw all"));
    }

    /// Error bars are not switched on without a variable.
    void askForVariables()
    {
        open("error bars");
        const QModelIndexList shown = cells(*m_model, {1, 2}, columnOf("Show Error Bars"));
        ModalResponder user;
        user.reject().reply("Error");
        for (const char* written :
             {"", "LineMap.ErrorBars.Var 2-3 = 5; LineMap.ErrorBars.Show 2-3 = true",
              "LineMap.ErrorBars.Show 2-3 = true"}) {
            QVERIFY(m_model->setDataForIndexes(shown, Qt::Checked, Qt::CheckStateRole));
            QCOMPARE(takeWrites(), QString(written));
        }
        QVERIFY(user.isSettled());
        QVERIFY(user.takeSeen().first().startsWith(
            "Select the error bar variable: Select the error bar variable ["));
    }

    void renameMapsForAnyRole()
    {
        open("xy");
        const int column = columnOf("Map Name");
        QVERIFY(m_model->setDataForIndexes(cells(*m_model, {1, 2}, column), "Run &M#&",
                                           Qt::DisplayRole));
        QCOMPARE(columnText(*m_model, column).section('|', 0, 2), QString("Force|Run 2|Run 3"));
        QCOMPARE(m_model->index(2, column).data(Qt::EditRole).toString(), QString("Run &M#&"));
    }

    void confirmZones()
    {
        open("xy");
        const QModelIndexList zones = cells(*m_model, {1, 2}, columnOf("Zone"));
        ModalResponder user;
        user.reject().accept();
        QVERIFY(!m_model->setDataForIndexes(zones, "4: Zone 4", Qt::EditRole)); // is not ordered
        QCOMPARE(takeWrites(), QString());
        QVERIFY(m_model->setDataForIndexes(zones, "4: Zone 4", Qt::EditRole));
        QCOMPARE(takeWrites(), QString("LineMap.Assign.Zone 2-3 = 4"));
        QVERIFY(user.isSettled());
    }

    void confirmZonesForTheEditedMaps()
    {
        open("xy");
        auto data =
            std::make_shared<corvala::host::DataSet>(*Document::instance().activeFrame()->data());
        data->variables.push_back({"Missing", {}, "no such array", 0});
        Document::instance().execute(corvala::host::AttachData {{}, data, PlotType_LineXY, 3});
        QVERIFY(setStyle("LineMap.Assign.YAxisVar", "2", 8));
        ModalResponder user;
        QVERIFY(m_model->setData(m_model->index(0, columnOf("Zone")), "2: Zone 2"));
        user.reject();
        QVERIFY(!m_model->setData(m_model->index(1, columnOf("Zone")), "2: Zone 2"));
        QCOMPARE(takeWrites(), QString("LineMap.Assign.Zone 1 = 2"));
        QVERIFY(user.isSettled());
    }

    void listEnabledOnly()
    {
        open("xy");
        corvala::host::NumberSet some = corvala::host::allUpTo(4);
        some.remove(1);
        QVERIFY(Document::instance().execute(corvala::host::EnableZones {some}).isDone()
                && Document::instance().execute(corvala::host::EnableVariables {some}).isDone());
        const QModelIndex zone = m_model->index(0, columnOf("Zone"));
        const QModelIndex variable = m_model->index(0, columnOf("X-Axis Variable"));
        QCOMPARE(zone.data(Qt::EditRole).toStringList().join('|'),
                 QString("2: Zone 2|3: Zone 3|4: Zone 4"));
        QCOMPARE(variable.data(Qt::EditRole).toStringList().join('|'),
                 QString("2: Force|3: Moment|4: Power"));
        QVERIFY(m_model->setData(variable, "4: Power"));
        QCOMPARE(takeWrites(),
                 QString("LineMap.Assign.XAxisVar 1 = 3")); // the position in the list
    }

    void showStrands()
    {
        QVERIFY(openDemo("transient"));
        m_model.reset(makeChain<FieldStaticAreaModel, FieldMeshModel>());
        QCOMPARE(columnText(*m_model, columnOf("Zone Number")), QString("1|2*|(N/A)"));
        QCOMPARE(columnText(*m_model, columnOf("Zone Name")).section('|', 2),
                 QString("(Strand ID 7 has no relevant zones at the current solution time)"));
        for (const int column : {0, m_model->columnCount() - 1}) {
            const QString tip = m_model->index(2, column).data(Qt::ToolTipRole).toString();
            QVERIFY(tip.startsWith(
                "<html>The strand has no zones at the current solution time, therefore"));
            QVERIFY(!m_model->index(1, column).data(Qt::ToolTipRole).isValid());
            QVERIFY(!m_model->index(3, column).data(Qt::ToolTipRole).isValid());
        }
        QVERIFY(Document::instance().execute(corvala::host::SetSolutionTime {2}).isDone());
        QCOMPARE(columnText(*m_model, columnOf("Zone Number")), QString("1|4*|6*"));
    }

    void followTheActiveFrame()
    {
        open("mesh");
        QVERIFY(m_model->isForCurrentFrame());
        Document::instance().execute(corvala::host::AddFrame {});
        QCOMPARE(m_model->rowCount(), 0);
        QVERIFY(!m_model->isForCurrentFrame()); // no data
        std::string error;
        QVERIFY(corvala::samples::openDemo("field2d", 5, error));
        QCOMPARE(m_model->rowCount(), 5);
        Document::instance().execute(corvala::host::ActivateFrame {1});
        QCOMPARE(m_model->rowCount(), 12);
        QVERIFY(m_model->isForCurrentFrame());
    }

    void matchNames()
    {
        QVERIFY(openDemo("kinds"));
        m_model.reset(makeChain<FieldStaticAreaModel, FieldMeshModel>());
        const auto matches = [this](const QString& pattern, int row, int hits, Qt::MatchFlags flags,
                                    const char* header = "Zone Name") {
            const int column = columnOf(header);
            QStringList rows;
            for (const QModelIndex& index :
                 m_model->match(m_model->index(row, column), Qt::DisplayRole, pattern, hits, flags))
                rows << QString::number(index.row()) + (index.column() == column ? "" : "?");
            return rows.join(' ');
        };
        QCOMPARE(matches("zone*", 0, -1, Qt::MatchWildcard), QString("0 1"));
        QCOMPARE(matches("zone*", 0, -1, Qt::MatchWildcard | Qt::MatchCaseSensitive), QString());
        QCOMPARE(matches("*o*", 1, -1, Qt::MatchWildcard), QString("1 2 3"));
        QCOMPARE(matches("*o*", 1, -1, Qt::MatchWildcard | Qt::MatchWrap), QString("1 2 3 0"));
        QCOMPARE(matches("*o*", 1, 2, Qt::MatchWildcard), QString("1 2"));
        QCOMPARE(matches("body?tets", 0, -1, Qt::MatchWildcard), QString("3"));
        QCOMPARE(matches("wing [upper]", 0, -1, Qt::MatchWildcard), QString("4"));
        QCOMPARE(matches("*", 8, -1, Qt::MatchWildcard), QString());
        QCOMPARE(matches("overlay", 6, -1, Qt::MatchWildcard, "Mesh Type"), QString("6 7"));
        QCOMPARE(matches("My", 0, -1, Qt::MatchStartsWith), QString("2")); // Qt's own
        QVERIFY(setStyle("FieldMap.Group", "4", 2));
        QCOMPARE(matches("2", 0, -1, Qt::MatchFixedString, "Group Number"), QString("3"));
    }

    void matchPatterns()
    {
        const struct
        {
            QString pattern, name;
            bool matches;
        } rows[] = {
            {"zone 1", "Zone 1", true},
            {"zone", "Zone 1", false},
            {"zone*", "My zone", false},
            {"zone 1*", "zone 1", true},
            {"body*", "body/left/wing", true},
            {"a*c", "a\nb\nc", true},
            {"*ab*b", "aab abb", true},
            {"*ab*c", "aab abb", false},
            {"a***b", "ab", true},
            {"a?b", "a/b", true},
            {"zone 1?", "Zone 1", false},
            {"a?b",
             QString::fromUtf8("a\xF0\x9F\x98\x80"
                               "b"),
             true},
            {"wing [u]", "wing u", false},
            {"a\\*", "a\\b", true},
            {"a.b", "axb", false},
            {QString::fromUtf8("GR\xC3\x96*"),
             QString::fromUtf8("gr\xC3\xB6\xC3\x9F"
                               "e"),
             true},
            {"", "x", false},
            {"*", "", true},
            {QString("a*").repeated(60) + "b", QString("a").repeated(2000), false}, // and is quick
        };
        for (const auto& row : rows)
            QVERIFY2(NamePattern(row.pattern, Qt::CaseInsensitive).matches(row.name) == row.matches,
                     qPrintable(row.pattern));
        QVERIFY(!NamePattern("zone 1", Qt::CaseSensitive).matches("Zone 1"));
    }

    void registerByPage()
    {
        QVERIFY(openDemo("field2d"));
        const QWidget page;
        const QWidget other;
        ModelForPageMap models;
        auto* planar = makeChain<FieldStaticAreaModel>();
        auto* every = makeChain<FieldStaticAreaModel>();
        const std::unique_ptr<ModelAbstract> second(makeChain<FieldStaticAreaModel>());
        const QPointer<ModelAbstract> watched(planar);

        QVERIFY(models.add(&page, planar, PlotType_Field2D));
        QVERIFY(!models.add(&page, second.get(), PlotType_Field2D));
        QCOMPARE(models.modelFor(&page), planar);
        QVERIFY(!models.modelFor(&other));
        QVERIFY(setStyle("PlotType", "", PlotType_Field3D));
        QVERIFY(!models.modelFor(&page));
        QVERIFY(setStyle("PlotType", "", PlotType_Field2D));
        QVERIFY(models.add(&page, every, ModelForPageMap::kEveryPlotType));
        QCOMPARE(models.modelFor(&page), every);
        models.clear();
        QVERIFY(!models.modelFor(&page) && !watched);
    }

private:
    void open(const QString& chain)
    {
        const Chain& description = chains().at(chain);
        QVERIFY(openDemo(description.demo));
        m_model.reset(description.make());
    }

    int columnOf(const QString& header) const
    {
        for (int column = 0; column < m_model->columnCount(); ++column)
            if (m_model->headerData(column, Qt::Horizontal).toString().replace('\n', ' ') == header)
                return column;
        return -1;
    }

    std::unique_ptr<ModelAbstract> m_model;
};

QTEST_MAIN(tst_TableModels)
#include "tst_table_models.moc"
