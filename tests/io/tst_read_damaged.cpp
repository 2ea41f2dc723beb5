// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/ensight_files.h"
#include "tests/support/rows.h"

#include <vtkCellData.h>
#include <vtkCellType.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
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
                     form.isOneFile ? QStringList {"p_", "v_", "dust"}
                                    : QStringList {"p_1", "v_1", "places1", "dust0"});
    }

    void damagedFiles_data()
    {
        const Rows<QString, MadeFile (*)(const QByteArray&)> row;
        row("XML, text", "text.vtu", textFile);
        row("XML, base64", "base64.vtu", textFile);
        row("XML, appended", "appended.vtu", plainFile);
        row("legacy, binary", "binary.vtk", plainFile);
        row("CGNS", "cgns_hexa/cgnslib_vers-4400.cgns", plainFile);
        row("Plot3D", "combustor_plot3d/multi-bin.xyz", plainFile);
    }

    void damagedFiles()
    {
        const auto [name, made] = currentRow<QString, MadeFile (*)(const QByteArray&)>();
        writeMesh(vtkNew<vtkXMLUnstructuredGridWriter>(), "text.vtu",
                  [](auto& file) { file.SetDataModeToAscii(); });
        writeMesh(vtkNew<vtkXMLUnstructuredGridWriter>(), "base64.vtu",
                  [](auto& file) { file.SetDataModeToBinary(); });
        writeMesh(vtkNew<vtkXMLUnstructuredGridWriter>(), "appended.vtu",
                  [](auto& file) { file.EncodeAppendedDataOff(); });
        writeMesh(vtkNew<vtkUnstructuredGridWriter>(), "binary.vtk",
                  [](auto& file) { file.SetFileTypeToBinary(); });
        if (name.contains('/'))
            m_folder->copySample(name.section('/', 0, 0));
        QFile file(m_folder->path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        checkDamages({{{name, made(file.readAll())}}, {name}}, {name});
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

    /// Damages all of the files in each of the ways.
    void checkDamages(const MadeData& made, const QStringList& damaged) const
    {
        write(made);
        const Shown sound(*m_folder, made.opened);
        QVERIFY2(sound.error.isEmpty(), qPrintable(sound.error));
        for (const Damage& damage : damages()) {
            for (const QString& file : damaged)
                m_folder->write(file, damage.apply(made.files[file]));
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
