// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/field_scene.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkCompositeDataDisplayAttributes.h>
#include <vtkCompositePolyDataMapper2.h>
#include <vtkImageData.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkTexture.h>
#include <vtkTransform.h>

#include <QThread>
#include <QtTest>

#include <algorithm>
#include <atomic>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static vtkCompositePolyDataMapper2* mapperOf(vtkActor* actor)
{
    return vtkCompositePolyDataMapper2::SafeDownCast(actor->GetMapper());
}

static int blockCount(const CompositeLayer& layer)
{
    int count = 0;
    for (vtkActor* actor : layer.actors()) {
        auto* blocks =
            vtkMultiBlockDataSet::SafeDownCast(mapperOf(actor)->GetInputDataObject(0, 0));
        for (unsigned int i = 0; i < blocks->GetNumberOfBlocks(); ++i)
            count += blocks->GetBlock(i) ? 1 : 0;
    }
    return count;
}

/// What colours the second point of a block.
static double colorAt(vtkPolyData& block)
{
    vtkDataArray* const values = block.GetPointData()->GetTCoords();
    return values ? values->GetComponent(1, 0) : 0.0;
}

/// What a scene draws, to compare: by layer the number of mappers, blocks and cells, and a colour.
static QStringList contents(const FieldScene& scene)
{
    QStringList result;
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        const CompositeLayer& layer = scene.layer(static_cast<FieldLayer>(i));
        vtkIdType cells = 0;
        double color = 0.0;
        for (CvlInt64 map = 1; map <= 12 && layer.isVisible(); ++map) {
            if (vtkPolyData* const block = layer.geometry(map)) {
                cells += block->GetNumberOfCells();
                color += static_cast<double>(map) * colorAt(*block);
            }
        }
        result << (layer.isVisible() ? QStringLiteral("%1 mappers, %2 blocks, %3 cells, color %4")
                                           .arg(layer.actors().size())
                                           .arg(blockCount(layer))
                                           .arg(cells)
                                           .arg(color)
                                     : QString());
    }
    return result;
}

/// In the order in which they are drawn. The renderer makes its list of actors anew whenever it is
/// asked for it.
static std::vector<vtkActor*> actorsOf(vtkRenderer& renderer)
{
    std::vector<vtkActor*> actors;
    vtkActorCollection& list = *renderer.GetActors();
    vtkCollectionSimpleIterator position;
    list.InitTraversal(position);
    while (vtkActor* const actor = list.GetNextActor(position))
        actors.push_back(actor);
    return actors;
}

/// What covers what: by actor the width of its lines and the number of its blocks.
static QStringList drawnOrder(vtkRenderer& renderer)
{
    QStringList result;
    for (vtkActor* const actor : actorsOf(renderer)) {
        auto* const blocks =
            vtkMultiBlockDataSet::SafeDownCast(mapperOf(actor)->GetInputDataObject(0, 0));
        result << QStringLiteral("%1 %2")
                      .arg(actor->GetProperty()->GetLineWidth())
                      .arg(blocks->GetNumberOfBlocks());
    }
    return result;
}

/// A plane of 300 by 300 points; tells whether the main thread asked for it, and fails on request.
class LargeZone : public host::ZoneSource
{
public:
    vtkSmartPointer<vtkDataSet> zone(std::int64_t) const override
    {
        if (m_fails)
            throw std::bad_alloc();
        m_askedHere = m_askedHere || QThread::currentThread() == qApp->thread();
        auto plane = vtkSmartPointer<vtkImageData>::New();
        plane->SetDimensions(300, 300, 1);
        return plane;
    }
    mutable std::atomic<bool> m_askedHere {false};
    std::atomic<bool> m_fails {false};
};

/// Opens a large zone.
static std::shared_ptr<LargeZone> openLarge()
{
    const auto source = std::make_shared<LargeZone>();
    const auto data = std::make_shared<host::DataSet>();
    data->source = source;
    data->zones = {{"large", true, {300, 300, 1}, 90'000, 89'401, 2}};
    data->variables = {{"X", {}, {}, 0}, {"Y", {}, {}, 1}, {"Lacking", {}, "lacking", 0}};
    data->contourVariables = {1};
    document().clear();
    document().execute(host::AddFrame {});
    document().execute(host::AttachData {{}, data, PlotType_Field2D, 0});
    return source;
}

