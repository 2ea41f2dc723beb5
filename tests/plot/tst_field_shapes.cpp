// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/block_builder.h"
#include "plot/field/geometry/mesh_lines.h"
#include "plot/field/geometry/shape_pieces.h"
#include "plot/field/geometry/surface_cache.h"
#include "plot/field/geometry/surface_values.h"
#include "plot/field/geometry/zone_edges.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkDoubleArray.h>
#include <vtkPointData.h>
#include <vtkStructuredGrid.h>

#include <QtTest>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static const host::DataSet& data()
{
    return *document().activeFrame()->data();
}

static ZoneSurface surfaceOf(CvlInt64 zone, const SurfaceChoice& choice = {})
{
    const auto geometry = data().geometry(zone);
    return extractSurface(*geometry, data().zone(zone), choice.normalized(data().zone(zone)));
}

static SurfaceChoice choiceOf(int surfaces, const IndexRange& i = {}, const IndexRange& j = {})
{
    SurfaceChoice choice;
    choice.surfaces = static_cast<SurfacesToPlot_e>(surfaces);
    choice.planes = {i, j, {}};
    return choice;
}

/// An ordered box of points at their indices, with a data set round it.
class Box : public host::ZoneSource
{
public:
    Box(int i, int j, int k)
    {
        m_grid->SetDimensions(i, j, k);
        vtkNew<vtkPoints> points;
        for (int z = 0; z < k; ++z)
            for (int y = 0; y < j; ++y)
                for (int x = 0; x < i; ++x)
                    points->InsertNextPoint(x, y, z);
        m_grid->SetPoints(points);
        info.ordered = true;
        info.dimensions = {i, j, k};
        info.cellDimension = 3;
    }
    vtkSmartPointer<vtkDataSet> zone(std::int64_t) const override { return m_grid.Get(); }
    vtkStructuredGrid& grid() { return *m_grid; }

    host::ZoneInfo info;

private:
    vtkNew<vtkStructuredGrid> m_grid;
};

static vtkSmartPointer<vtkPolyData> facesOf(const QVector<QVector<int>>& faces, int points)
{
    auto shape = vtkSmartPointer<vtkPolyData>::New();
    vtkNew<vtkPoints> places;
    for (int i = 0; i < points; ++i)
        places->InsertNextPoint(i % 2, i / 2, 0);
    vtkNew<vtkCellArray> cells;
    for (const QVector<int>& face : faces) {
        cells->InsertNextCell(face.size());
        for (const int corner : face)
            cells->InsertCellPoint(corner);
    }
    shape->SetPoints(places);
    shape->SetPolys(cells);
    return shape;
}

/// Corners of all cells in the order in which they are drawn, with a value of each.
static std::vector<std::array<double, 4>> cornersOf(const ShapePieces& pieces)
{
    std::vector<std::array<double, 4>> corners;
    for (const auto& piece : pieces) {
        for (vtkIdType cell = 0; cell < piece->GetNumberOfCells(); ++cell) {
            vtkIdList* const points = piece->GetCell(cell)->GetPointIds();
            for (const vtkIdType point : *points) {
                const double* const place = piece->GetPoint(point);
                const double value = piece->GetPointData()->GetTCoords()->GetComponent(point, 0);
                corners.push_back({place[0], place[1], place[2], value});
            }
        }
    }
    return corners;
}

