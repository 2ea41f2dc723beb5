// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/zone_writer.h"
#include "host/io/zone_assembly.h"
#include "host/io/zone_file_source.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <vtkBitArray.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkRectilinearGrid.h>
#include <vtkSOADataArrayTemplate.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

using namespace corvala::host::io;
using namespace corvala::tests;

Q_DECLARE_METATYPE(vtkSmartPointer<vtkDataSet>)

using Zone = vtkSmartPointer<vtkDataSet>;

template<typename Array>
static vtkSmartPointer<Array> numbers(const char* name, vtkIdType tuples, int components)
{
    const auto array = vtkSmartPointer<Array>::New();
    array->SetName(name);
    array->SetNumberOfComponents(components);
    array->SetNumberOfTuples(tuples);
    for (vtkIdType i = 0; i < tuples * components; ++i)
        array->SetComponent(i / components, static_cast<int>(i % components),
                            static_cast<double>(i % 2 == 0 ? i : -i) / 4);
    return array;
}

static vtkSmartPointer<vtkPoints> points(vtkIdType count)
{
    const auto result = vtkSmartPointer<vtkPoints>::New();
    result->SetData(numbers<vtkFloatArray>("places", count, 3));
    return result;
}

static Zone image()
{
    const auto zone = vtkSmartPointer<vtkImageData>::New();
    zone->SetExtent(1, 3, 0, 2, 5, 5);
    zone->SetOrigin(1, 2, 3);
    zone->SetSpacing(0.5, 0.25, 2);
    zone->SetDirectionMatrix(0, 1, 0, -1, 0, 0, 0, 0, 1);
    return zone;
}

static Zone rectilinear()
{
    const auto zone = vtkSmartPointer<vtkRectilinearGrid>::New();
    zone->SetDimensions(2, 3, 1);
    zone->SetXCoordinates(numbers<vtkDoubleArray>("x", 2, 1));
    zone->SetYCoordinates(numbers<vtkFloatArray>("y", 3, 1));
    zone->SetZCoordinates(numbers<vtkDoubleArray>("z", 1, 1));
    return zone;
}

static Zone curved()
{
    const auto zone = vtkSmartPointer<vtkStructuredGrid>::New();
    zone->SetExtent(0, 1, 0, 1, 0, 2);
    zone->SetPoints(points(12));
    return zone;
}

static Zone cells(bool polyhedron)
{
    const auto zone = vtkSmartPointer<vtkUnstructuredGrid>::New();
    zone->SetPoints(points(8));
    const vtkIdType corners[] = {0, 1, 2, 3};
    const vtkIdType faces[] = {3, 0, 1, 2, 3, 0, 1, 3, 3, 1, 2, 3, 3, 0, 2, 3};
    zone->InsertNextCell(VTK_QUAD, 4, corners);
    if (polyhedron)
        zone->InsertNextCell(VTK_POLYHEDRON, 4, corners, 4, faces);
    return zone;
}

static Zone surface()
{
    const auto zone = vtkSmartPointer<vtkPolyData>::New();
    zone->SetPoints(points(5));
    const vtkNew<vtkCellArray> lines;
    lines->ConvertTo32BitStorage();
    lines->InsertNextCell({0, 1, 2});
    zone->SetLines(lines);
    const vtkNew<vtkCellArray> polygons;
    polygons->InsertNextCell({0, 1, 2, 3, 4});
    zone->SetPolys(polygons);
    return zone;
}

/// With arrays of several types, names and layouts.
static Zone withValues(const Zone& zone)
{
    const vtkIdType count = zone->GetNumberOfPoints();
    const auto vector = numbers<vtkDoubleArray>("a <b> & \"c\"", count, 3);
    vector->SetComponentName(1, "größe");
    zone->GetPointData()->AddArray(vector);
    zone->GetPointData()->AddArray(numbers<vtkSOADataArrayTemplate<float>>("apart", count, 2));
    zone->GetCellData()->AddArray(numbers<vtkBitArray>("bits", zone->GetNumberOfCells(), 1));
    zone->GetCellData()->AddArray(numbers<vtkIdTypeArray>("ids", zone->GetNumberOfCells(), 1));
    return zone;
}

static std::unique_ptr<ReadFolder> folderWith(const QVector<Zone>& zones)
{
    auto folder = std::make_unique<ReadFolder>();
    reader::ZoneWriter writer(folder->path());
    for (int i = 0; i < zones.size(); ++i)
        if (writer.write(*zones[i]) != i)
            return nullptr;
    writer.finish();
    return folder;
}

static QString text(vtkDataArray* array)
{
    QString result = array && array->GetName() ? array->GetName() : "-";
    for (vtkIdType i = 0; array && i < array->GetNumberOfTuples(); ++i)
        for (int c = 0; c < array->GetNumberOfComponents(); ++c)
            result += QStringLiteral(" %1").arg(array->GetComponent(i, c));
    return array && array->HasAComponentName() ? result + array->GetComponentName(1) : result;
}

