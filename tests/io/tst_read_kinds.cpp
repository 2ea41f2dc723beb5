// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/vtk_text.h"
#include "tests/support/rows.h"

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

static QByteArray image(const QByteArray& extent, const QByteArray& pointArrays)
{
    return xml("ImageData",
               "WholeExtent=\"" + extent
                   + "\" Origin=\"1 2 3\" Spacing=\"0.5 1 1\"><Piece Extent=\"" + extent
                   + "\"><PointData>" + pointArrays + "</PointData></Piece>");
}

class TestReadKinds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void kindsOfZones_data()
    {
        const Rows<QString, QByteArray, bool, QVector<int>, int, int, bool> row;
        row("image", "a.vti", image("0 2 0 1 0 0", {}), true, {3, 2, 1}, 2, 2, true);
        row("image that begins elsewhere", "a.vti", image("3 4 5 6 7 9", {}), true, {2, 2, 3}, 2, 3,
            false);
        row("rectilinear", "a.vtr",
            xml("RectilinearGrid",
                "WholeExtent=\"0 2 0 1 0 1\"><Piece Extent=\"0 2 0 1 0 1\"><Coordinates>"
                    + array("type=\"Float64\"", "0 1 5") + array("type=\"Float64\"", "0 2")
                    + array("type=\"Float64\"", "0 3") + "</Coordinates></Piece>"),
            true, {3, 2, 2}, 2, 3, false);
        row("surface", "a.vtp", polyData(), false, {0, 0, 0}, 2, 2, false);
        row("lines", "a.vtk",
            legacy("DATASET POLYDATA\nPOINTS 3 float\n0 0 1 1 0 1 2 0 1\n"
                   "LINES 1 4\n3 0 1 2\n"),
            false, {0, 0, 0}, 1, 1, true);
        row("points without cells", "a.vtk",
            legacy("DATASET UNSTRUCTURED_GRID\nPOINTS 2 float\n0 0 0 1 1 1\nCELLS 0 0\n"
                   "CELL_TYPES 0\n"),
            false, {0, 0, 0}, 0, 0, false);
        row("mixed cells", "a.vtk",
            legacy("DATASET UNSTRUCTURED_GRID\nPOINTS 4 float\n0 0 0 1 0 0 0 1 0 0 0 1\n"
                   "CELLS 2 9\n3 0 1 2\n4 0 1 2 3\nCELL_TYPES 2\n5\n10\n"),
            false, {0, 0, 0}, 2, 3, false);
        row("structured points", "a.vtk",
            legacy("DATASET STRUCTURED_POINTS\nDIMENSIONS 2 2 2\nORIGIN 0 0 0\nSPACING 1 1 1\n"),
            true, {2, 2, 2}, 1, 3, false);
        row("legacy structured grid of one line", "a.vtk",
            legacy("DATASET STRUCTURED_GRID\nDIMENSIONS 3 1 1\nPOINTS 3 double\n"
                   "0 0 0 1 0 0 2 0 0\n"),
            true, {3, 1, 1}, 2, 1, true);
    }

    void kindsOfZones()
    {
        const auto [file, content, ordered, dimensions, cells, cellDimension, planar] =
            currentRow<QString, QByteArray, bool, QVector<int>, int, int, bool>();
        const auto result = dataOf({m_folder->write(file, content)});
        const DataSet& data = *result;
        QCOMPARE(zoneNames(data), QStringList {"a"});
        QCOMPARE(QString::fromStdString(data.title), QString("a"));
        const ZoneInfo& zone = data.zone(1);
        QCOMPARE(zone.ordered, ordered);
        for (std::size_t i = 0; i < 3; ++i)
            QCOMPARE(static_cast<int>(zone.dimensions[i]), dimensions[static_cast<int>(i)]);
        QCOMPARE(static_cast<int>(zone.cellCount), cells);
        QCOMPARE(zone.cellDimension, cellDimension);
        QCOMPARE(data.isPlanar, planar);
        QCOMPARE(zone.strand, 0);
        QCOMPARE(std::int64_t(data.geometry(1)->GetNumberOfPoints()), zone.pointCount);
        QCOMPARE(m_folder->leftovers().size(), 1);
    }

    void parallelPiecesAreOneZone()
    {
        m_folder->write("piece.vtp", polyData());
        const QString path = m_folder->write(
            "all.pvtp",
            "<VTKFile type=\"PPolyData\"><PPolyData GhostLevel=\"0\"><PPoints>"
            "<PDataArray type=\"Float32\" NumberOfComponents=\"3\"/></PPoints>"
            "<Piece Source=\"piece.vtp\"/><Piece Source=\"piece.vtp\"/></PPolyData></VTKFile>");
        const auto result = dataOf({path});
        QCOMPARE(zoneNames(*result), QStringList {"all"});
        QCOMPARE(result->zone(1).pointCount, std::int64_t(8));
    }

    void coordinatesOfAnImage()
    {
        const auto result = dataOf({m_folder->write("a.vti", image("1 2 0 1 0 0", {}))});
        QCOMPARE(values(*result, 1, "X"), (QVector<double> {1.5, 2, 1.5, 2}));
        QCOMPARE(values(*result, 1, "Y"), (QVector<double> {2, 2, 3, 3}));
        QCOMPARE(values(*result, 1, "Z"), QVector<double>(4, 3.0));
    }

    void arraysBecomeVariables()
    {
        const QByteArray nine = "1 2 3 4 5 6 7 8 9 ";
        const QByteArray pointArrays =
            array("type=\"Float64\" Name=\"p\"", "1 2 3 4")
            + array("type=\"Float32\" Name=\"speed\" NumberOfComponents=\"2\"", "1 2 3 4 5 6 7 8")
            + array("type=\"Float32\" Name=\"Stress\" NumberOfComponents=\"9\"", nine.repeated(4))
            + array("type=\"Float32\" Name=\"Rate\" NumberOfComponents=\"6\" ComponentName0=\"XX\" "
                    "ComponentName1=\"YY\"",
                    "1 2 3 4 5 6 1 2 3 4 5 6 1 2 3 4 5 6 1 2 3 4 5 6")
            + array(
                "type=\"Float32\" Name=\"T\" NumberOfComponents=\"4\" ComponentName0=\"&lt;a&gt;\"",
                "1 2 3 4 1 2 3 4 1 2 3 4 1 2 3 4")
            + array("type=\"UInt8\" Name=\"vtkGhostType\"", "0 0 0 0")
            + array("type=\"String\" Name=\"label\"", "97 0 98 0 99 0 100 0");
        const QByteArray cellArrays = array("type=\"Int32\" Name=\"p\"", "7 8")
            + array("type=\"Int32\" Name=\"q&lt;1&gt; \xc3\xa4\"", "5 6");
        const auto result = dataOf({m_folder->write("a.vtp", polyData(pointArrays, cellArrays))});
        QCOMPARE(variableNames(*result).join(","),
                 QString::fromUtf8("X,Y,Z,p,speed X,speed Y,Stress 1,Stress 2,Stress 3,Stress 4,"
                                   "Stress 5,Stress 6,Stress 7,Stress 8,Stress 9,Rate XX,Rate YY,"
                                   "Rate 3,Rate 4,Rate 5,Rate 6,T <a>,T 2,T 3,T 4,q<1> \xc3\xa4"));
        QCOMPARE(values(*result, 1, "p"), (QVector<double> {1, 2, 3, 4}));
        QCOMPARE(values(*result, 1, "Stress 9"), QVector<double>(4, 9.0));
        QCOMPARE(values(*result, 1, QString::fromUtf8("q<1> \xc3\xa4")), (QVector<double> {5, 6}));
        QCOMPARE(result->vectorVariables, (std::array<int, 3> {{5, 6, 0}}));
        QCOMPARE(result->contourVariables[0], 4);
        QCOMPARE(result->notes.size(), std::size_t(1));
        QVERIFY2(result->notes[0].find(": label.") != std::string::npos, result->notes[0].c_str());
    }

    void vectorProposal_data()
    {
        const Rows<int, QByteArray, std::array<int, 3>> row;
        row("velocity wins", 3, "Gradient Momentum Velocity", {{10, 11, 12}});
        row("momentum before others", 3, "Gradient Momentum", {{7, 8, 9}});
        row("normals last", 3, "Normals Gradient", {{7, 8, 9}});
        row("first of equals", 3, "Gradient Force", {{4, 5, 6}});
        row("U is a velocity", 3, "Force U", {{7, 8, 9}});
        row("letters", 1, "p u T v w", {{5, 7, 8}});
        row("two of them", 1, "V U", {{5, 4, 0}});
        row("letters behind", 1, "aX aY VelocityX VelocityY VelocityZ", {{6, 7, 8}});
        row("behind a line", 1, "u_y u_x", {{5, 4, 0}});
        row("before", 1, "x-momentum y-momentum z-momentum", {{4, 5, 6}});
        row("times the density", 1, "rho rhou rhov", {{5, 6, 0}});
        row("numbers", 1, "velocity:0 velocity:1 velocity:2", {{4, 5, 6}});
        row("numbers of other things", 1, "sample_1 sample_2 sample_3", {{0, 0, 0}});
        row("no partner", 1, "Flux Density U_x", {{0, 0, 0}});
        row("places", 1, "CoordinateX CoordinateY", {{0, 0, 0}});
    }

    void vectorProposal()
    {
        const auto [components, names, vector] = currentRow<int, QByteArray, std::array<int, 3>>();
        QByteArray arrays;
        for (const QByteArray& name : names.split(' '))
            arrays += array("type=\"Float32\" NumberOfComponents=\""
                                + QByteArray::number(components) + "\" Name=\"" + name + '"',
                            components == 3 ? "1 2 3 4 5 6 7 8 9 10 11 12" : "1 2 3 4");
        const auto result = dataOf({m_folder->write("a.vtp", polyData(arrays))});
        QCOMPARE(result->vectorVariables, vector);
    }

    /// Of each file, the first names that all its blocks with points share are left out.
    void sharedNamesOfBlocks_data()
    {
        const Rows<QByteArray, QString> row;
        const QByteArray tip = "<DataSet index='0' name='tip' file='p.vtp'/>";
        const auto block = [](const char* number, const char* name, const QByteArray& inner) {
            return QByteArray("<Block index='") + number + "' name='" + name + "'>" + inner
                + "</Block>";
        };
        row("one block", block("0", "a", block("0", "b", tip)), "tip");
        row("two levels, beside an empty block",
            block("0", "a", block("0", "b", tip) + block("1", "c", tip)) + block("1", "d", {}),
            "b/tip,c/tip");
        row("parts only", block("0", "a b", tip) + block("1", "a c", tip), "a b/tip,a c/tip");
        row("one in the other", block("0", "a", tip + block("1", "tip", tip)), "tip,tip/tip");
    }

    void sharedNamesOfBlocks()
    {
        const auto [blocks, zones] = currentRow<QByteArray, QString>();
        m_folder->write("p.vtp", polyData());
        const QString path = m_folder->write("t.vtm", xml("vtkMultiBlockDataSet", ">" + blocks));
        const auto result = dataOf({path});
        QCOMPARE(zoneNames(*result).join(','), zones);
        const auto two = dataOf({path, m_folder->path("p.vtp")});
        QCOMPARE(zoneNames(*two).join(','), "t/" + QString(zones).replace(",", ",t/") + ",p");
    }

    void namesOfBlocks()
    {
        m_folder->write("p.vtp", polyData());
        const QString path = m_folder->write(
            "tree.vtm",
            "<VTKFile type=\"vtkMultiBlockDataSet\" version=\"1.0\"><vtkMultiBlockDataSet>"
            "<Block index=\"0\" name=\"wing/left\"><DataSet index=\"0\" file=\"p.vtp\"/>"
            "<DataSet index=\"1\" name=\"tip\" file=\"p.vtp\"/><DataSet index=\"2\"/></Block>"
            "<DataSet index=\"1\" file=\"p.vtp\"/><Block index=\"2\" name=\"none\"/>"
            "<Block index=\"3\" name=\"wing\"><DataSet index=\"0\" name=\"left/tip\" "
            "file=\"p.vtp\"/></Block></vtkMultiBlockDataSet></VTKFile>");
        const auto one = dataOf({path});
        QCOMPARE(zoneNames(*one),
                 (QStringList {"wing/left/Block 1", "wing/left/tip", "Block 2", "wing/left/tip"}));
        QCOMPARE(QString::fromStdString(one->notes.at(0)), QString("1 empty block was left out."));
        QCOMPARE(QString::fromStdString(dataOf({path, path})->notes.at(0)),
                 QString("2 empty blocks were left out."));

        const auto two = dataOf({path, m_folder->path("p.vtp")});
        QCOMPARE(zoneNames(*two).mid(3), (QStringList {"tree/wing/left/tip", "p"}));

        m_folder->write("b/p.vtp", polyData());
        m_folder->write("p.vtk",
                        legacy("DATASET STRUCTURED_POINTS\nDIMENSIONS 2 2 2\n"
                               "ORIGIN 0 0 0\nSPACING 1 1 1\n"));
        const auto same = dataOf({m_folder->path("p.vtk"), m_folder->path("b/p.vtp")});
        QCOMPARE(zoneNames(*same), (QStringList {"p.vtk", "p.vtp"}));
    }

    void collectionsByTimeGroupAndPart_data()
    {
        const Rows<QByteArray, QString> row;
        row("one part at one time", "<DataSet file='p.vtp'/>", "all@0s0");
        row("one part over time, not in order",
            "<DataSet timestep='2e1' file='p.vtp'/><DataSet timestep='.5' "
            "file='p.vtp'/>",
            "all@0.5s1 all@20s1");
        row("groups and parts",
            "<DataSet timestep='1' group='wing' part='0' file='p.vtp'/>"
            "<DataSet timestep='1' group='wing' part='4' file='p.vtp'/>"
            "<DataSet timestep='1' group='hull' part='0' name='bow' file='p.vtp'/>"
            "<DataSet timestep='2' group='wing' part='4' file='p.vtp'/>",
            "wing/Piece 1@1s1 wing/Piece 5@1s2 wing/Piece 5@2s2 hull/bow@1s3");
        row("a tree as part",
            "<DataSet timestep='1' file='t.vtm'/><DataSet timestep='2' file='p.vtp'/>",
            "all/a@1s1 all@2s2");
        row("a part that is always empty",
            "<DataSet timestep='1' part='0' file='e.vtm'/>"
            "<DataSet timestep='1' part='1' file='p.vtp'/>"
            "<DataSet timestep='2' part='1' file='p.vtp'/>",
            "Piece 2@1s1 Piece 2@2s1");
    }

    void collectionsByTimeGroupAndPart()
    {
        const auto [entries, wanted] = currentRow<QByteArray, QString>();
        m_folder->write("p.vtp", polyData());
        m_folder->write("e.vtm", xml("vtkMultiBlockDataSet", "><DataSet index='0' name='a'/>"));
        m_folder->write("t.vtm",
                        "<VTKFile type=\"vtkMultiBlockDataSet\" version=\"1.0\">"
                        "<vtkMultiBlockDataSet><DataSet index=\"0\" name=\"a\" file=\"p.vtp\"/>"
                        "</vtkMultiBlockDataSet></VTKFile>");
        const auto result = dataOf({m_folder->write("all.pvd", collection(entries))});
        QStringList zones;
        for (const ZoneInfo& zone : result->zones)
            zones << QString("%1@%2s%3")
                         .arg(QString::fromStdString(zone.name))
                         .arg(zone.time)
                         .arg(zone.strand);
        QCOMPARE(zones.join(" "), wanted);
    }

    void namesThatAreNoText()
    {
        const QString path = m_folder->write(
            "a.vtk",
            legacy("DATASET STRUCTURED_POINTS\nDIMENSIONS 2 1 1\nORIGIN 0 0 0\nSPACING 1 1 1\n"
                   "POINT_DATA 2\nSCALARS Gr\xf6\xdf"
                   "e float\nLOOKUP_TABLE default\n1 2\n"));
        const auto result = dataOf({path});
        QCOMPARE(variableNames(*result).value(3),
                 QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                   "e"));
        QCOMPARE(values(*result, 1,
                        QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                          "e")),
                 (QVector<double> {1, 2}));
    }

    void filesWithUnusualNames()
    {
        const auto result = dataOf({m_folder->write("ein Flügel %1 \"#1\".vtp", polyData())});
        QCOMPARE(zoneNames(*result), QStringList {"ein Flügel %1 \"#1\""});
    }

private:
    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadKinds)
#include "tst_read_kinds.moc"
