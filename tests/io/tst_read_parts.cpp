// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/vtk_text.h"
#include "tests/support/rows.h"

#include <vtkDataSetAttributes.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

/// A surface whose values of p begin with this number.
static QByteArray piece(int first, const QByteArray& more = {})
{
    QByteArray numbers;
    for (int i = 0; i < 4; ++i)
        numbers += QByteArray::number(first + i) + ' ';
    return polyData(array("type=\"Float64\" Name=\"p\"", numbers) + more);
}

/// A square of four cells of this width from a place, with the values q in the cells.
static QByteArray square(double from, double width)
{
    const QByteArray edge = QByteArray::number(width);
    const QByteArray start = QByteArray::number(from);
    return xml("ImageData",
               "WholeExtent=\"0 2 0 2 0 0\" Origin=\"" + start + ' ' + start + " 0\" Spacing=\""
                   + edge + ' ' + edge + " 1\"><Piece Extent=\"0 2 0 2 0 0\"><CellData>"
                   + array("type=\"Float64\" Name=\"p\"", "1 2 3 4") + "</CellData></Piece>");
}

static QByteArray parallel(const QByteArray& pieces)
{
    return xml("PPolyData",
               "GhostLevel=\"0\"><PPointData><PDataArray type=\"Float64\" "
               "Name=\"p\"/></PPointData><PPoints><PDataArray type=\"Float32\" "
               "NumberOfComponents=\"3\"/></PPoints>"
                   + pieces);
}

/// "name@time: first value of p (hidden cells)" of each zone.
static QString shown(const DataSet& data)
{
    QStringList zones;
    for (std::int64_t number = 1; number <= data.zoneCount(); ++number) {
        const ZoneInfo& zone = data.zone(number);
        QString text = QString::fromStdString(zone.name);
        if (zone.strand > 0)
            text += QStringLiteral("@%1s%2").arg(zone.time).arg(zone.strand);
        const QVector<double> p = values(data, number, "p");
        zones << text + (p.isEmpty() ? QString() : QStringLiteral("=%1").arg(p[0]));
        const vtkSmartPointer<vtkDataSet> held = data.geometry(number);
        vtkUnsignedCharArray* const ghosts = held->GetCellGhostArray();
        const int hidden = ghosts ? static_cast<int>(std::count(ghosts->Begin(), ghosts->End(),
                                                                vtkDataSetAttributes::HIDDENCELL))
                                  : 0;
        if (hidden > 0)
            zones.last() += QStringLiteral(" (%1 hidden)").arg(hidden);
    }
    return zones.join(", ");
}

class TestReadParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<DataFolder>();
        for (int i = 1; i <= 3; ++i)
            m_folder->write(QString::asprintf("p%d.vtp", i), piece(10 * i));
        m_folder->write("cut.vtp", piece(5).chopped(60));
        m_folder->write("damaged.vtp", piece(5).replace("0 1 2 0 2 3", "0 1 2 0 2 9"));
        m_folder->write("l.vtk",
                        legacy("DATASET POLYDATA\nPOINTS 1 float\n0 0 0\nPOINT_DATA 1\n"
                               "SCALARS p float\nLOOKUP_TABLE default\n7\n"));
        m_folder->write("one.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
        m_folder->write("short.vtp", polyData(array("type=\"Float64\" Name=\"p\"", "1 2")));
        m_folder->write("words.vtp", "hello");
        m_folder->write("coarse.vti", square(0, 1));
        m_folder->write("fine.vti", square(1, 0.5));
    }

    void opens_data()
    {
        const Rows<QString, QByteArray, QString, QString> row;
        const QByteArray steps = "<DataSet timestep='1' file='p1.vtp'/><DataSet timestep='2' "
                                 "file='p2.vtp'/>";
        row("collection, a time is missing", "a.pvd",
            collection(steps + "<DataSet timestep='3' file='none.vtp'/>"), "a@1s1=10, a@2s1=20",
            "none.vtp was left out at time 3: there is no such file.");
        row("collection, a time is cut off", "a.pvd",
            collection(steps + "<DataSet timestep='1.5' file='cut.vtp'/>"), "a@1s1=10, a@2s1=20",
            "cut.vtp was left out at time 1.5: it is cut off after * bytes: *");
        row("collection, a part is missing", "a.pvd",
            collection("<DataSet part='0' file='none.vtp'/><DataSet part='1' file='p2.vtp'/>"),
            "Piece 2=20", "none.vtp was left out: there is no such file.");
        row("collection that is being written", "a.pvd",
            collection(steps + "<DataSet timestep='3' fi").chopped(24), "a@1s1=10, a@2s1=20",
            "a.pvd has no end; *");
        row("collection of other formats", "a.pvd",
            collection("<DataSet timestep='1' file='l.vtk'/>" + steps.mid(steps.indexOf('>') + 1)),
            "a@1s1=7, a@2s1=20", {});
        const QByteArray three = "<DataSet index='0' file='p1.vtp'/><DataSet index='1' "
                                 "file='none.vtp'/><DataSet index='2' file='p3.vtp'/>";
        row("tree, a file is missing", "a.vtm", tree(three), "Block 1=10, Block 3=30",
            "none.vtp was left out: there is no such file.");
        row("tree, a block is missing", "a.vtm",
            tree("<Block index='0' name='b'><DataSet index='0' file='none.vtp'/></Block>" + three),
            "Block 1=10, Block 3=30", "none.vtp was left out: *|none.vtp was left out: *");
        row("tree, a file is damaged", "a.vtm", tree("<DataSet file='damaged.vtp'/>" + three),
            "Block 1=10, Block 3=30",
            "a.vtm: the zone \"Block 1\" was left out: a cell is *|none.vtp was left out: *");
        row("tree with a large index", "a.vtm",
            tree("<DataSet index='1000000006' file='p1.vtp'/><DataSet index='5' file='l.vtk'/>"),
            "Block 6=7, Block 1000000007=10", {});
        row("tree that is cut off", "a.vtm", tree(three).chopped(50), "Block 1=10",
            "a.vtm has no end; *|none.vtp was left out: *");
        row("tree in itself", "a.vtm", tree("<DataSet file='a.vtm'/><DataSet file='p2.vtp'/>"),
            "Block 2=20", "a.vtm was left out: it names itself as a part.");
        row("parallel in itself", "a.pvtp",
            parallel("<Piece Source='a.pvtp'/><Piece Source='p2.vtp'/>"), "Piece 2=20",
            "a.pvtp was left out: it names itself as a part.");
        row("tree with a file that is no data", "a.vtm",
            tree("<DataSet file='words.vtp'/><DataSet file='p2.vtp'/>"), "Block 2=20",
            "words.vtp was left out: it is no VTK XML file of a kind that is known.");
        row("tree of old files", "a.vtm",
            tree("<DataSet group='1' dataset='0' file='p1.vtp'/><DataSet group='0' dataset='1' "
                 "file='p2.vtp'/>"),
            "Block 1/Block 2=20, Block 2/Block 1=10", {});
        row("parallel, sound", "a.pvtp",
            parallel("<Piece Source='p1.vtp'/><Piece Source='p2.vtp'/>"), "a=10", {});
        row("parallel, a piece is missing", "a.pvtp",
            parallel("<Piece Source='none.vtp'/><Piece Source='p1.vtp'/><Piece Source='p2.vtp'/>"),
            "Piece 2=10, Piece 3=20", "none.vtp was left out: there is no such file.");
        row("parallel, a piece is damaged", "a.pvtp",
            parallel("<Piece Source='p1.vtp'/><Piece Source='damaged.vtp'/>"), "Piece 1=10",
            "a.pvtp: the zone \"Piece 2\" was left out: a cell is *");
        row("partitions", "a.vtpc",
            xml("vtkPartitionedDataSetCollection",
                "><Partitions index='0' name='wing'><DataSet index='0' file='p1.vtp'/>"
                "<DataSet index='1' file='p2.vtp'/></Partitions><Partitions index='1' "
                "name='tail'><DataSet index='0' file='p3.vtp'/></Partitions>"),
            "wing/Piece 1=10, wing/Piece 2=20, tail=30", {});
        row("refined levels", "a.vthb",
            xml("vtkOverlappingAMR",
                "><Block level='0'><DataSet index='0' file='coarse.vti'/></Block><Block level='1'>"
                "<DataSet index='0' file='fine.vti'/></Block>"),
            "Level 0/Block 1=1 (1 hidden), Level 1/Block 1=1", {});
        row("series", "a.vtp.series",
            "{ \"file-series-version\": \"1.0\", \"files\": [{\"name\": \"p2.vtp\", "
            "\"time\": 2.5}, {\"name\": \"p1.vtp\", \"time\": 1}, {\"name\": "
            "\"none.vtp\", \"time\": 4}]}",
            "a@1s1=10, a@2.5s1=20", "none.vtp was left out at time 4: *");
        row("unknown ending, XML", "a.data", piece(60), "a=60", {});
        row("unknown ending, legacy", "a.001",
            legacy("DATASET STRUCTURED_POINTS\nDIMENSIONS 1 1 1\nORIGIN 0 0 0\nSPACING 1 1 1\n"),
            "a", {});
        row("STL", "a.stl",
            "solid b\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\n"
            "endloop\nendfacet\nendsolid b\n",
            "a", {});
        row("PLY of an unknown ending", "a.1",
            "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\n"
            "property float z\nelement face 1\nproperty list uchar int vertex_indices\n"
            "end_header\n0 0 0\n1 0 0\n0 1 0\n3 0 1 2",
            "a", {});
        row("STL in capitals", "a.stl",
            "SOLID\nFACET NORMAL 0 0 1\nOUTER LOOP\nVERTEX 0 0 0\nVERTEX 1 0 0\nVERTEX 0 1 0\n"
            "ENDLOOP\nENDFACET\nENDSOLID\n",
            "a", {});
        row("PLY with edges", "a.ply",
            "ply\nformat ascii 1.0\nelement vertex 2\nproperty float x\nproperty float y\n"
            "property float z\nelement edge 1\nproperty int vertex1\nproperty int vertex2\n"
            "end_header\n0 0 0\n1 0 0\n0 1\n",
            "a", "a.ply: what cannot be read of it was left out: its elements of the kind edge.");
        row("surface in a series", "a.stl.series",
            "{\"file-series-version\": \"1.0\", \"files\": [{\"name\": \"one.obj\", \"time\": 1},"
            " {\"name\": \"two.obj\", \"time\": 2}]}",
            "a@1s1", "two.obj was left out at time 2: there is no such file.");
        row("parallel, an array is damaged", "a.pvtp",
            parallel("<Piece Source='p1.vtp'/><Piece Source='short.vtp'/>"), "Piece 1=10, Piece 2",
            "short.vtp: the values of p were left out: *");
        const QByteArray part =
            xml("ImageData",
                "WholeExtent='0 9 0 0 0 0'><Piece Extent='2 3 0 0 0 0'><PointData>"
                    + array("type=\"Float64\" Name=\"p\"", "1 2") + "</PointData></Piece>");
        row("a piece of a grid", "a.vti", part, "a=1", {});
        row("text behind the XML", "a.vtp", piece(40) + QByteArray(5000, '\n') + "made by hand",
            "a=40", {});
        row("an array is damaged", "a.vtp",
            piece(50, array("type=\"Float64\" Name=\"short\"", "1 2")), "a=50",
            "a.vtp: the values of short were left out: *");
    }

    void opensLegacy_data()
    {
        const Rows<QByteArray, QVector<double>, QString> row;
        const QByteArray grid = "DATASET STRUCTURED_POINTS\nDIMENSIONS 3 1 1\nORIGIN 0 0 0\n"
                                "SPACING 1 1 1\nPOINT_DATA 3\n";
        const QByteArray p = "SCALARS p float\nLOOKUP_TABLE default\n";
        const double inf = std::numeric_limits<double>::infinity();
        const double nan = std::numeric_limits<double>::quiet_NaN();
        row("not finite", grid + p + "nan -Infinity 1.#INF\n", {nan, -inf, inf}, {});
        row("exponents", grid + p + "1.5D+2 -2d-1\n3e0\n", {150, -0.2f, 3}, {});
        row("numbers in the line of their keyword",
            "DATASET POLYDATA\nPOINTS 2 float 0 0 0\n1 0 0\nLINES 1 3 2\n0\n1\nPOINT_DATA 2\n" + p
                + "7 8\nVECTORS v float 1 2 3\n4 5 6\n",
            {7, 8}, {});
        row("a word at the end", grid + p + "1 2 3\nend of file\n", {1, 2, 3},
            "a.vtk: what cannot be read of it was left out: \"end\".");
        row("a word in between", grid + p + "1 2 3\nscalar q float\n4 5 6\n", {1, 2, 3},
            "a.vtk: what cannot be read of it was left out: \"scalar\".");
        row("ends in an array", grid + p + "1 2 3\nVECTORS v float\n1 2 3 4", {1, 2, 3},
            "a.vtk: the values of v were left out: it is cut off: 188 of at least * bytes *");
        row("ends in a field", grid + "FIELD f 2\np 1 3 double\n1 2 3\nq 1 3 double\n1", {1, 2, 3},
            "a.vtk: the values of q were left out: it is cut off: *");
        row("ends in a header", grid + "FIELD f 2\np 1 3 double\n1 2 3\nq 1 3 dou", {1, 2, 3},
            "a.vtk: what cannot be read of it was left out: *");
        row("a word in an array", grid + "FIELD f 2\nq 1 3 float\n1 two 3\np 1 3 float\n1 2 3\n",
            {1, 2, 3}, "a.vtk: the values of q were left out: \"two\" is no number.");
        row("more than announced", grid + "VECTORS v float\n1 2 3 4 5 6 7 8 9 10\n" + p + "1 2 3\n",
            {1, 2, 3}, "a.vtk: the values of v were left out: more follows than it should hold.");
        row("no number of an integer",
            grid + "SCALARS i int\nLOOKUP_TABLE default\n1 nan 3\n" + p + "1 2 3\n", {1, 2, 3},
            "a.vtk: the values of i were left out: *");
    }

    void opensLegacy()
    {
        const auto [content, p, note] = currentRow<QByteArray, QVector<double>, QString>();
        const ReadResult result = read({m_folder->write("a.vtk", legacy(content))});
        QVERIFY2(result.data, qPrintable(result.error));
        verifyValues(values(*result.data, 1, "p"), p);
        checkNotes(*result.data, note);
    }

    void opensSurfaces_data()
    {
        const Rows<QByteArray, QString, QVector<double>, QString> row;
        const QByteArray v = "v 0 0 0\nv 1 0 0\nv 2 1 0 # last\n";
        const double nan = std::numeric_limits<double>::quiet_NaN();
        row("points", v + "f 1 2 3\nf -3 -2 -1\n", "X", {0, 1, 2}, {});
        row("far away", "v 4512345.123 0 0\nv +1D1 1 0 1\nv 2 1 0 .5 .5 .5\nf 1 2 3", "X",
            {4512345.123, 10, 2}, {});
        row("old line ends, a long line", QByteArray(v + "f 1\\\n 2 3\n").replace('\n', '\r'), "X",
            {0, 1, 2}, {});
        row("points behind their face", "f 1 2 3\n" + v, "X", {0, 1, 2}, {});
        row("texture", v + "vt 5\nvt 6 1\nf 1/2 2/1 3/-1\n", "TCoords X", {6, 5, 6}, {});
        row("a point with two normals",
            v + "v 3 3 3\nvn 0 0 1\nvn 0 0 2\nf 1//1 2//1 3//1\nf 3//1 2//2 1//1\nf 2//2 3 1//1\n",
            "Normals Z", {1, 1, 1, nan, 2, nan}, {});
        row("normals that nobody names", v + "vn 0 0 4\nvn 0 0 5\nvn 0 0 6\nf 1 2 3\n", "Normals Z",
            {4, 5, 6}, {});
        row("groups", v + "p 1 2\ng a b\nl 1 2 3\ng c\nf 1 2 3\ng a b \nf 3 2 1\n", "GroupIds",
            {0, 0, 1, 2, 1}, "a.obj: names are numbered: GroupIds (1 a b, 2 c).");
        row("materials", v + "f 1 2 3\nusemtl a\nf 1 2 3\nusemtl b\nf 1 2 3\nusemtl a\nf 3 2 1\n",
            "MaterialIds", {0, 1, 2, 1}, "a.obj: names are numbered: MaterialIds (1 a, 2 b).");
        row("no texture", v + "f 1/1 2/2 3/3\n", "X", {0, 1, 2},
            "a.obj: the values of TCoords were left out: line 4 names number 3 of them, *");
        row("a damaged normal", v + "vn 0 0\nf 1//1 2//1 3//1\n", "X", {0, 1, 2},
            "a.obj: the values of Normals were left out: line 4: vn 0 0.");
        row("lines of nothing", v + "f 1 2\nf 1 2 3\ncurv 1 2\n", "X", {0, 1, 2},
            "a.obj: what cannot be read of it was left out: line 4: f 1 2, and 1 lines more.");
        row("cut in its last line", v + "f 1 2 3\nf 1 2 3/a", "X", {0, 1, 2},
            "a.obj: what cannot be read of it was left out: line 5: f 1 2 3?a.");
        const auto ply = [](const char* format, const char* ofPoints, const char* ofFaces) {
            return "ply\nformat " + QByteArray(format)
                + " 1.0\nelement vertex 3\nproperty double x\nproperty short y\nproperty char z\n"
                + ofPoints + "element face 1\nproperty list uchar int vertex_indices\n" + ofFaces
                + "end_header\n";
        };
        row("numbers of points in PLY",
            ply("ascii", "property uint16 hits\nproperty int8 side\n", "property uchar side\n")
                + "0 0 0 65535 1\n1 0 0 +2 2\n0 1 0 3 300\n3 0 1 2 4",
            "hits", {65535, 2, 3},
            "a.ply: the values of side were left out: \"300\" is no number.");
        row("numbers of faces in PLY",
            ply("ascii", "property list int int near\n", "property float heat\n")
                + "0 0 0 0\n1 0 0 1 7\n0 1 0 0\n3 0 1 2 nan",
            "heat", {nan}, "a.ply: the values of near were left out: they are lists.");
        const QByteArray zeros(11, '\0'); // a point
        row("big-endian numbers in PLY",
            ply("binary_big_endian", "property int heat\n", "") + zeros
                + QByteArray::fromHex("00000102") + zeros + QByteArray::fromHex("ffffffff") + zeros
                + QByteArray::fromHex("00010000"
                                      "03000000000000000100000002"),
            "heat", {258, -1, 65536}, {});
        const QByteArray colors = "property uchar red\nproperty uchar green\nproperty uchar blue\n";
        row("colors in PLY",
            ply("ascii", colors, "") + "0 0 0 1 2 3\n1 0 0 4 5 6\n0 1 0 7 8 9\n3 0 1 2\n",
            "RGB green", {2, 5, 8}, {});
        row("points of several textures in PLY",
            ply("ascii", "property float heat\n", "property list uchar float texcoord\n")
                    .replace("face 1", "face 2")
                + "0 0 0 1\n1 0 0 2\n0 1 0 3\n3 0 1 2 6 0 0 1 0 0 1\n3 2 1 0 6 0 1 1 0 5 5\n",
            "heat", {1, 2, 3, 1}, {});
    }

    void opensSurfaces()
    {
        const auto [content, variable, wanted, note] =
            currentRow<QByteArray, QString, QVector<double>, QString>();
        const char* const file = content.startsWith("ply") ? "a.ply" : "a.obj";
        const ReadResult result = read({m_folder->write(file, content)});
        QVERIFY2(result.data, qPrintable(result.error));
        verifyValues(values(*result.data, 1, variable), wanted);
        checkNotes(*result.data, note);
    }

    void opens()
    {
        const auto [file, content, zones, notes] =
            currentRow<QString, QByteArray, QString, QString>();
        const ReadResult result = read({m_folder->write(file, content)});
        QVERIFY2(result.data, qPrintable(result.error));
        QCOMPARE(shown(*result.data), zones);
        checkNotes(*result.data, notes);
    }

    /// Files that are opened together.
    void opensTogether_data()
    {
        const Rows<QStringList, QString> row;
        row("times in surfaces", {"s_1.vtp", "s_02.vtp"}, "s@0.5s1=10, s@1.5s1=20");
        row("times in trees", {"t1.vtm", "t2.vtm"},
            "Block 1@1.5s1=20, Block 1@3s1=10, Block 2@1.5s2=10, Block 2@3s2=20");
        row("times of trees in base64", {"t1.vtm", "t3.vtm"},
            "Block 1@1.5s1=20, Block 1@3s1=10, Block 2@1.5s2=10");
        row("times in legacy files", {"l1.vtk", "l2.vtk"}, "l@2s1=7, l@4s1=8");
        row("one of other names", {"s_1.vtp", "s_02.vtp", "p3.vtp"},
            "p3=30, s@0.5s1=10, s@1.5s1=20");
        row("other names", {"s_1.vtp", "t1.vtm"}, "s_1=10, t1/Block 1=20, t1/Block 2=10");
        row("equal times", {"s_1.vtp", "s_1.vtp"}, "s_1.vtp=10, s_1.vtp=10");
    }

    void opensTogether()
    {
        const auto [names, zones] = currentRow<QStringList, QString>();
        const auto field = [](const QByteArray& time) {
            return "<FieldData>"
                + array("type=\"Float64\" Name=\"TimeValue\" NumberOfTuples=\"1\"", time)
                + "</FieldData>";
        };
        m_folder->write("s_1.vtp", piece(10).replace("<Piece", field("0.5") + "<Piece"));
        m_folder->write("s_02.vtp", piece(20).replace("<Piece", field("1.5") + "<Piece"));
        m_folder->write("t1.vtm", tree("<DataSet file='s_02.vtp'/><DataSet file='s_1.vtp'/>"));
        m_folder->write("t2.vtm",
                        tree("<DataSet file='s_1.vtp'/><DataSet file='s_02.vtp'/>" + field("3")));
        const char bytes[] = "\x08\0\0\0\0\0\0\0\0\0\x08\x40"; // the number of bytes, and 3
        m_folder->write("t3.vtm",
                        tree("<DataSet file='s_1.vtp'/>"
                             + field("").replace("\"ascii\"", "'appended' offset='0'"))
                            .replace("</VTKFile>",
                                     "<AppendedData encoding=\"base64\">_"
                                         + QByteArray(bytes, 12).toBase64()
                                         + "</AppendedData></VTKFile>"));
        for (const char* const name : {"1", "2"})
            m_folder->write(QString("l%1.vtk").arg(name),
                            legacy("DATASET POLYDATA\nFIELD FieldData 1\nTIME 1 1 double\n"
                                   + QByteArray::number(2 * QByteArray(name).toInt())
                                   + "\nPOINTS 1 float\n0 0 0\nPOINT_DATA 1\nSCALARS p float\n"
                                     "LOOKUP_TABLE default\n"
                                   + QByteArray::number(6 + QByteArray(name).toInt()) + '\n'));
        QStringList files;
        for (const QString& name : names)
            files << m_folder->path(name);
        QCOMPARE(shown(*dataOf(files)), zones);
    }

    void numbersAreTimes()
    {
        ReadRequest request;
        for (const char* const name : {"p3.vtp", "p1.vtp", "p2.vtp"})
            request.files << m_folder->path(name);
        QCOMPARE(DataReader::read(request).offers.numberedFiles, std::int64_t(3));
        m_folder->write("p2.vtp", piece(5).chopped(60));
        request.choices.numberedTimes = true;
        const ReadResult result = DataReader::read(request);
        QVERIFY2(result.data, qPrintable(result.error));
        QCOMPARE(shown(*result.data), QString("p@1s1=10, p@3s1=30"));
        checkNotes(*result.data, "Time 2 was left out: p2.vtp: it is cut off after *");
        QCOMPARE(result.offers.numberedFiles, std::int64_t(0));
    }

private:
    static void verifyValues(const QVector<double>& found, const QVector<double>& wanted)
    {
        QString text;
        QDebug(&text) << found;
        QVERIFY2(found.size() == wanted.size(), qPrintable(text));
        for (int i = 0; i < wanted.size(); ++i)
            QVERIFY2(found[i] == wanted[i] || (std::isnan(found[i]) && std::isnan(wanted[i])),
                     qPrintable(text));
    }

    /// The notes, separated by bars, are like this pattern.
    static void checkNotes(const DataSet& data, const QString& pattern)
    {
        QStringList said;
        for (const std::string& note : data.notes)
            said << QString::fromStdString(note);
        const auto plain = [](QString text) { return text.replace('/', '?').remove('"'); };
        const QRegularExpression wanted(
            QRegularExpression::wildcardToRegularExpression(plain(pattern)));
        QVERIFY2(wanted.match(plain(said.join('|'))).hasMatch(), qPrintable(said.join('|')));
    }

    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadParts)
#include "tst_read_parts.moc"
