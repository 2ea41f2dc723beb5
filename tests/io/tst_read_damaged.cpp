// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/ensight_files.h"
#include "tests/io/vtk_text.h"
#include "tests/support/rows.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkCellType.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPLYWriter.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkSTLWriter.h>
#include <vtkUnstructuredGrid.h>
#include <vtkUnstructuredGridWriter.h>
#include <vtkXMLUnstructuredGridWriter.h>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

static QVector<double> numbers(int count, double first)
{
    QVector<double> result;
    for (int i = 0; i < count; ++i)
        result << static_cast<double>(static_cast<float>(first + i));
    return result;
}

/// Six tetrahedra with values at the points and in the cells.
static vtkSmartPointer<vtkUnstructuredGrid> mesh()
{
    constexpr int kPoints = 9;
    auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    vtkNew<vtkPoints> points;
    vtkNew<vtkDoubleArray> p;
    p->SetName("p");
    vtkNew<vtkDoubleArray> q;
    q->SetName("q");
    for (int i = 0; i < kPoints; ++i) {
        points->InsertNextPoint(i, i * i, i % 2);
        p->InsertNextValue(100.5 + i);
    }
    grid->SetPoints(points);
    for (vtkIdType i = 0; i + 3 < kPoints; ++i) {
        const vtkIdType corners[] = {i, i + 1, i + 2, i + 3};
        grid->InsertNextCell(VTK_TETRA, 4, corners);
        q->InsertNextValue(7.25 * static_cast<double>(i));
    }
    grid->GetPointData()->AddArray(p);
    grid->GetCellData()->AddArray(q);
    return grid;
}

static QVector<double> definedIn(const QVector<double>& values)
{
    QVector<double> result;
    std::copy_if(values.begin(), values.end(), std::back_inserter(result),
                 [](double value) { return std::isfinite(value); });
    return result;
}

/// Six triangles.
static vtkSmartPointer<vtkPolyData> surface()
{
    const auto grid = mesh();
    auto result = vtkSmartPointer<vtkPolyData>::New();
    result->SetPoints(grid->GetPoints());
    vtkNew<vtkCellArray> triangles;
    for (vtkIdType i = 0; i < 6; ++i) {
        const vtkIdType corners[] = {i, i + 1, i + 3};
        triangles->InsertNextCell(3, corners);
    }
    result->SetPolys(triangles);
    return result;
}

