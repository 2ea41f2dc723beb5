// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/style/schema.h"
#include "pictures.h"
#include "plot/field/view/field_view.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <vtkRenderWindow.h>
#include <vtkUnsignedCharArray.h>

#include <QImage>
#include <QtTest>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

/// A zone of each kind; to the right of it stands another of its kind.
enum Zone { Ordered = 1, OrderedSheet = 2, Triangles = 4, Hexahedra = 7 };
static constexpr QSize kSize {240, 120};

static const char* neighbourOf(Zone zone)
{
    return zone == Ordered ? "9" : zone == OrderedSheet ? "6" : zone == Triangles ? "8" : "3";
}

/// Between a zone and its neighbour.
static double middleOf(Zone zone)
{
    return zone == OrderedSheet ? 0.6 : zone == Triangles ? -1.8 : -0.6;
}

/// Writes values of maps or of the frame: "PATH=VALUE", "PATH[INDEX]=VALUE", separated by blanks.
static void edit(const QString& texts, const QByteArray& maps = "all")
{
    for (const QString& text : texts.split(' ', Qt::SkipEmptyParts)) {
        const QString value = text.section('=', 1);
        host::SetStyle set {{"FieldMap"}, value.toStdString(), mapsOf(maps)};
        for (const QString& name : text.section('=', 0, 0).section('[', 0, 0).split('/'))
            set.path.push_back(name.toStdString());
        if (host::Schema::instance().find(set.path) < 0) {
            set.path.erase(set.path.begin());
            set.maps.reset();
        }
        bool isNumber = false;
        if (const double number = value.toDouble(&isNumber); isNumber)
            set.value = number;
        if (text.contains('['))
            set.index = text.section('[', 1).section(']', 0, 0).toInt();
        if (!document().execute(set).isDone())
            throw std::runtime_error(text.toStdString());
    }
}

/// A zone and its neighbour, on either side of the middle, seen from a place that does not move,
/// without axes and legends.
class ShownPair
{
public:
    ShownPair(Zone zone, const QString& before)
    {
        openDemo("field3d", 9);
        edit("FieldLayers/ShowMesh=0 FieldLayers/ShowEdge=0 GlobalVector/ShowReferenceArrow=0 "
             "ContourGroups/ShowLegend[1]=0 ContourGroups/ShowLegend[2]=0 "
             "ContourGroups/Var[2]=2 Surfaces/SurfacesToPlot=0 Scatter/FrameSize=6 "
             "GlobalVector/RelativeLength=0.5 EdgeLayer/LineThickness=2");
        activate("all", false);
        activate(QByteArray::number(zone).constData(), true);
        activate(neighbourOf(zone), true);
        edit(before);
        placeCamera(middleOf(zone));
        m_window->SetOffScreenRendering(1);
        m_window->SetMultiSamples(0);
        m_window->SetSize(kSize.width(), kSize.height());
        m_view.attach(m_window);
        m_view.setSize(kSize, 1.0);
        m_view.scene().setFrame(document().activeFrameId());
        m_connection =
            document().events().connect([this](const auto& event) { m_view.scene().apply(event); });
    }
    ~ShownPair() { m_view.attach(nullptr); }

    /// The part of the zone, and that of its neighbour.
    std::pair<QImage, QImage> parts()
    {
        m_view.scene().advance(-1);
        m_view.prepare();
        m_window->Render();
        const int width = kSize.width() / 2;
        const auto part = [&](int first) {
            vtkNew<vtkUnsignedCharArray> pixels;
            m_window->GetPixelData(first, 0, first + width - 1, kSize.height() - 1, 0, pixels);
            return QImage(pixels->GetPointer(0), width, kSize.height(), 3 * width,
                          QImage::Format_RGB888)
                .mirrored();
        };
        return {part(0), part(width)};
    }

private:
    void placeCamera(double x)
    {
        const bool isFlat = document().activeFrame()->plotType() == PlotType_Field2D;
        CameraState camera;
        camera.isFitted = false;
        if (isFlat)
            x += 1.65; // there is more room for axes on the left than on the right
        camera.focalPoint = {x, 1.8, isFlat ? 0.0 : 0.4};
        camera.position = {x, isFlat ? 1.8 : -6.0, isFlat ? 30.0 : 6.5};
        if (!isFlat)
            camera.viewUp = {0.0, 0.0, 1.0};
        camera.parallelScale = 2.9;
        m_view.setFlat(isFlat);
        m_view.setCamera(camera);
    }

    vtkNew<vtkRenderWindow> m_window;
    FieldView m_view {std::make_shared<SurfaceCache>()};
    boost::signals2::scoped_connection m_connection;
};

/// A value that is changed, and in which states: with `before` it shows in the part of its zone,
/// and with one of `grey`, between bars, besides, its cell in the tables is grey. "@" is its group.
struct Column
{
    QString change;
    Zone zone;
    QString before;
    QString grey;
};

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

static std::vector<Column> allColumns()
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

class tst_FieldColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columns_data()
    {
        const Rows<Column> row;
        for (const Column& column : allColumns())
            row(column.change, column);
    }

    /// A value shows in the part of its zone, and nowhere else; and nowhere while its cell in the
    /// tables is grey.
    void columns()
    {
        const auto [column] = currentRow<Column>();
        QStringList states = column.grey.split('|', Qt::SkipEmptyParts);
        if (!column.before.isEmpty())
            states.prepend("");
        for (const QString& state : states) {
            ShownPair shown(column.zone, column.before + " " + state);
            const auto [zone, beside] = shown.parts();
            edit(column.change, QByteArray::number(column.zone));
            const auto [newZone, newBeside] = shown.parts();
            const double change = shareOfChange(zone, newZone);
            QVERIFY2(state.isEmpty() ? change > 0.002 : zone == newZone, qPrintable(state));
            // Maps that look otherwise are drawn apart, which may round a pixel otherwise.
            QVERIFY2(shareOfChange(beside, newBeside) < 0.0003, qPrintable("beside: " + state));
            QVERIFY(!state.isEmpty() || shareOfColor(beside, Qt::white) < 0.999);
            document().undo().undo();
            QVERIFY2(zone == shown.parts().first, qPrintable("undone: " + state));
        }
    }

    void noColumnIsLeftOut()
    {
        QStringList shown = {"Group"}; // picks maps, and is not drawn
        for (const Column& column : allColumns())
            if (!column.before.isEmpty())
                shown << column.change.section('=', 0, 0);
        const auto& schema = host::Schema::instance();
        for (const host::AttributeId id : schema.inScope(style::Scope::FieldMap)) {
            QStringList path;
            for (const std::string& name : schema.at(id).names)
                path << QString::fromStdString(name);
            QVERIFY2(shown.contains(path.mid(1).join('/')), qPrintable(path.join('/')));
        }
    }
};

QTEST_MAIN(tst_FieldColumns)

#include "tst_field_columns.moc"
