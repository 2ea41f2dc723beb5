// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/sample_list.h"
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

#include <vtkFieldData.h>
#include <vtkImageData.h>
#include <vtkPolyData.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

class TestReadSamples : public QObject
{
    Q_OBJECT

    DataFolder m_folder;

private Q_SLOTS:

    void zonesAndVariables_data()
    {
        const Rows<QStringList, int, int, QString, QVector<int>, QString, QVector<int>, bool> row;

        row("blocks in three files",
            {"combustor_three_blocks/multicomb_0.vts", "combustor_three_blocks/multicomb_1.vts",
             "combustor_three_blocks/multicomb_2.vts"},
            3, 0, "multicomb_1", {8, 12, 9},
            "X,Y,Z,Density,Momentum X,Momentum Y,Momentum Z,StagnationEnergy", {5, 6, 7}, false);
        row("Plot3D", {"combustor_plot3d/multi-bin.xyz"}, 2, 0, "Block 2", {8, 12, 12},
            "X,Y,Z,Density,Momentum X,Momentum Y,Momentum Z,StagnationEnergy,Function0,Function1",
            {5, 6, 7}, false);
        row("Plot3D by the index in its folder", {"combustor_plot3d"}, 2, 0, "Block 2", {8, 12, 12},
            "X,Y,Z,Density,Momentum X,Momentum Y,Momentum Z,StagnationEnergy,Function0,Function1",
            {5, 6, 7}, false);
        row("EnSight", {"naca_transient/naca.bin.case"}, 6, 3,
            "block 1, Mins/Maxs=(I:1/73,J:1/65,K:1/1)", {73, 65, 1}, "X,Y,Z,DENS", {0, 0, 0}, true);
        row("OpenFOAM by its marker", {"cavity_transient/case.foam"}, 24, 4, "internalMesh",
            {0, 0, 0}, "X,Y,Z,U X,U Y,U Z,p", {4, 5, 6}, false);
        row("OpenFOAM by its controlDict", {"cavity_transient/system/controlDict"}, 24, 4,
            "internalMesh", {0, 0, 0}, "X,Y,Z,U X,U Y,U Z,p", {4, 5, 6}, false);
        row("OpenFOAM by its folder", {"cavity_transient"}, 24, 4, "internalMesh", {0, 0, 0},
            "X,Y,Z,U X,U Y,U Z,p", {4, 5, 6}, false);
        row("Exodus", {"exodus_biplane/biplane_rms_pressure_bs.exo"}, 59, 0, "Unnamed block ID: 2",
            {0, 0, 0}, "X,Y,Z,ObjectId,PressureRMS", {0, 0, 0}, false);
        row("collection of five times", {"two_spheres/dualSphereAnimation4.pvd"}, 10, 2, "Piece 1",
            {0, 0, 0},
            "X,Y,Z,Normals X,Normals Y,Normals Z,cellNormals X,cellNormals Y,cellNormals Z",
            {4, 5, 6}, false);
    }

    void zonesAndVariables()
    {
        auto [files, zones, strands, secondZone, dimensions, variables, vector, planar] =
            currentRow<QStringList, int, int, QString, QVector<int>, QString, QVector<int>, bool>();
        for (QString& file : files)
            file = DataFolder::sample(file);
        const auto result = dataOf(files);
        const DataSet& data = *result;
        QCOMPARE(static_cast<int>(data.zoneCount()), zones);
        int lastStrand = 0;
        for (const ZoneInfo& zone : data.zones)
            lastStrand = std::max(lastStrand, zone.strand);
        QCOMPARE(lastStrand, strands);
        QCOMPARE(zoneNames(data)[1], secondZone);
        for (std::size_t i = 0; i < 3; ++i)
            QCOMPARE(static_cast<int>(data.zones[1].dimensions[i]),
                     dimensions[static_cast<int>(i)]);
        QCOMPARE(variableNames(data).join(","), variables);
        for (std::size_t i = 0; i < 3; ++i)
            QCOMPARE(data.vectorVariables[i], vector[static_cast<int>(i)]);
        QCOMPARE(data.isPlanar, planar);
        QVERIFY(!data.contourVariables.empty() && data.contourVariables[0] > 3);
        QCOMPARE(static_cast<int>(data.files.size()), files.size());
        QCOMPARE(data.notes, std::vector<std::string>());
    }

    void geometryIsWhatTheZonesSay_data()
    {
        const Rows<QStringList> row;
        for (const Sample& sample : sampleList())
            row(qPrintable(sample.title), sample.files);
    }

