// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/arrows.h"
#include "plot/field/geometry/glyph_points.h"
#include "plot/field/geometry/surface_directions.h"
#include "plot/field/scene/vector_scale.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <vtkPoints.h>
#include <vtkStructuredGrid.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

using Vector = std::array<double, 3>;

static constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
static constexpr double kInfinity = std::numeric_limits<double>::infinity();

static const host::DataSet& data()
{
    return *document().activeFrame()->data();
}

static ZoneSurface surfaceOf(CvlInt64 zone, int surfaces = SurfacesToPlot_BoundaryCellFaces)
{
    SurfaceChoice choice;
    choice.surfaces = static_cast<SurfacesToPlot_e>(surfaces);
    return extractSurface(*data().geometry(zone), data().zone(zone),
                          choice.normalized(data().zone(zone)));
}

static PointChoice choiceOf(int points, const std::array<int, 3>& skip = {{1, 1, 1}})
{
    return {static_cast<PointsToPlot_e>(points), skip};
}

static vtkSmartPointer<vtkDoubleArray> arrayOf(const std::vector<Vector>& vectors)
{
    auto array = vtkSmartPointer<vtkDoubleArray>::New();
    array->SetNumberOfComponents(3);
    for (const Vector& vector : vectors)
        array->InsertNextTuple(vector.data());
    return array;
}

/// Arrows at the origin of a flat plot, 2 long for a magnitude of 1.
static vtkSmartPointer<vtkPolyData> arrowsOf(const std::vector<Vector>& vectors,
                                             ArrowChoice choice = {})
{
    choice.scale = 2.0;
    vtkNew<vtkPoints> points;
    for (std::size_t i = 0; i < vectors.size(); ++i)
        points->InsertNextPoint(0.0, 0.0, 0.0);
    const auto normals = arrayOf(std::vector<Vector>(vectors.size(), {{0.0, 0.0, 1.0}}));
    return arrows({*points, *arrayOf(vectors), normals, nullptr}, choice);
}