class tst_FieldShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void largeShapesAreCut()
    {
        constexpr vtkIdType kLargest = 10;
        const auto whole = facesOf({{0, 1, 3, 2}, {2, 3, 5, 4}, {4, 5, 7, 6}, {6, 7, 9, 8}}, 10);
        vtkPolyData& shape = *whole;
        vtkNew<vtkDoubleArray> values;
        for (vtkIdType point = 0; point < shape.GetNumberOfPoints(); ++point)
            values->InsertNextValue(static_cast<double>(point));
        shape.GetPointData()->SetTCoords(values);
        vtkNew<vtkCellArray> line;
        line->InsertNextCell({0, 5, 9});
        shape.SetLines(line);
        const ShapePieces pieces = inPieces(shape, kLargest);
        QCOMPARE(pieces.size(), std::size_t {3});
        for (const auto& piece : pieces)
            QVERIFY(shapeCost(*piece) <= kLargest);
        QVERIFY(cornersOf(pieces) == cornersOf({&shape}));
        QCOMPARE(inPieces(shape, shapeCost(shape)).front().Get(), &shape);
    }

    void volumeSurfaces_data()
    {
        const Rows<int, int, int> row;
        // Zone 1 of the kinds is ordered, 7 by 5 by 4 points: 6, 4 and 3 cells along the axes.
        row("boundary", 1, 0, 2 * (4 * 3 + 6 * 3 + 6 * 4));
        row("exposed", 1, 1, 2 * (4 * 3 + 6 * 3 + 6 * 4));
        row("I planes", 1, 2, 7 * 4 * 3);
        row("J planes", 1, 3, 5 * 6 * 3);
        row("K planes", 1, 4, 4 * 6 * 4);
        row("IJ planes", 1, 5, 7 * 4 * 3 + 5 * 6 * 3);
        row("JK planes", 1, 6, 5 * 6 * 3 + 4 * 6 * 4);
        row("IK planes", 1, 7, 7 * 4 * 3 + 4 * 6 * 4);
        row("IJK planes", 1, 8, 7 * 4 * 3 + 5 * 6 * 3 + 4 * 6 * 4);
        row("all", 1, 9, 7 * 4 * 3 + 5 * 6 * 3 + 4 * 6 * 4);
        row("none", 1, 10, 0);
        row("cells without planes", 7, 3, 0);
        row("cells, none", 7, 10, 0);
    }

    void volumeSurfaces()
    {
        const auto [zone, surfaces, faces] = currentRow<int, int, int>();
        openDemo("kinds");
        const ZoneSurface surface = surfaceOf(zone, choiceOf(surfaces));
        QCOMPARE(static_cast<int>(surface.shape->GetNumberOfPolys()), faces);
        QCOMPARE(surface.cellIds.size(), static_cast<std::size_t>(faces));
    }

    void otherKinds_data()
    {
        const Rows<int, int, bool> row;
        row("ordered sheet", 2, 4, false);
        row("triangles", 3, 3, false);
        row("tetrahedra", 4, 3, false);
        row("ordered line", 5, 2, true);
        row("hexahedra", 7, 4, false);
    }

    void otherKinds()
    {
        const auto [zone, cellSize, lines] = currentRow<int, int, bool>();
        openDemo("kinds");
        const ZoneSurface surface = surfaceOf(zone);
        vtkCellArray* const cells = lines ? surface.shape->GetLines() : surface.shape->GetPolys();
        QVERIFY(cells->GetNumberOfCells() > 0);
        QCOMPARE(cells->GetNumberOfCells(), surface.shape->GetNumberOfCells());
        QCOMPARE(cells->GetMaxCellSize(), cellSize);
    }

    void planesAndBlankedCells()
    {
        Box box(5, 4, 4);
        const IndexRange everySecond {2, 0, 2};
        ZoneSurface planes = extractSurface(box.grid(), box.info, choiceOf(2, everySecond));
        QCOMPARE(planes.shape->GetNumberOfPolys(), 2 * 9); // planes 2 and 4 of 5
        QCOMPARE(planes.shape->GetBounds()[0], 1.0);
        QCOMPARE(planes.shape->GetBounds()[1], 3.0);

        // A cell in the middle is blanked: its six faces are exposed, but no boundary.
        box.grid().BlankCell(1 + 4 * (1 + 3 * 1));
        const auto boundary = extractSurface(box.grid(), box.info, choiceOf(0)).shape;
        const auto exposed = extractSurface(box.grid(), box.info, choiceOf(1)).shape;
        QCOMPARE(exposed->GetNumberOfPolys() - boundary->GetNumberOfPolys(), 6);
        // A blanked cell at a corner opens three faces and closes three.
        box.grid().BlankCell(0);
        const auto opened = extractSurface(box.grid(), box.info, choiceOf(1)).shape;
        QCOMPARE(opened->GetNumberOfPolys(), exposed->GetNumberOfPolys());
    }

    void valuesFollowTheirPoints()
    {
        openDemo("kinds");
        for (const CvlInt64 zone : {1, 3, 4, 7, 8}) {
            const ZoneSurface surface = surfaceOf(zone);
            for (const int axis : {0, 1, 2}) {
                const auto values = pointValues(data(), zone, axis + 1, surface); // X, Y, Z
                QVERIFY(values);
                QCOMPARE(values->GetNumberOfTuples(), surface.shape->GetNumberOfPoints());
                for (vtkIdType i = 0; i < values->GetNumberOfTuples(); ++i)
                    QCOMPARE(values->GetValue(i), surface.shape->GetPoint(i)[axis]);
            }
        }
        QVERIFY(!pointValues(data(), 1, 99, surfaceOf(1)));
    }

    void valuesOfCells()
    {
        openDemo("kinds");
        const ZoneSurface surface = surfaceOf(2);
        const auto average = cellValues(data(), 2, 1, surface, CellValue::Average);
        const auto primary = cellValues(data(), 2, 1, surface, CellValue::Primary);
        for (vtkIdType cell = 0; cell < surface.shape->GetNumberOfCells(); ++cell) {
            vtkCell* const face = surface.shape->GetCell(cell);
            double sum = 0.0;
            for (vtkIdType i = 0; i < face->GetNumberOfPoints(); ++i)
                sum += face->GetPoints()->GetPoint(i)[0];
            QCOMPARE(average->GetValue(cell), sum / 4);
            QCOMPARE(primary->GetValue(cell), face->GetPoints()->GetPoint(0)[0]);
        }
    }

    void meshLinesAreUnique_data()
    {
        const Rows<QVector<QVector<int>>, int> row;
        row("one triangle", QVector<QVector<int>> {{0, 1, 2}}, 3);
        row("a shared edge", QVector<QVector<int>> {{0, 1, 2}, {1, 2, 3}}, 5);
        row("shared the other way", QVector<QVector<int>> {{0, 1, 2}, {2, 1, 3}}, 5);
        row("the same face twice", QVector<QVector<int>> {{0, 1, 2}, {2, 0, 1}}, 3);
    }

    void meshLinesAreUnique()
    {
        const auto [faces, lines] = currentRow<QVector<QVector<int>>, int>();
        QCOMPARE(static_cast<int>(meshLines(*facesOf(faces, 4))->GetNumberOfLines()), lines);
    }

    void patternsRunOnAcrossCells()
    {
        Box box(5, 4, 1);
        box.info.cellDimension = 2;
        const auto surface = extractSurface(box.grid(), box.info, {});
        const auto lines = withArcLength(*meshLines(*surface.shape));
        // One chain for each row and column, each from 0 to its length.
        QCOMPARE(lines->GetNumberOfLines(), 5 + 4);
        vtkDataArray* const arcLengths = lines->GetPointData()->GetTCoords();
        double total = 0.0;
        for (vtkIdType line = 0; line < lines->GetNumberOfLines(); ++line) {
            vtkIdList* const points = lines->GetCell(line)->GetPointIds();
            QCOMPARE(arcLengths->GetComponent(points->GetId(0), 0), 0.0);
            total += arcLengths->GetComponent(points->GetId(points->GetNumberOfIds() - 1), 0);
        }
        QCOMPARE(total, 5.0 * 3 + 4.0 * 4);
    }

    void edges_data()
    {
        const Rows<int, int, int, int> row;
        row("box, all borders", 1, 2, 3, 4 * (6 + 4 + 3));
        row("box, no creases of its own", 1, 1, 3, 0);
        row("box without I borders", 1, 0, 0, 4 * 6);
        row("box, I borders at the beginning", 1, 0, 1, 4 * 6 + 2 * 4 + 2 * 3);
        row("hexahedra have creases only", 7, 0, 3, 0);
        row("line", 5, 2, 3, 0);
    }

    void edges()
    {
        const auto [zone, type, iBorder, lines] = currentRow<int, int, int, int>();
        openDemo("kinds");
        EdgeChoice choice;
        choice.type = static_cast<EdgeType_e>(type);
        choice.borders[0] = static_cast<BorderLocation_e>(iBorder);
        const auto geometry = data().geometry(zone);
        const auto found = zoneEdges(*geometry, data().zone(zone), surfaceOf(zone), choice);
        QCOMPARE(static_cast<int>(found->GetNumberOfLines()), lines);

        // Whichever way its faces go round, a flat sheet of cells has a rim and no creases.
        host::ZoneInfo sheet;
        sheet.cellDimension = 2;
        ZoneSurface faces;
        faces.shape = facesOf({{0, 1, 3, 2}, {2, 3, 5, 4}, {4, 6, 7, 5}}, 8);
        choice.type = EdgeType_BordersAndCreases;
        QCOMPARE(zoneEdges(*faces.shape, sheet, faces, choice)->GetNumberOfLines(), 8);
        faces.shape->GetPoints()->SetPoint(6, 0, 2, 1);
        faces.shape->GetPoints()->SetPoint(7, 1, 2, 1);
        QCOMPARE(zoneEdges(*faces.shape, sheet, faces, choice)->GetNumberOfLines(), 9);
    }

    void cacheKeepsWhatIsHeld()
    {
        openDemo("kinds");
        SurfaceCache cache(1); // holds nothing for its own sake
        const auto held = cache.surface(data(), 1, choiceOf(0));
        cache.surface(data(), 2, {});
        cache.surface(data(), 3, {});
        QCOMPARE(cache.surface(data(), 1, choiceOf(0)), held);
        QCOMPARE(cache.extractionCount(), 3);
        cache.surface(data(), 2, {});
        QCOMPARE(cache.extractionCount(), 4);
        QVERIFY(!cache.surface(data(), 6, {})); // a zone without points

        SurfaceCache roomy;
        roomy.surface(data(), 3, choiceOf(9));
        roomy.surface(data(), 3, choiceOf(10)); // no volume: the choice makes no difference
        QCOMPARE(roomy.extractionCount(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_FieldShapes)

#include "tst_field_shapes.moc"