class TestReadDamaged : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void ensight_data()
    {
        const Rows<EnSightForm> row;
        for (const bool isGold : {true, false})
            for (const bool isOneFile : {false, true})
                for (const auto coding :
                     {EnSightForm::Text, EnSightForm::Binary, EnSightForm::BinaryBigEndian,
                      EnSightForm::Fortran, EnSightForm::FortranBigEndian})
                    row(QString::asprintf("%s, coding %d%s", isGold ? "Gold" : "6", coding,
                                          isOneFile ? ", in one file" : ""),
                        EnSightForm {coding, isGold, isOneFile});
    }

    void ensight()
    {
        const auto [form] = currentRow<EnSightForm>();
        const MadeData made = ensightCase(form);
        write(made);
        const auto data = dataOf({m_folder->path("a.case")});
        QStringList zones {"solid", "solid", "block", "block"};
        if (form.isGold)
            for (const char* const name : {"polygons", "polyhedron", "stretched", "uniform"})
                zones << name << name;
        QCOMPARE(zoneNames(*data), zones + QStringList({"Particles", "Particles"}));
        QCOMPARE(data->solutionTimes(), (std::vector<double> {0.5, 1.5}));
        QCOMPARE(values(*data, 2, "p"), numbers(8, 115));
        QCOMPARE(values(*data, 2, "v Z"), numbers(form.isGold ? 3 : 2, 115.2));
        QCOMPARE(values(*data, 3, "v Y"), numbers(2, 205.1));
        QCOMPARE(values(*data, 4, "X"),
                 (QVector<double> {1.5, 2, 2.5, 3, 3.5, 4, 4.5, 5, 5.5, 6, 6.5, 7}));
        QCOMPARE(values(*data, data->zoneCount(), "dust"), numbers(3, 15));
        if (form.isGold) {
            QCOMPARE(definedIn(values(*data, 6, "p")), (QVector<double> {315, 317}));
            QCOMPARE(definedIn(values(*data, 10, "p")),
                     (QVector<double> {615, 616, 618, 619, 620}));
        }
        QCOMPARE(data->notes.size(), std::size_t(form.isGold ? 1 : 0)); // the empty part
    }

    void damagedEnSight_data()
    {
        const Rows<EnSightForm> row;
        row("Gold, text", {EnSightForm::Text, true, true});
        row("Gold, C", {EnSightForm::Binary, true, false});
        row("Gold, Fortran", {EnSightForm::FortranBigEndian, true, true});
        row("6, text", {EnSightForm::Text, false, false});
        row("6, C", {EnSightForm::BinaryBigEndian, false, true});
    }

    void damagedEnSight()
    {
        const auto [form] = currentRow<EnSightForm>();
        const MadeData made = ensightCase(form);
        checkDamages(made, {form.isOneFile ? "geo" : "geo1"});
        checkDamages(made,
                     form.isOneFile ? QStringList {"p_", "my data/v_", "dust"}
                                    : QStringList {"p_1", "my data/v_1", "places1", "dust0"});
    }

    void notesOfEnSight_data()
    {
        const Rows<QString, std::function<QByteArray(const QByteArray&)>, QString> row;
        const auto nothing = [](const QByteArray&) { return QByteArray(); };
        row("values are missing", "p_1", nothing,
            "p was left out at time 1.5: p_1: there is no such file.");
        row(
            "values are cut off", "p_1", [](const QByteArray& all) { return all.chopped(1); },
            "p was left out in uniform at time 1.5: p_1: it is cut off: 1323 of at least 1324 "
            "bytes "
            "are there.");
        row(
            "no parts", "my data/v_1", [](const QByteArray& all) { return all.left(80); },
            "v was left out at time 1.5: v_1: there are no values of it.");
        row("no geometry at one time", "geo1", nothing,
            "Time 1.5 was left out: geo1: there is no such file.");
        row("no particles at one time", "places1", nothing,
            "Particles were left out at time 1.5: places1: there is no such file.");
        row(
            "no field", "a.case",
            [](QByteArray all) { return all.replace("TIME", "constant per case: M 0.8\nTIME"); },
            "Line 10 of the case was left out: constant per case: M 0.8 is no field.");
    }

    void notesOfEnSight()
    {
        const auto [file, change, note] =
            currentRow<QString, std::function<QByteArray(const QByteArray&)>, QString>();
        const MadeData made = ensightCase({EnSightForm::Binary, true, false});
        write(made);
        replace(file, change(made.files[file].content));
        const ReadResult result = read({m_folder->path("a.case")});
        QVERIFY2(result.data, qPrintable(result.error));
        QVERIFY2(result.noteGroups.contains(note), qPrintable(result.noteGroups.join('\n')));
    }

    void damagedFiles_data()
    {
        const Rows<QString, MadeFile (*)(const QByteArray&), QString> row;
        row("XML, text", "text.vtu", textFile, {});
        row("XML, base64", "base64.vtu", textFile, {});
        row("XML, appended", "appended.vtu", plainFile, {});
        row("legacy, binary", "binary.vtk", plainFile, {});
        row("legacy, text", "text.vtk", textFile, {});
        row("XML in a tree", "appended.vtu", plainFile, "a.vtm");
        row("legacy in a tree", "text.vtk", textFile, "a.vtm");
        row("STL, binary", "binary.stl", plainFile, {});
        row("STL, text", "text.stl", textFile, {});
        row("PLY, binary", "binary.ply", plainFile, {});
        row("PLY, text", "text.ply", textFile, {});
        row("CGNS", "cgns_hexa/cgnslib_vers-4400.cgns", plainFile, {});
        row("Plot3D", "combustor_plot3d/multi-bin.xyz", plainFile, {});
    }

    void damagedFiles()
    {
        const auto [name, made, opened] =
            currentRow<QString, MadeFile (*)(const QByteArray&), QString>();
        m_folder->write(
            "a.vtm", tree("<DataSet file='" + name.toUtf8() + "'/><DataSet file='base64.vtu'/>"));
        writeMesh(vtkNew<vtkXMLUnstructuredGridWriter>(), "text.vtu",
                  [](auto& file) { file.SetDataModeToAscii(); });
        writeMesh(vtkNew<vtkXMLUnstructuredGridWriter>(), "base64.vtu",
                  [](auto& file) { file.SetDataModeToBinary(); });
        writeMesh(vtkNew<vtkXMLUnstructuredGridWriter>(), "appended.vtu",
                  [](auto& file) { file.EncodeAppendedDataOff(); });
        writeMesh(vtkNew<vtkUnstructuredGridWriter>(), "binary.vtk",
                  [](auto& file) { file.SetFileTypeToBinary(); });
        writeMesh(vtkNew<vtkUnstructuredGridWriter>(), "text.vtk",
                  [](auto& file) { file.SetFileTypeToASCII(); });
        const auto setSurface = [](auto& file) { file.SetInputData(surface()); };
        const auto setText = [&](auto& file) {
            setSurface(file);
            file.SetFileTypeToASCII();
        };
        writeMesh(vtkNew<vtkSTLWriter>(), "binary.stl", [&](auto& file) {
            setSurface(file);
            file.SetFileTypeToBinary();
        });
        writeMesh(vtkNew<vtkSTLWriter>(), "text.stl", setText);
        writeMesh(vtkNew<vtkPLYWriter>(), "binary.ply", setSurface);
        writeMesh(vtkNew<vtkPLYWriter>(), "text.ply", setText);
        if (name.contains('/'))
            m_folder->copySample(name.section('/', 0, 0));
        QFile file(m_folder->path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        checkDamages({{{name, made(file.readAll())}}, {opened.isEmpty() ? name : opened}}, {name});
    }

private:
    template<class Writer, class Set>
    void writeMesh(const vtkNew<Writer>& writer, const char* name, Set set) const
    {
        writer->SetFileName(qPrintable(m_folder->path(name)));
        writer->SetInputData(mesh());
        set(*writer);
        writer->Write();
    }

    void write(const MadeData& data) const
    {
        for (auto file = data.files.begin(); file != data.files.end(); ++file)
            m_folder->write(file.key(), file->content);
    }

    void replace(const QString& file, const QByteArray& content) const
    {
        content.isNull() ? QFile::remove(m_folder->path(file))
                         : m_folder->write(file, content).isEmpty();
    }

    /// Damages all of the files in each of the ways.
    void checkDamages(const MadeData& made, const QStringList& damaged) const
    {
        write(made);
        const Shown sound(*m_folder, made.opened);
        QVERIFY2(sound.error.isEmpty(), qPrintable(sound.error));
        for (const Damage& damage : damages()) {
            for (const QString& file : damaged)
                replace(file, damage.apply(made.files[file]));
            const QString problem = Shown(*m_folder, made.opened).problemAgainst(sound, damaged);
            if (!problem.isEmpty())
                QTest::qFail(qPrintable(damage.name + QStringLiteral(": ") + problem), __FILE__,
                             __LINE__);
        }
        write(made);
    }

    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadDamaged)
#include "tst_read_damaged.moc"