static std::array<double, 2> centreOf(CvlInt64 zone)
{
    double centre[3];
    document().activeFrame()->data()->geometry(zone)->GetCenter(centre);
    return {centre[0], centre[1]};
}

class tst_FieldScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { makeScene("field2d"); }

    void cleanup()
    {
        m_connection.disconnect();
        m_scene.reset();
        QCOMPARE(m_back->GetActors()->GetNumberOfItems(), 0);
    }

    void oneMapperPerLook()
    {
        QCOMPARE(layer(FieldLayer::Mesh).actors().size(), std::size_t {1});
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 12);
        write("FieldMap/Mesh/LineThickness", "1-3", 0.6);
        write("FieldMap/Mesh/LinePattern", "2-4", 1);
        work();
        // Thin, thick, thick and dashed, thin and dashed.
        QCOMPARE(layer(FieldLayer::Mesh).actors().size(), std::size_t {4});
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 12);
        write("FieldMap/Mesh/LineThickness", "all", 0.6);
        write("FieldMap/Mesh/LinePattern", "all", 0);
        work();
        QCOMPARE(layer(FieldLayer::Mesh).actors().size(), std::size_t {1});
        QCOMPARE(m_back->GetActors()->GetNumberOfItems(), 2); // mesh and edges
    }

    void mappersFollowTheMaps_data()
    {
        const Rows<QString, int, int> row;
        row("in space", "field3d", 30, 30);
        row("too many in space", "field3d", 110, 6); // with volumes without an order, in two ranges
        row("flat", "field2d", 30, 2);
    }

    void mappersFollowTheMaps()
    {
        const auto [demo, maps, mappers] = currentRow<QString, int, int>();
        makeScene(demo.toUtf8().constData(), maps);
        for (int map = 2; map <= maps; map += 2)
            write("FieldMap/EdgeLayer/LineThickness", QByteArray::number(map), 1);
        work();
        QCOMPARE(int(layer(FieldLayer::Edges).actors().size()), mappers);
        QCOMPARE(blockCount(layer(FieldLayer::Edges)), maps);
    }

    void editsTouchWhatTheyName_data()
    {
        const Rows<QString, double, int, int, int, int, int> row;
        const int mesh = int(FieldLayer::Mesh);
        const int shade = int(FieldLayer::Shade);
        const int flood = int(FieldLayer::Flood);
        row("mesh color", "Mesh/Color", 7.0, mesh, 0, 0, 2, 0);
        row("mesh thickness", "Mesh/LineThickness", 1.2, mesh, 0, 2, 0, 0);
        row("mesh pattern", "Mesh/LinePattern", 2.0, mesh, 2, 0, 0, 0);
        row("mesh off", "Mesh/Show", 0.0, mesh, 0, 0, 0, 2);
        row("mesh by group", "Mesh/Color", 101.0, mesh, 2, 0, 0, 0);
        row("shade color", "Shade/Color", 7.0, shade, 0, 0, 2, 0);
        row("flood by density", "Contour/FloodColoring", 2.0, flood, 2, 0, 0, 0);
        const int vectors = int(FieldLayer::Vectors);
        row("vector type", "Vector/VectorType", 2.0, vectors, 2, 0, 0, 0);
        row("vector color", "Vector/Color", 7.0, vectors, 0, 0, 2, 0);
        row("vectors by group", "Vector/Color", 101.0, vectors, 2, 0, 0, 0);
        row("vector thickness", "Vector/LineThickness", 1.2, vectors, 0, 2, 0, 0);
        row("points", "Points/PointsToPlot", 3.0, vectors, 2, 0, 0, 0);
        row("skip", "Points/IJKSkip/J", 3.0, vectors, 1, 0, 0, 0); // map 8 is not ordered
        const int scatter = int(FieldLayer::Scatter);
        row("symbol shape", "Scatter/SymbolShape/GeomShape", 6.0, scatter, 0, 2, 0, 0);
        row("size by variable", "Scatter/SizeByVariable", 1.0, scatter, 2, 0, 0, 0);
        row("symbol color", "Scatter/Color", 7.0, scatter, 0, 0, 2, 0);
        row("symbols by group", "Scatter/Color", 101.0, scatter, 2, 0, 0, 0);
        row("symbol thickness", "Scatter/LineThickness", 1.2, scatter, 0, 2, 0, 0);
        row("color of no fill", "Scatter/FillColor", 7.0, scatter, 0, 0, 0, 0);
        row("points of nothing", "Points/PointsToPlot", 3.0, mesh, 0, 0, 0, 0);
    }

    void editsTouchWhatTheyName()
    {
        const auto [path, value, layer, built, moved, recolored, removed] =
            currentRow<QString, double, int, int, int, int, int>();
        write("FieldLayers/ShowShade", "", 1);
        write("FieldLayers/ShowContour", "", 1);
        write("GlobalScatter/Var", "", 5);
        write("FieldLayers/ShowVector", "", layer == int(FieldLayer::Vectors));
        write("FieldLayers/ShowScatter", "", layer == int(FieldLayer::Scatter));
        work();
        std::array<CompositeLayer::Counters, kFieldLayerCount> before;
        for (std::size_t i = 0; i < kFieldLayerCount; ++i)
            before[i] = counters(static_cast<FieldLayer>(i));
        write(("FieldMap/" + path).toUtf8().constData(), "3,8", value);
        const CvlInt64 pieces = m_scene->hasWork() ? m_scene->progress().second : 0;
        QVERIFY2(pieces <= 2 * 5,
                 QByteArray::number(qlonglong(pieces))); // two maps, layers and values
        work();
        for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
            const bool isNamed = static_cast<int>(i) == layer;
            const CompositeLayer::Counters after = counters(static_cast<FieldLayer>(i));
            QCOMPARE(int(after.built - before[i].built), isNamed ? built : 0);
            QCOMPARE(int(after.moved - before[i].moved), isNamed ? moved : 0);
            QCOMPARE(int(after.recolored - before[i].recolored), isNamed ? recolored : 0);
            QCOMPARE(int(after.removed - before[i].removed), isNamed ? removed : 0);
        }
    }

    void undoTouchesWhatItNames()
    {
        vtkPolyData* const untouched = layer(FieldLayer::Mesh).geometry(1);
        write("FieldMap/Mesh/Color", "5-6", 9);
        work();
        const auto before = counters(FieldLayer::Mesh);
        QVERIFY(document().undo().undo());
        work();
        QCOMPARE(counters(FieldLayer::Mesh).recolored - before.recolored, 2);
        QCOMPARE(counters(FieldLayer::Mesh).built, before.built);
        QVERIFY(document().undo().redo());
        work();
        QCOMPARE(counters(FieldLayer::Mesh).recolored - before.recolored, 4);
        QCOMPARE(layer(FieldLayer::Mesh).geometry(1), untouched);
    }

    void patternsFollowTheScale()
    {
        write("FieldMap/Mesh/LinePattern", "all", 3);
        write("FieldMap/Mesh/PatternLength", "all", 5);
        work();
        vtkActor* const dashed = layer(FieldLayer::Mesh).actors().front();
        QVERIFY(dashed->GetTexture()->GetRepeat());
        // 5 percent of 800 pixels are 40, and 10 pixels are one unit: four units to a period.
        QCOMPARE(dashed->GetTexture()->GetTransform()->GetMatrix()->GetElement(0, 0), 0.25);
    }

    void hiddenLayersCostNothing()
    {
        QCOMPARE(counters(FieldLayer::Shade).built, 0);
        write("FieldMap/Shade/Color", "all", 3);
        QVERIFY(!m_scene->hasWork());
        write("FieldLayers/ShowShade", "", 1);
        work();
        QCOMPARE(counters(FieldLayer::Shade).built, 12);
        write("FieldLayers/ShowShade", "", 0);
        work();
        QVERIFY(!layer(FieldLayer::Shade).actors().front()->GetVisibility());
        write("FieldMap/Shade/Show", "4", 0);
        write("FieldLayers/ShowShade", "", 1);
        work();
        QCOMPARE(counters(FieldLayer::Shade).built, 12);
        QCOMPARE(blockCount(layer(FieldLayer::Shade)), 11);
    }

    void activeMapsOnly()
    {
        activate("2-5", false);
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 8);
        QVERIFY(!layer(FieldLayer::Mesh).geometry(3));
        activate("3", true);
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 9);
        host::NumberSet zones = host::allUpTo(12);
        zones.remove(1);
        document().execute(host::EnableZones {zones});
        work();
        QVERIFY(!layer(FieldLayer::Mesh).geometry(1));
    }

    void volumesShowTheirEdges()
    {
        makeScene("kinds");
        QVERIFY(!layer(FieldLayer::Mesh).geometry(1));
        QVERIFY(layer(FieldLayer::Edges).geometry(1));
        QVERIFY(layer(FieldLayer::Mesh).geometry(2));
        QVERIFY(layer(FieldLayer::Mesh).geometry(5)); // a line of points
        write("FieldMap/Surfaces/SurfacesToPlot", "1", SurfacesToPlot_IPlanes);
        write("FieldMap/Surfaces/IRange/Skip", "1", 3);
        work();
        const auto planes = layer(FieldLayer::Mesh).geometry(1);
        QVERIFY(planes);
        const vtkIdType lines = planes->GetNumberOfLines();
        write("FieldMap/Surfaces/IRange/Max", "1", 1);
        work();
        QCOMPARE(layer(FieldLayer::Mesh).geometry(1)->GetNumberOfLines(), lines / 3);
    }

    void contourTypes_data()
    {
        const Rows<int, bool, bool> row;
        row("lines", 0, false, true);
        row("flood", 1, true, false);
        row("lines and flood", 2, true, true);
        row("average cell flood", 3, true, false);
        row("primary value flood", 4, true, false);
    }

    void contourTypes()
    {
        const auto [type, flood, lines] = currentRow<int, bool, bool>();
        write("FieldLayers/ShowContour", "", 1);
        write("FieldMap/Contour/ContourType", "all", type);
        work();
        QCOMPARE(layer(FieldLayer::Flood).geometry(5) != nullptr, flood);
        QCOMPARE(layer(FieldLayer::ContourLines).geometry(5) != nullptr, lines);
        // One value to a cell takes points of its own for every cell.
        if (flood) {
            const bool byCell = type >= ContourType_AverageCellFlood;
            QCOMPARE(layer(FieldLayer::Flood).geometry(5)->GetNumberOfPoints(),
                     byCell ? 4 * 8 * 6 : 9 * 7);
        }
        QCOMPARE(m_scene->legends().size(), std::size_t(flood ? 1 : 0));
        write("FieldLayers/ShowContour", "", 0);
        work();
        QVERIFY(m_scene->legends().empty());
    }

    void floodWithoutVariable()
    {
        write("FieldLayers/ShowContour", "", 1);
        write("FieldMap/Contour/FloodColoring", "1-6", 5); // unassigned
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Flood)), 6);
        write("ContourGroups/Var", "", 4, 5);
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Flood)), 12);
        QCOMPARE(m_scene->legends().size(), std::size_t {2});
        QCOMPARE(m_scene->legends()[1].title, QStringLiteral("V"));
    }

    void rgbNeedsAllChannels()
    {
        write("FieldLayers/ShowContour", "", 1);
        write("FieldMap/Contour/FloodColoring", "all", ContourColoring_RGB);
        write("GlobalRGB/RedVar", "", 3);
        write("GlobalRGB/GreenVar", "", 4);
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Flood)), 0);
        write("GlobalRGB/BlueVar", "", 5);
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Flood)), 12);
        QVERIFY(m_scene->legends().empty());
    }

    void levelsDoNotDependOnTime()
    {
        makeScene("transient");
        write("FieldLayers/ShowContour", "", 1);
        work();
        const int revision = m_scene->groups().revision(1);
        const double maximum = m_scene->groups().maximum(1);
        for (const double time : {1.0, 3.0, 2.0}) {
            document().execute(host::SetSolutionTime {time});
            work();
            QCOMPARE(m_scene->groups().revision(1), revision);
        }
        // Maps that are not active do not count.
        activate("1-2", false);
        work();
        QVERIFY(m_scene->groups().maximum(1) < maximum);
    }

    void timeShowsOtherZones()
    {
        makeScene("transient");
        QVERIFY(layer(FieldLayer::Mesh).geometry(2));
        QVERIFY(!layer(FieldLayer::Mesh).geometry(3));
        vtkPolyData* const fixed = layer(FieldLayer::Mesh).geometry(1);
        vtkPolyData* const first = layer(FieldLayer::Mesh).geometry(2);
        document().execute(host::SetSolutionTime {2.0});
        work();
        QCOMPARE(layer(FieldLayer::Mesh).geometry(1), fixed);
        QVERIFY(layer(FieldLayer::Mesh).geometry(2) != first);
        QVERIFY(layer(FieldLayer::Mesh).geometry(3));
        document().execute(host::SetSolutionTime {0.0});
        work();
        QVERIFY(!layer(FieldLayer::Mesh).geometry(3));
    }

    void changesOfTheDocument()
    {
        document().execute(host::DeleteMaps {mapsOf("2-3")});
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 10);
        document().undo().undo();
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 12);
        document().execute(host::SetPaletteColor {1, {12, 34, 56}});
        write("FieldMap/Mesh/Color", "all", 1);
        work();
        document().execute(host::AddFrame {});
        document().execute(host::ActivateFrame {1});
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 12);
        document().execute(host::RenameVariable {1, "East"});
        QCOMPARE(m_scene->axes().titles[0], QStringLiteral("East"));
        document().execute(host::DetachData {});
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 0);
        QVERIFY(!m_scene->bounds().IsValid());
        document().clear();
        QVERIFY(!m_scene->hasWork());
    }

    void samePictureAsFromScratch()
    {
        makeScene("field3d");
        write("FieldLayers/ShowContour", "", 1);
        write("FieldMap/Contour/ContourType", "1-6", ContourType_LinesAndFlood);
        write("FieldMap/Contour/Color", "2-3", 102);
        write("FieldMap/Surfaces/SurfacesToPlot", "1-7", SurfacesToPlot_KPlanes);
        work();
        write("FieldMap/Mesh/LinePattern", "4-9", 2);
        write("FieldMap/Mesh/Color", "6-10", 101);
        write("FieldLayers/ShowShade", "", 1);
        work();
        write("FieldMap/Shade/Show", "3-5", 0);
        activate("1,8", false);
        write("FieldMap/Mesh/MeshType", "5-7", MeshType_HiddenLine);
        write("FieldMap/Mesh/LineThickness", "9-10", 2);
        work();
        write("FieldMap/Mesh/LineThickness", "5-6", 3);
        work();
        document().undo().undo();
        work();
        vtkNew<vtkRenderer> back;
        vtkNew<vtkRenderer> front;
        FieldScene fresh(*back, *front, std::make_shared<SurfaceCache>());
        fresh.setFrame(document().activeFrameId());
        fresh.advance(-1);
        fresh.prepare({800, 10.0, 1.0});
        QCOMPARE(contents(*m_scene), contents(fresh));
        QCOMPARE(drawnOrder(*m_back), drawnOrder(*back));
        QVERIFY(m_scene->groups().levels(1) == fresh.groups().levels(1));
    }

    void workInSlices()
    {
        makeScene("field2d", 300);
        write("FieldMap/Mesh/LinePattern", "all", 1);
        int slices = 0;
        CvlInt64 previous = -1;
        while (m_scene->hasWork()) {
            m_scene->advance(0);
            ++slices;
            QVERIFY(m_scene->progress().first > previous);
            previous = m_scene->progress().first;
            QVERIFY(m_scene->progress().first <= m_scene->progress().second);
        }
        QVERIFY(slices > 100);
        QCOMPARE(counters(FieldLayer::Mesh).built, 600);
    }

    /// They share a mapper with lines that have values.
    void linesOfAZoneThatLacksTheVariable()
    {
        openLarge();
        write("ContourGroups/Var", "", 3, 1);
        write("FieldMap/Mesh/Color", "1", 101);
        m_scene->setFrame(document().activeFrameId());
        work();
        vtkDataArray* const colors =
            layer(FieldLayer::Mesh).geometry(1)->GetPointData()->GetScalars();
        QVERIFY(colors);
        QCOMPARE(static_cast<int>(colors->GetComponent(0, 0)), int(noValueColor().red));
    }

    void largeZonesAreMadeElsewhere()
    {
        const auto source = openLarge();
        write("FieldLayers/ShowContour", "", 1);
        m_scene->setFrame(document().activeFrameId());
        m_scene->advance(0);
        m_scene->cancel();
        QVERIFY(!m_scene->notice().isEmpty());
        m_scene->resume();
        QTRY_VERIFY(m_scene->advance(1) && m_scene->progress().first > 1); // the values are known
        write("ContourGroups/Var", "", 2, 1); // and are others, while something is being made
        QTRY_VERIFY(!m_scene->advance(1));
        QVERIFY(!source->m_askedHere);
        m_scene->prepare({800, 10.0, 1.0});
        vtkNew<vtkRenderer> back;
        vtkNew<vtkRenderer> front;
        FieldScene waited(*back, *front, std::make_shared<SurfaceCache>());
        waited.setFrame(document().activeFrameId());
        waited.advance(-1);
        waited.prepare({800, 10.0, 1.0});
        QCOMPARE(contents(*m_scene), contents(waited));
        QVERIFY(m_scene->groups().levels(1) == waited.groups().levels(1));
        const auto beginMesh = [&](int pattern) {
            write("FieldMap/Mesh/LinePattern", "1", pattern);
            m_scene->advance(0); // its values
            m_scene->advance(0);
        };
        beginMesh(1);
        write("FieldMap/Mesh/Color", "1", 101); // while a mesh without colours is made
        QTRY_VERIFY(!m_scene->advance(1));
        QVERIFY(layer(FieldLayer::Mesh).geometry(1)->GetPointData()->GetScalars());
        beginMesh(0);
        m_scene.reset(); // while something is being made for it
    }

    void failuresAreNamed()
    {
        const auto source = openLarge();
        write("FieldLayers/ShowContour", "", 1);
        source->m_fails = true;
        m_scene->setFrame(document().activeFrameId());
        QTRY_VERIFY(!m_scene->advance(1));
        QVERIFY2(m_scene->notice().contains("large"), qPrintable(m_scene->notice()));
        source->m_fails = false;
        write("FieldMap/Mesh/LinePattern", "1", 1); // another mesh is tried
        QTRY_VERIFY(!m_scene->advance(1));
        QVERIFY(layer(FieldLayer::Mesh).geometry(1));
        QVERIFY(!layer(FieldLayer::Edges).geometry(1));
    }

    void threadsLetGoBeforeTheyAreDone()
    {
        for (int i = 0; i < 2000; ++i) {
            auto held = std::make_shared<int>(i);
            const std::weak_ptr<int> known = held;
            BackgroundTask<int> task([held = std::move(held)] { return *held; });
            QVERIFY(task.wait(-1));
            QVERIFY(known.expired());
            QCOMPARE(task.take(), i);
        }
    }

    void standIn()
    {
        write("FieldLayers/ShowContour", "", 1);
        work();
        const auto visibleActors = [&] {
            std::vector<vtkActor*> actors = actorsOf(*m_back);
            actors.erase(std::remove_if(actors.begin(), actors.end(),
                                        [](vtkActor* actor) { return !actor->GetVisibility(); }),
                         actors.end());
            return actors;
        };
        const std::vector<vtkActor*> before = visibleActors();
        m_scene->setStandIn(true);
        QCOMPARE(visibleActors().size(), std::size_t {1});
        auto* const cloud = vtkPolyData::SafeDownCast(
            visibleActors().front()->GetMapper()->GetInputDataObject(0, 0));
        QVERIFY(cloud->GetNumberOfVerts() >= 12 * 8);
        double range[2]; // of what is red in the colours of the map
        cloud->GetPointData()->GetScalars()->GetRange(range, 0);
        QVERIFY(range[1] - range[0] > 100);
        m_scene->setStandIn(false);
        QVERIFY(visibleActors() == before);
    }

    void cancelledWork()
    {
        write("FieldMap/Mesh/LinePattern", "all", 1);
        while (m_scene->progress().first < 16)
            m_scene->advance(0);
        m_scene->cancel();
        QVERIFY(!m_scene->hasWork());
        const std::int64_t built = counters(FieldLayer::Mesh).built;
        QVERIFY(built < 24);
        QVERIFY(!m_scene->notice().isEmpty());
        m_scene->resume();
        work();
        QCOMPARE(counters(FieldLayer::Mesh).built, 24);
        QVERIFY(m_scene->notice().isEmpty());
    }

    void largestScene()
    {
        makeScene("field2d", 20, 15);
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 15);
        QVERIFY2(m_scene->notice().contains("15") && m_scene->notice().contains("20"),
                 qPrintable(m_scene->notice()));
        activate("1-6", false);
        work();
        QCOMPARE(blockCount(layer(FieldLayer::Mesh)), 14);
        QVERIFY(layer(FieldLayer::Mesh).geometry(20));
        QVERIFY(m_scene->notice().isEmpty());
    }

    void picks()
    {
        for (const CvlInt64 zone : {1, 6, 12}) {
            const auto [x, y] = centreOf(zone);
            QCOMPARE(zoneBelow(x, y), zone); // between the lines, too
        }
        QCOMPARE(zoneBelow(1000.0, 0.0), 0);
        const auto [x, y] = centreOf(6);
        activate("6", false);
        work();
        QCOMPARE(zoneBelow(x, y), 0);

        // The nearer of two zones is hit, and one that shows its faces before one that shows its
        // edges.
        makeScene("field3d");
        const auto [bx, by] = centreOf(1);
        QCOMPARE(zoneBelow(bx, by), 1);
        makeScene("kinds");
        const auto [lx, ly] = centreOf(5); // a line of points
        QCOMPARE(m_scene->zoneAt({{lx, ly, 100.0}, {lx, ly, -100.0}, 0.01}), 5);
    }

