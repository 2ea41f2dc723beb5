// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

#include <QEventLoop>
#include <QSignalSpy>

#include <vtkCellType.h>
#include <vtkDoubleArray.h>
#include <vtkExodusIIWriter.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkUnstructuredGrid.h>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

/// The header of a classic netCDF file with one variable of eight doubles from byte 80.
static QByteArray netcdf()
{
    const auto number = [](qint32 value) {
        const qint32 swapped = qToBigEndian(value);
        return QByteArray(reinterpret_cast<const char*>(&swapped), 4);
    };
    QByteArray file("CDF\1");
    file += number(0); // records
    file += number(10) + number(1) + number(1) + QByteArray("n\0\0\0", 4) + number(8);
    file += number(0) + number(0); // attributes
    file += number(11) + number(1) + number(1) + QByteArray("v\0\0\0", 4) + number(1) + number(0);
    file += number(0) + number(0) + number(6) + number(64) + number(80);
    return file;
}

/// A tetrahedron with the values 5 to 8 of T at its corners.
static void writeExodus(const QString& path)
{
    vtkNew<vtkUnstructuredGrid> grid;
    vtkNew<vtkPoints> points;
    vtkNew<vtkDoubleArray> values;
    values->SetName("T");
    for (int i = 0; i < 4; ++i) {
        points->InsertNextPoint(i == 1, i == 2, i == 3);
        values->InsertNextValue(5 + i);
    }
    grid->SetPoints(points);
    const vtkIdType corners[] = {0, 1, 2, 3};
    grid->InsertNextCell(VTK_TETRA, 4, corners);
    grid->GetPointData()->AddArray(values);
    vtkNew<vtkExodusIIWriter> writer;
    writer->SetInputData(grid);
    writer->SetFileName(qPrintable(path));
    writer->Write();
}

static ReadRequest cavity()
{
    ReadRequest request;
    request.files = QStringList {DataFolder::sample("cavity_transient/case.foam")};
    return request;
}