static QString text(vtkDataSetAttributes& attributes)
{
    QString result;
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i)
        result += text(attributes.GetArray(i)) + '\n';
    return result;
}

/// All that a zone says: its points, cells and values.
static QString text(vtkDataSet& zone)
{
    QString result = QStringLiteral("%1\n").arg(zone.GetClassName());
    for (vtkIdType i = 0; i < zone.GetNumberOfPoints(); ++i) {
        const double* const place = zone.GetPoint(i);
        result += QStringLiteral("%1 %2 %3\n").arg(place[0]).arg(place[1]).arg(place[2]);
    }
    const vtkNew<vtkIdList> corners;
    for (vtkIdType i = 0; i < zone.GetNumberOfCells(); ++i) {
        zone.GetCellPoints(i, corners);
        result += QStringLiteral("\n%1:").arg(zone.GetCellType(i));
        for (const vtkIdType corner : *corners)
            result += QStringLiteral(" %1").arg(corner);
    }
    if (auto* grid = vtkUnstructuredGrid::SafeDownCast(&zone))
        result += text(grid->GetFaces()) + text(grid->GetFaceLocations());
    return result + text(*zone.GetPointData()) + text(*zone.GetCellData());
}

/// The numbers of a zone, which callers share.
static vtkDataArray* numbersOf(const Zone& zone)
{
    return zone->GetPointData()->GetArray(0);
}

class TestZoneFileSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zonesComeAsTheyWent_data()
    {
        const Rows<Zone> row;
        row("image", image());
        row("rectilinear grid", rectilinear());
        row("structured grid", curved());
        row("cells", cells(false));
        row("polyhedron", cells(true));
        row("surface of 32 and 64 bits", surface());
        row("no points", vtkSmartPointer<vtkUnstructuredGrid>::New());
    }

    void zonesComeAsTheyWent()
    {
        const auto [plain] = currentRow<Zone>();
        const Zone zone = withValues(plain);
        const auto source = ZoneFileSource::open(folderWith({curved(), zone, zone}));
        QVERIFY(source);
        QCOMPARE(text(*source->zone(1)), text(*zone));
        QCOMPARE(text(*source->zone(2)), text(*zone));
        QCOMPARE(text(*source->zone(0)), text(*curved()));
    }

    void numbersOutliveTheFolder()
    {
        auto folder = folderWith({image(), withValues(cells(true))});
        const QString path = folder->path();
        const QString wanted = text(*withValues(cells(true)));
        auto source = ZoneFileSource::open(std::move(folder));
        const Zone kept = source->zone(1);
        QVERIFY(source->zone(1) != kept); // threads let go of their own
        const auto copy = vtkSmartPointer<vtkDoubleArray>::New();
        copy->ShallowCopy(numbersOf(kept));
        QVERIFY(!source->zone(-1) && !source->zone(2));
        source.reset();
        QVERIFY(!QDir(path).exists());
        QCOMPARE(text(*kept), wanted);
        numbersOf(kept)->SetComponent(1, 1, 7); // written to nobody's file
        QCOMPARE(copy->GetComponent(1, 1), 7.0);
    }

    void cacheKeepsWhatWasUsedLast()
    {
        const auto zone = [] {
            const Zone wide = withValues(surface());
            for (int i = 0; i < ZoneFileSource::kFewArrays; ++i)
                wide->GetPointData()->AddArray(
                    numbers<vtkFloatArray>(std::to_string(i).c_str(), 5, 1));
            return wide;
        };
        const auto source = ZoneFileSource::open(folderWith({zone(), zone()}), 1);
        const Zone first = source->zone(0);
        QCOMPARE(numbersOf(source->zone(0)), numbersOf(first));
        QVERIFY(source->zone(1));
        QVERIFY(numbersOf(source->zone(0)) != numbersOf(first));
    }

    /// Whatever became of the table, nobody reads beside the numbers.
    void damagedTables()
    {
        const auto folder = folderWith({withValues(curved()), withValues(rectilinear())});
        QFile file(folder->filePath(kZoneTableFile));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray table = file.readAll();
        const qint64 size = QFileInfo(folder->filePath(kNumbersFile)).size();
        QVERIFY(zoneTableFromBytes(table, size));
        QVERIFY(!zoneTableFromBytes(table, size - 1));
        const auto numbers = MappedNumbers::open(folder->filePath(kNumbersFile));
        for (int i = 0; i < table.size(); ++i) {
            QVERIFY(!zoneTableFromBytes(table.left(i), size));
            QByteArray altered = table;
            altered[i] = static_cast<char>(altered[i] ^ 0x41);
            const auto read = zoneTableFromBytes(altered, size);
            for (std::size_t number = 0; read && number < read->zones.size(); ++number) {
                const Zone zone = assembleZone(*read, number, *numbers);
                if (zone)
                    QVERIFY(!text(*zone).isEmpty()); // which looks at all of it
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestZoneFileSource)
#include "tst_zone_file_source.moc"