private:
    void makeScene(const char* demo, std::int64_t scale = 0,
                   CvlInt64 largest = FieldScene::kLargestScene)
    {
        m_connection.disconnect();
        openDemo(demo, scale);
        m_scene = std::make_unique<FieldScene>(*m_back, *m_front, std::make_shared<SurfaceCache>(),
                                               largest);
        m_scene->setFrame(document().activeFrameId());
        m_connection = document().events().connect(
            [this](const host::StateEvent& event) { m_scene->apply(event); });
        work();
    }

    const CompositeLayer& layer(FieldLayer layer) { return m_scene->layer(layer); }
    CompositeLayer::Counters counters(FieldLayer layer) { return m_scene->layer(layer).counters(); }
    void work()
    {
        m_scene->advance(-1);
        m_scene->prepare({800, 10.0, 1.0});
    }

    CvlInt64 zoneBelow(double x, double y)
    {
        return m_scene->zoneAt({{x, y, 1000.0}, {x, y, -1000.0}, 0.01});
    }

    vtkNew<vtkRenderer> m_back;
    vtkNew<vtkRenderer> m_front;
    std::unique_ptr<FieldScene> m_scene;
    boost::signals2::scoped_connection m_connection;
};

QTEST_GUILESS_MAIN(tst_FieldScene)

#include "tst_field_scene.moc"