class tst_FieldGlyphs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void points_data()
    {
        using Skip = std::array<int, 3>;
        const Rows<int, int, int, Skip, int> row;
        const Skip all {{1, 1, 1}};
        // Zone 1 of the kinds is ordered, 7 by 5 by 4 points, zone 4 has 5 by 4 by 3 of tetrahedra.
        row("nodes of the boundary", 1, 0, 0, all, 7 * 5 * 4 - 5 * 3 * 2);
        row("all nodes", 1, 0, 1, all, 7 * 5 * 4);
        row("connected nodes", 1, 0, 4, all, 7 * 5 * 4);
        row("cells of the boundary", 1, 0, 2, all, 2 * (4 * 3 + 6 * 3 + 6 * 4));
        row("all cells", 1, 0, 3, all, 6 * 4 * 3);
        row("nodes of K planes", 1, 4, 0, all, 7 * 5 * 4);
        row("no surfaces", 1, 10, 0, all, 0);
        row("cells of no surfaces", 1, 10, 2, all, 0);
        row("all nodes without surfaces", 1, 10, 1, all, 7 * 5 * 4);
        row("skip", 1, 0, 1, {{3, 2, 3}}, 3 * 3 * 2);
        row("skip of cells", 1, 0, 3, {{4, 3, 2}}, 2 * 2 * 2);
        row("skip beyond the zone", 1, 0, 1, {{99, 99, 99}}, 1);
        // Both I faces as a whole; every second row of the others.
        row("skip along a surface", 1, 0, 0, {{2, 1, 1}}, 2 * 20 + 2 * 14);
        row("skip of boundary cells", 1, 0, 2, {{99, 99, 99}}, 6);
        row("sheet", 2, 0, 0, {{2, 2, 1}}, 4 * 3);
        row("sheet, cells", 2, 0, 2, {{2, 2, 1}}, 3 * 2);
        row("line", 5, 0, 0, {{7, 1, 1}}, 3);
        row("triangles, every fourth", 3, 0, 0, {{4, 99, 99}}, 9);
        row("tetrahedra", 4, 0, 1, {{1, 9, 9}}, 5 * 4 * 3);
        row("without points", 6, 0, 1, all, 0);
    }

    void points()
    {
        const auto [zone, surfaces, points, skip, count] =
            currentRow<int, int, int, std::array<int, 3>, int>();
        openDemo("kinds");
        const auto geometry = data().geometry(zone);
        if (!geometry) {
            QCOMPARE(count, 0);
            return;
        }
        const PointChoice choice = choiceOf(points, skip).normalized(data().zone(zone));
        const ZoneSurface surface = surfaceOf(zone, surfaces);
        const GlyphPoints found = glyphPoints(*geometry, data().zone(zone), &surface, choice);
        QCOMPARE(int(found.ids.size()), count);
        QCOMPARE(int(found.places->GetNumberOfPoints()), count);
        for (const int axis : {0, 1, 2}) { // values are those of the places
            const auto values = glyphValues(data(), zone, axis + 1, &surface, choice, found);
            for (int i = 0; i < count; ++i)
                QVERIFY(std::abs(values->GetValue(i) - found.places->GetPoint(i)[axis]) < 1e-6);
        }
    }

    void blankedCellsCarryNothing_data()
    {
        const Rows<int, int> row;
        row("nodes", 1, 27 - 1);
        row("cells", 3, 8 - 1);
        row("connected nodes", 4, 27 - 1);
        row("cells of the surface", 2, 24); // three faces less, three more
    }

    void blankedCellsCarryNothing()
    {
        const auto [points, count] = currentRow<int, int>();
        vtkNew<vtkStructuredGrid> grid;
        grid->SetDimensions(3, 3, 3);
        vtkNew<vtkPoints> places;
        for (int i = 0; i < 27; ++i)
            places->InsertNextPoint(i % 3, i / 3 % 3, i / 9);
        grid->SetPoints(places);
        grid->BlankCell(0); // at a corner
        host::ZoneInfo info;
        info.ordered = true;
        info.dimensions = {{3, 3, 3}};
        SurfaceChoice exposed;
        exposed.surfaces = SurfacesToPlot_ExposedCellFaces;
        const ZoneSurface surface = extractSurface(*grid, info, exposed);
        QCOMPARE(int(glyphPoints(*grid, info, &surface, choiceOf(points)).ids.size()), count);
    }

    void arrowFigures_data()
    {
        const Rows<int, int, double, double, int, int> row;
        // From, to, lines and faces of an arrow along X that is 2 long, with a head of a quarter.
        row("tail at point", 0, 0, 0.0, 2.0, 2, 0);
        row("head at point", 1, 0, -2.0, 0.0, 2, 0);
        row("midpoint", 2, 0, -1.0, 1.0, 2, 0);
        row("head only", 3, 0, -0.25, 0.25, 1, 0);
        row("filled", 0, 1, 0.0, 2.0, 1, 1);
        row("hollow", 0, 2, 0.0, 2.0, 2, 0);
        row("filled head only", 3, 1, -0.25, 0.25, 0, 1);
    }

    void arrowFigures()
    {
        const auto [type, head, from, to, lines, faces] =
            currentRow<int, int, double, double, int, int>();
        ArrowChoice choice;
        choice.type = static_cast<VectorType_e>(type);
        choice.head = static_cast<ArrowheadStyle_e>(head);
        const auto arrow = arrowsOf({{{1.0, 0.0, 0.0}}}, choice);
        const double* const bounds = arrow->GetBounds();
        QCOMPARE(bounds[0], from);
        QCOMPARE(bounds[1], to);
        QCOMPARE(bounds[3], 0.5 * std::tan(20.0 / 180.0 * M_PI)); // half of the head
        QCOMPARE(bounds[5], 0.0); // flat
        QCOMPARE(int(arrow->GetNumberOfLines()), lines);
        QCOMPARE(int(arrow->GetNumberOfPolys()), faces);
    }

    void unusableVectors_data()
    {
        const Rows<Vector, bool, double> row;
        row("length by magnitude", {{0.0, 3.0, 0.0}}, false, 6.0);
        row("the same length", {{0.0, 3.0, 0.0}}, true, 2.0);
        row("none", {{0.0, 0.0, 0.0}}, false, 0.0);
        row("none of the same length", {{0.0, 0.0, 0.0}}, true, 0.0);
        row("not a number", {{1.0, kNaN, 0.0}}, true, 0.0);
        row("infinite", {{kInfinity, 0.0, 0.0}}, false, 0.0);
    }

    void unusableVectors()
    {
        const auto [vector, isUniform, length] = currentRow<Vector, bool, double>();
        ArrowChoice choice;
        choice.isUniform = isUniform;
        const auto arrow = arrowsOf({vector}, choice);
        QCOMPARE(arrow->GetNumberOfCells() > 0, length > 0.0);
        if (length > 0.0)
            QCOMPARE(arrow->GetBounds()[3], length);
    }

    void tangents()
    {
        openDemo("kinds");
        for (const CvlInt64 zone : {2, 5}) { // a sheet of constant Z, and a line along X
            const ZoneSurface surface = surfaceOf(zone);
            for (const int points : {0, 2}) {
                const auto found = glyphPoints(*data().geometry(zone), data().zone(zone), &surface,
                                               choiceOf(points));
                const auto vectors = arrayOf(std::vector<Vector>(found.ids.size(), {{1, 2, 3}}));
                makeTangent(*vectors, found, surface, choiceOf(points));
                for (vtkIdType i = 0; i < vectors->GetNumberOfTuples(); ++i) {
                    QCOMPARE(vectors->GetComponent(i, 0), 1.0);
                    QCOMPARE(1.0 + vectors->GetComponent(i, 1), zone == 2 ? 3.0 : 1.0);
                    QCOMPARE(1.0 + vectors->GetComponent(i, 2), 1.0);
                }
            }
        }
    }

    void scale_data()
    {
        const Rows<double, double, double, double> row;
        row("few points", 16.0, 1.0, 8.0, 0.125);
        row("many points", 1e8, 1.0, 8.0, 1.0 / 30);
        row("small numbers", 16.0, 1e-30, 1e-30, 0.125);
        row("no vectors", 16.0, 0.0, 0.0, 0.0);
        row("no points", 0.0, 0.0, -1.0, 0.0);
    }

    void scale()
    {
        const auto [count, mean, largest, share] = currentRow<double, double, double, double>();
        const GroupRanges::Range part {0.0, largest, mean * mean * count, count};
        const GroupRanges::Range place {0.0, 10.0, 0.0, count};
        const VectorScale scale = proposedScale({part, {}, {}}, {place, place, {}});
        QVERIFY(std::abs(scale.length - 10.0 * share) <= 0.13 * 10.0 * share); // rounded
        if (share > 0.0) // an extreme value is not what counts
            QVERIFY(scale.length / scale.lengthOfOne < 2.1 * mean);
    }

    void reference_data()
    {
        const Rows<double, double, double> row;
        row("the longest that is round", 0.15, 0.0, 50.0);
        row("exactly as long", 0.5, 0.0, 20.0);
        row("as wanted", 0.1, 3.3, 3.3);
        row("too long", 0.15, 200.0, 50.0);
        row("tiny", 1e12, 0.0, 1e-11);
    }

    void reference()
    {
        const auto [lengthOfOne, wanted, magnitude] = currentRow<double, double, double>();
        const ReferenceArrow arrow = referenceArrow(lengthOfOne, 10.0, wanted);
        QCOMPARE(arrow.magnitude, magnitude);
        QCOMPARE(arrow.length, magnitude * lengthOfOne);
    }
};

QTEST_GUILESS_MAIN(tst_FieldGlyphs)

#include "tst_field_glyphs.moc"