static ReadResult waitFor(DataReader& reader)
{
    QSignalSpy spy(&reader, &DataReader::finished);
    if (!spy.wait(60'000))
        qFatal("the reader does not end");
    QTest::qWait(20);
    if (spy.count() != 1)
        qFatal("finished came %d times", spy.count());
    return spy[0][0].value<ReadResult>();
}

class TestReadFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void badFiles_data()
    {
        const Rows<QString, QByteArray, QString> row;
        const QByteArray claim = "<VTKFile type=\"ImageData\"><ImageData WholeExtent=\"0 99999 0 "
                                 "99999 0 99999\" Origin=\"0 0 0\" Spacing=\"1 1 1\"><Piece "
                                 "Extent=\"0 99999 0 99999 0 99999\"><PointData>";
        const QByteArray end = "</PointData></Piece></ImageData></VTKFile>";
        row("empty", "a.vtu", {}, "it is empty");
        row("unknown ending", "a.docx", "x", "\"docx\" are not known");
        row("a mesh like a table", "a.msh",
            "$MeshFormat\n2.2 0 8\n$Nodes\n3\n1 0 0 0\n2 1 0 0\n3 0 1 0\n$EndNodes\n",
            "\"msh\" are not known");
        row("no ending", "a", "x", "are not known");
        row("not XML", "a.vtu", "hello", "no VTK XML file");
        row("other XML", "a.vtu", "<html></html>", "no VTK XML file");
        row("collection as grid", "a.vtu", "<VTKFile type=\"Collection\"/>", "no VTK XML file");
        row("XML ends early", "a.vti", claim.left(80), "a.vti");
        row("claims too many values", "a.vti",
            claim + "<DataArray type=\"Float64\" Name=\"p\" format=\"ascii\">1</DataArray>" + end,
            "takes at least 1000000000000000 bytes, of which");
        row("claims too many corners", "a.vtu",
            "<VTKFile type=\"UnstructuredGrid\"><UnstructuredGrid><Piece NumberOfPoints=\"2\" "
            "NumberOfCells=\"1000000000007\"/></UnstructuredGrid></VTKFile>",
            "takes at least 1000000000013 bytes, of which 137 are there");
        row("pieces with a gap, one twice", "a.vti",
            "<VTKFile type=\"ImageData\"><ImageData WholeExtent=\"0 9 0 0 0 0\"><Piece Extent=\"0 "
            "1 0 0 0 0\"/><Piece Extent=\"4 9 0 0 0 0\"/><Piece Extent=\"4 9 0 0 0 "
            "0\"/></ImageData></VTKFile>",
            "do not fill its grid: 2 points lack");
        row("polygon of two points", "a.vtk",
            "# vtk DataFile Version 3.0\nx\nASCII\nDATASET POLYDATA\nPOINTS 3 float\n0 0 0 1 0 0 "
            "0 1 0\nPOLYGONS 2 7\n3 0 1 2\n2 0 1\n",
            "has too few points");
        row("claims too many points", "a.vti", claim + end, "memory");
        row("array without a name", "a.vti",
            QByteArray("<VTKFile type=\"ImageData\"><ImageData WholeExtent=\"0 1 0 0 0 0\"><Piece "
                       "Extent=\"0 1 0 0 0 0\"><PointData><DataArray type=\"Float32\" "
                       "format=\"ascii\">1 2</DataArray>")
                + end,
            "it, or a file that it names, is cut off or damaged");
        row("values after the XML end early", "a.vti",
            QByteArray("<VTKFile type=\"ImageData\" byte_order=\"LittleEndian\" "
                       "header_type=\"UInt64\"><ImageData WholeExtent=\"0 3 0 0 0 0\"><Piece "
                       "Extent=\"0 3 0 0 0 0\"><PointData><DataArray type=\"Float64\" Name=\"p\" "
                       "format=\"appended\" offset=\"0\"/></PointData></Piece></ImageData>"
                       "<AppendedData encoding=\"raw\">_")
                + QByteArray("\x20\0\0\0\0\0\0\0", 8) + QByteArray(20, '\1'),
            "a.vti could not be read: it is cut off");
        row("legacy without the first line", "a.vtk", "DATASET POLYDATA", "# vtk DataFile");
        row("UTF-16", "a.vtk", QByteArray("\xff\xfe#\0 \0v\0t\0k\0", 12), "# vtk DataFile");
        row("legacy without geometry", "a.vtk", legacy("POINT_DATA 1\nSCALARS a float\n"),
            "no geometry");
        row("legacy ends in the points", "a.vtk",
            legacy("DATASET POLYDATA\nPOINTS 9 float\n0 0 0 1 1"),
            "cut off: 80 of at least 123 bytes are there");
        row("legacy without points", "a.vtk", legacy("DATASET POLYDATA\nPOINTS 0 float\n"),
            "no zones with points");
        row("legacy table", "a.vtk",
            legacy("DATASET TABLE\nROW_DATA 1\nFIELD f 1\np 1 1 float\n1\n"),
            "no zones with points");
        row("corner that does not exist", "a.vtk",
            legacy("DATASET POLYDATA\nPOINTS 2 float\n0 0 0 1 1 1\n"
                   "POLYGONS 1 4\n3 0 1 2\n"),
            "points do not exist");
        row("negative corner", "a.vtk",
            legacy("DATASET POLYDATA\nPOINTS 2 float\n0 0 0 1 1 1\n"
                   "LINES 1 3\n2 0 -1\n"),
            "points do not exist");
        const QByteArray grid =
            legacy("DATASET UNSTRUCTURED_GRID\nPOINTS 4 float\n0 0 0 1 0 0 0 1 0 0 0 1\n");
        row("tetrahedron of three corners", "a.vtk",
            grid + "CELLS 1 4\n3 0 1 2\nCELL_TYPES 1\n10\n", "unknown kind");
        row("unknown cell", "a.vtk", grid + "CELLS 1 4\n3 0 1 2\nCELL_TYPES 1\n99\n",
            "unknown kind");
        row("polyhedron with a face outside", "a.vtk",
            grid + "CELLS 1 14\n13 3 3 0 1 2 3 0 1 3 3 1 2 9\nCELL_TYPES 1\n42\n",
            "points do not exist");
        row("grid with too few points", "a.vtk",
            legacy("DATASET STRUCTURED_GRID\nDIMENSIONS 3 1 1\nPOINTS 2 float\n0 1 2 3 4 5\n"),
            "coordinates are missing");
        row("axis with too few coordinates", "a.vtk",
            legacy("DATASET RECTILINEAR_GRID\nDIMENSIONS 3 1 1\nX_COORDINATES 2 float\n0 1\n"
                   "Y_COORDINATES 1 float\n0\nZ_COORDINATES 1 float\n0\n"),
            "coordinates are missing");
        row("STL of too many triangles", "a.stl", QByteArray(80, ' ') + "\1\2\3\4",
            "cut off: 84 of 3365299334 bytes are there");
        row("STL without an end", "a.stl", "solid a\nfacet normal 0 0 1\nouter loop\n",
            "no \"endsolid\"");
        row("STL without numbers", "a.stl",
            "solid\nfacet normal 0 0 1\nouter loop\nvertex 0 x 0\nendsolid\n",
            "a.stl could not be read: line 4 cannot be read");
        row("OBJ without a coordinate", "a.obj", "v 0 0 0\nv 1 0\nv 0 1 0\nf 1 2 3\n",
            "line 2 has no three coordinates: \"v 1 0\"");
        row("OBJ with a face of no points", "a.obj", "v 0 0 0\nf 1 x 3\nf 1 1 1\n",
            "line 2: \"x\" names no point");
        row("OBJ with a face of later points", "a.obj", "v 0 0 0\n\nf 1 1 3\nf 1 1 2\n",
            "line 3 names point 3, which is not there");
        row("OBJ with a face of earlier points", "a.obj", "v 0 0 0\nf 1 1 -2\n",
            "line 2 names point -2, which is not there");
        row("no OBJ", "a.obj", "x y\n", "line 1 is none of an OBJ file: \"x y\"");
        row("PLY without a coordinate", "a.ply",
            "ply\nformat ascii 1.0\nelement vertex 1\nproperty float x\nproperty float y\n"
            "end_header\n0 0\n",
            "its points have no coordinate \"z\"");
        row("PLY with faces first", "a.ply",
            "ply\nformat ascii 1.0\nelement face 0\nproperty list uchar int vertex_index\n"
            "element vertex 1\nproperty float x\nproperty float y\nproperty float z\n"
            "end_header\n0 0 0\n",
            "its faces come before its points");
        row("PLY of too many points", "a.ply",
            "ply\nformat ascii 1.0\nelement vertex 1000000000\nproperty float x\nproperty float y\n"
            "property float z\nend_header\n1\n",
            "cut off after 111 bytes");
        row("series without files", "a.vtu.series", "{\"files\": []}", "lists files");
        row("series without a time", "a.vtu.series", "{\"files\": [{\"name\": \"a.vtu\"}]}",
            "no time");
        row("series that is cut off", "a.vtu.series", "{\"files\": [", "byte 11: ");
        row("collection of nothing", "a.pvd", collection({}), "lists files");
        row("collection with a fault", "a.pvd", "<VTKFile>\n<Collection>\n<DataSet></VTKFile>",
            "line 3");
        row("collection with a bad time", "a.pvd",
            collection("<DataSet timestep='soon' file='b.vtp'/>"), "\"soon\"");
        row("collection of a file without a name", "a.pvd", collection("\n<DataSet timestep='1'/>"),
            "line 2: the entry names no file");
        row("collection of missing files", "a.pvd", collection("<DataSet file='b.vtp'/>"),
            "b.vtp could not be read: there is no such file");
        row("collection that leads elsewhere", "a.pvd",
            collection("<DataSet file='../../../../../etc/passwd'/>"),
            "/etc/passwd could not be read: ");
        row("tree of missing files", "a.vtm",
            "<VTKFile type=\"vtkMultiBlockDataSet\" version=\"1.0\">"
            "<vtkMultiBlockDataSet><DataSet index=\"0\" file=\"b.vtp\"/>"
            "</vtkMultiBlockDataSet></VTKFile>",
            "b.vtp could not be read: there is no such file");
        row("not CGNS", "a.cgns", QByteArray(5000, 'x'), "a.cgns");
        row("not EnSight", "a.case", "x", "no EnSight case file that names a geometry");
        row("EnSight without files", "a.case",
            "FORMAT\ntype: ensight gold\nGEOMETRY\nmodel: \"b c.geo\"\n",
            "b c.geo could not be read: there is no such file");
        row("netCDF that is cut off", "a.exo", netcdf() + QByteArray(40, '\1'),
            "cut off: 120 of 144 bytes");
        row("netCDF with half a header", "a.exo", netcdf().left(50), "its header is cut off");
        row("netCDF that is not Exodus", "a.exo", netcdf() + QByteArray(64, '\1'),
            "a.exo could not be read: ");
        row("marker without a case", "a.foam", {}, "a.foam");
        row("Plot3D that would fill the disk", "a.xyz",
            "1000000 1000000 3" + QByteArray(" 1000000000*0").repeated(9000),
            "9000000000003 numbers");
        row("Plot3D with words", "a.xyz", "1 2 3 D", "no number");
    }

    void badFiles()
    {
        const auto [file, content, reason] = currentRow<QString, QByteArray, QString>();
        const QString path = m_folder->write("in/" + file, content);
        const ReadResult result = read({path});
        QVERIFY(!result.data);
        QVERIFY(!result.cancelled);
        QVERIFY2(result.error.contains(reason), qPrintable(result.error));
        QVERIFY2(result.error.contains(" could not be read: "), qPrintable(result.error));
        QVERIFY2(!result.error.contains('\n') && !result.error.contains("(0x"),
                 qPrintable(result.error));
        QCOMPARE(m_folder->leftovers(), QStringList());
        QCOMPARE(QDir(m_folder->path("in")).entryList(QDir::Files), QStringList {file});
    }

    void cutSamples_data()
    {
        const Rows<QString, QString> row;
        row("Exodus", "exodus_biplane/biplane_rms_pressure_bs.exo",
            "exodus_biplane/biplane_rms_pressure_bs.exo");
        row("EnSight geometry", "naca_transient/naca.bin.case", "naca_transient/naca.gold.bin.geo");
        row("OpenFOAM mesh", "cavity_transient/case.foam",
            "cavity_transient/constant/polyMesh/points");
    }

    void cutSamples()
    {
        const auto [opened, cut] = currentRow<QString, QString>();
        m_folder->copySample(opened.section('/', 0, 0));
        QFile file(m_folder->path(cut));
        QVERIFY(file.resize(file.size() / 2));
        const ReadResult result = read({m_folder->path(opened)});
        QVERIFY(!result.data);
        const QString name = QFileInfo(opened).fileName();
        QVERIFY2(result.error.contains(name) || result.error.contains(QFileInfo(cut).fileName()),
                 qPrintable(result.error));
        if (name == "naca.bin.case")
            QVERIFY2(result.error.contains("cut off: 151566 of at least "),
                     qPrintable(result.error));
        QCOMPARE(m_folder->leftovers(), QStringList());
    }

    void cutClassicExodus_data()
    {
        const Rows<int> row;
        for (const int missing : {0, 8, 200, 1500, 2000})
            row(QString::asprintf("%d bytes", missing), missing);
    }

    void cutClassicExodus()
    {
        const auto [missing] = currentRow<int>();
        QFile file(m_folder->path("a.exo"));
        writeExodus(file.fileName());
        QVERIFY(file.size() > missing + 100);
        QVERIFY(file.resize(file.size() - missing));
        const ReadResult result = read({file.fileName()});
        QCOMPARE(result.data != nullptr, missing == 0);
        if (result.data)
            QCOMPARE(values(*result.data, 1, "T"), (QVector<double> {5, 6, 7, 8}));
        else
            QVERIFY2(result.error.contains("cut off"), qPrintable(result.error));
    }

    void filesThatCannotBeOpened()
    {
        const ReadResult missing = read({m_folder->path("none.vtu")});
        QCOMPARE(missing.error,
                 m_folder->path("none.vtu") + " could not be read: there is no such file");
        QVERIFY(read({m_folder->path("tmp")}).error.endsWith("a folder that holds no data files"));
        QVERIFY(read({DataFolder::sample("two_spheres")})
                    .error.endsWith("open some of them: dualSphereAnimation4.pvd, "
                                    "dualSphereAnimation4NoPart.pvd"));
        const QString pipe = m_folder->path("pipe.vtu");
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        QVERIFY(read({pipe}).error.endsWith(": it is not a regular file"));
        QVERIFY(!read({}).error.isEmpty());
        const ReadResult second =
            read({DataFolder::sample("combustor_three_blocks/multicomb_0.vts"), pipe});
        QVERIFY(!second.data && second.error.startsWith(pipe));
        QCOMPARE(m_folder->leftovers(), QStringList());
    }

    void fileWithoutPermission()
    {
        if (geteuid() == 0)
            return skip("root may read everything", __LINE__);
        const QString path = m_folder->write("a.vtu", "x");
        QVERIFY(QFile::setPermissions(path, {}));
        QVERIFY(read({path}).error.contains("ermission"));
    }

    void endsWhileWhatWasReadIsLoaded()
    {
        DataReader reader;
        connect(&reader, &DataReader::progress, &reader, [&](int, const QString& what) {
            if (what.startsWith("Loading"))
                reader.cancel();
        });
        reader.start(cavity());
        const ReadResult cancelled = waitFor(reader);
        QVERIFY(cancelled.cancelled && !cancelled.data && cancelled.error.isEmpty());
    }

    void deathOfTheReader()
    {
        DataReader reader;
        const ReadRequest request = cavity();
        reader.start(request);
        QVERIFY(reader.isRunning() && reader.processId() > 0);
        QCOMPARE(kill(static_cast<pid_t>(reader.processId()), SIGKILL), 0);
        const ReadResult result = waitFor(reader);
        QVERIFY(!result.data && !reader.isRunning());
        QCOMPARE(result.error,
                 request.files[0]
                     + " could not be read: the reader was killed; perhaps the machine ran out of "
                       "memory");
        QCOMPARE(m_folder->leftovers(), QStringList());

        reader.start(request);
        QVERIFY(waitFor(reader).data);
    }

    void readerThatHangs()
    {
        DataReader reader;
        ReadRequest request = cavity();
        request.limits.patienceMilliseconds = 300;
        reader.start(request);
        QCOMPARE(kill(static_cast<pid_t>(reader.processId()), SIGSTOP), 0);
        const ReadResult result = waitFor(reader);
        QVERIFY(!result.data);
        QVERIFY2(result.error.contains("no progress"), qPrintable(result.error));
        QCOMPARE(m_folder->leftovers(), QStringList());
    }

    void memoryLimit()
    {
        ReadRequest request;
        request.files = QStringList {
            m_folder->write("a.vtk", legacy("DATASET POLYDATA\nPOINTS 300000000 double\n0 0 0\n"))};
        request.limits.memoryBytes = std::int64_t(3) << 30;
        const ReadResult result = DataReader::read(request);
        QVERIFY(!result.data);
        QVERIFY2(result.error.contains("cut off: "), qPrintable(result.error));
    }

    void cancelAndProgress()
    {
        DataReader reader;
        const ReadRequest request = cavity();
        reader.start(request);
        reader.cancel();
        const ReadResult cancelled = waitFor(reader);
        QVERIFY(cancelled.cancelled && !cancelled.data && cancelled.error.isEmpty());
        QCOMPARE(m_folder->leftovers(), QStringList());

        QSignalSpy progress(&reader, &DataReader::progress);
        reader.start(request);
        reader.start({});
        QVERIFY(waitFor(reader).data);
        QVERIFY(progress.count() > 0);
        for (const QList<QVariant>& step : progress) {
            QVERIFY(step[0].toInt() >= -1 && step[0].toInt() <= 100);
            QVERIFY2(step[1].toString().contains("case.foam"), qPrintable(step[1].toString()));
        }
        reader.cancel();
    }

    void readerThatIsDeletedEndsItsProcess()
    {
        auto reader = std::make_unique<DataReader>();
        const ReadRequest request = cavity();
        reader->start(request);
        const auto process = static_cast<pid_t>(reader->processId());
        reader.reset();
        QCOMPARE(kill(process, 0), -1);
        QCOMPARE(m_folder->leftovers(), QStringList());
    }

    void programThatSpeaksRubbish_data()
    {
        const Rows<QByteArray, QString> row;
        row("text", "echo hello", "cannot be understood");
        row("endless line", "exec tr '\\0' x < /dev/zero", "cannot be understood");
        row("no index", "exit 0", "cannot be understood");
        row("rubbish as index", "echo '{}' > \"$1/index.json\"", "cannot be understood");
        row("exit code", "exit 7", "exit code 7");
        row("silent but at work", "for i in 1 2 3 4; do sleep 0.5; cat /dev/null; done; exit 7",
            "exit code 7");
        row("in a loop", "while :; do :; done", "no progress for 1 second");
        row("last words", "echo first >&2; echo the disk is full >&2; exit 7",
            "(the disk is full)");
    }

    void programThatSpeaksRubbish()
    {
        const auto [script, reason] = currentRow<QByteArray, QString>();
        const QString program = m_folder->write("reader.sh", "#!/bin/sh\n" + script + '\n');
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        qputenv("CORVALA_READ", QFile::encodeName(program));
        ReadRequest request;
        request.files = QStringList {"/data/a.vtu"};
        request.limits.patienceMilliseconds = 1500;
        const ReadResult result = DataReader::read(request);
        QVERIFY(!result.data);
        QVERIFY2(result.error.startsWith("/data/a.vtu could not be read: the reader "),
                 qPrintable(result.error));
        QVERIFY2(result.error.contains(reason), qPrintable(result.error));
        QCOMPARE(m_folder->leftovers(), QStringList());
    }

    void missingProgram()
    {
        qputenv("CORVALA_READ", "/nowhere/corvala-read");
        QVERIFY(read({"/data/a.vtu"}).error.contains("corvala-read is missing"));
    }

    void foldersOfKilledProgramsAreRemoved()
    {
        const QString sample = DataFolder::sample("combustor_three_blocks/multicomb_0.vts");
        const ReadResult open = read({sample});
        QVERIFY(open.data);
        const QStringList inUse = m_folder->leftovers();
        m_folder->write("tmp/corvala-aaaaaa/.corvala-read.lock", {});
        m_folder->write("tmp/corvala-aaaaaa/helpers/0/plain0", "1");
        m_folder->write("tmp/corvala-bbbbbb/notes.txt", "of somebody else");
        m_folder->write("tmp/kept/file", "1");
        QVERIFY(QFile::link(m_folder->path("tmp/kept"),
                            m_folder->path("tmp/corvala-aaaaaa/helpers/link")));
        QVERIFY(read({sample}).data);
        QStringList wanted = inUse + QStringList {"corvala-bbbbbb", "kept"};
        wanted.sort(Qt::CaseInsensitive);
        QCOMPARE(m_folder->leftovers(), wanted);
        QVERIFY(QFile::exists(m_folder->path("tmp/kept/file")));
        QVERIFY(open.data->geometry(1));
    }

    void dataOutlivesTheReader()
    {
        ReadResult result = read({DataFolder::sample("combustor_three_blocks/multicomb_0.vts")});
        QVERIFY(result.data);
        QCOMPARE(m_folder->leftovers().size(), 1);
        const QFileInfo folder(m_folder->path("tmp/" + m_folder->leftovers()[0]));
        QCOMPARE(folder.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
        QVERIFY(result.data->geometry(1));
        result.data.reset();
        QCOMPARE(m_folder->leftovers(), QStringList());
    }

private:
    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadFailures)
#include "tst_read_failures.moc"