    void geometryIsWhatTheZonesSay()
    {
        const auto [files] = currentRow<QStringList>();
        const auto result = dataOf(files);
        const DataSet& data = *result;
        for (std::int64_t number = 1; number <= data.zoneCount(); ++number) {
            const ZoneInfo& zone = data.zone(number);
            const vtkSmartPointer<vtkDataSet> geometry = data.geometry(number);
            QVERIFY2(geometry, zone.name.c_str());
            QCOMPARE(std::int64_t(geometry->GetNumberOfPoints()), zone.pointCount);
            QCOMPARE(std::int64_t(geometry->GetNumberOfCells()), zone.cellCount);
            const bool isCells =
                vtkUnstructuredGrid::SafeDownCast(geometry) || vtkPolyData::SafeDownCast(geometry);
            QCOMPARE(zone.ordered, !isCells);
            QCOMPARE(geometry->GetFieldData()->GetNumberOfArrays(), 0);
            int dimensions[3] = {0, 0, 0};
            if (auto* grid = vtkStructuredGrid::SafeDownCast(geometry))
                grid->GetDimensions(dimensions);
            else if (auto* row = vtkImageData::SafeDownCast(geometry)) // of a table
                row->GetDimensions(dimensions);
            for (std::size_t i = 0; i < 3; ++i)
                QCOMPARE(std::int64_t(dimensions[i]), zone.dimensions[i]);
        }
        for (std::int64_t variable = 1; variable <= data.variableCount(); ++variable) {
            bool isAnywhere = false;
            for (std::int64_t zone = 1; zone <= data.zoneCount() && !isAnywhere; ++zone)
                isAnywhere = data.values(zone, variable).array != nullptr;
            QVERIFY2(isAnywhere, data.variable(variable).name.c_str());
        }
    }

    void strandsAndTimes()
    {
        const auto cavity = dataOf({DataFolder::sample("cavity_transient/case.foam")});
        QCOMPARE(cavity->solutionTimes(), (std::vector<double> {0, 0.5, 1, 1.5, 2, 2.5}));
        QCOMPARE(zoneNames(*cavity).mid(0, 7).join(","),
                 QString("internalMesh,internalMesh,internalMesh,internalMesh,internalMesh,"
                         "internalMesh,boundary/movingWall"));

        const auto spheres =
            dataOf({DataFolder::sample("two_spheres/dualSphereAnimation4NoPart.pvd")});
        QCOMPARE(spheres->zoneCount(), std::int64_t(9));
        QCOMPARE(spheres->zone(5).strand, 1);
        QCOMPARE(spheres->zone(6).strand, 2);
        QCOMPARE(spheres->zone(6).time, 1.0);
    }

    void valuesAreThoseOfTheFile()
    {
        const auto result = dataOf({DataFolder::sample("cavity_transient/case.foam")});
        const QVector<double> pressure = values(*result, 2, "p");
        const QVector<double> u = values(*result, 2, "U X");
        QCOMPARE(pressure.size(), 400);
        QCOMPARE(static_cast<float>(pressure[1]), -0.0058199f);
        QCOMPARE(static_cast<float>(u[2]), -0.0011771f);
        QCOMPARE(result->values(2, 7).location, ValueLocation::Cells);
        const QVector<double> lid = values(*result, 8, "U X");
        QCOMPARE(lid, QVector<double>(20, 1.0));
        QVERIFY(values(*result, 1, "U X") != u);
    }

    void notesOfOneKindAreCounted()
    {
        const QDir folder(m_folder.copySample("cavity_transient", "cut"));
        for (const char* const time : {"0", "0.5", "1", "1.5", "2", "2.5"}) {
            for (const char* const field : {"U", "p"}) {
                QFile file(folder.filePath(QString("%1/%2").arg(time, field)));
                QVERIFY(file.open(QIODevice::ReadWrite));
                QVERIFY(file.resize(file.readAll().indexOf("frontAndBack")));
            }
        }
        const ReadResult result = read({folder.filePath("case.foam")});
        QVERIFY2(result.data, qPrintable(result.error));
        QCOMPARE(result.data->notes.size(), std::size_t(12));
        QCOMPARE(
            result.noteGroups,
            QStringList(QString::fromStdString(result.data->notes[0]) + " (and 11 more like it)"));
    }

    void decomposedCase()
    {
        m_folder.write("parts/system/controlDict", "FoamFile { }");
        m_folder.copySample("cavity_transient", "parts/processor0");
        m_folder.copySample("cavity_transient", "parts/processor1");
        const auto result = dataOf({m_folder.write("parts/case.foam", {})});
        QCOMPARE(result->zoneCount(), std::int64_t(24));
        QCOMPARE(result->zone(1).cellCount, std::int64_t(800));
    }
};

QTEST_GUILESS_MAIN(TestReadSamples)
#include "tst_read_samples.moc"
