// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_opening.h"
#include "app/first_lines.h"
#include "host/document/document.h"
#include "host/style/schema.h"
#include "plot/render.h"
#include "sdk/common/common.h"
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

using namespace corvala;
using namespace corvala::tests;
using host::io::legacy;

/// Plot type, layers that are on, and "boundary" with the number of maps that draw their boundary
/// faces.
static QString lookOf(const host::Frame& frame)
{
    const std::pair<style::SwitchKey, const char*> layers[] = {
        {style::fieldLayers.showContour, "contour"},
        {style::fieldLayers.showShade, "shade"},
        {style::fieldLayers.useLightingEffect, "light"},
        {style::fieldLayers.showMesh, "mesh"},
        {style::fieldLayers.showEdge, "edges"},
        {style::fieldLayers.showScatter, "scatter"}};
    QStringList texts {frame.plotType() == PlotType_Field2D ? "2D" : "3D"};
    for (const auto& [key, name] : layers)
        if (frame.isOn(key))
            texts << name;
    int boundary = 0;
    for (CvlInt64 map = 1; map <= frame.fieldMapCount(); ++map)
        boundary += frame.fieldMaps().hasVolumeZones(map)
                && frame.fieldInteger(style::fieldMap.surfaces.surfacesToPlot, map)
                    == SurfacesToPlot_BoundaryCellFaces
            ? 1
            : 0;
    if (boundary > 0)
        texts << QStringLiteral("boundary %1").arg(boundary);
    return texts.join(' ');
}

static QString nameOf(const host::Frame& frame, style::VariableKey key, int index = -1)
{
    const int variable = frame.values().integer(host::Schema::instance().at(key), index);
    return variable > 0 ? QString::fromStdString(frame.data()->variable(variable).name) : QString();
}

/// What is to be seen: "colors", and "lines" in black.
static QString seenIn(const QImage& image)
{
    int colors = 0;
    int lines = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width() * 2 / 3; ++x) { // without legends
            const QColor color = image.pixelColor(x, y);
            colors += color.hsvSaturation() >= 25 ? 1 : 0;
            lines += color.hsvSaturation() < 25 && color.value() < 30 ? 1 : 0;
        }
    }
    const int pixels = image.width() * image.height();
    QStringList seen;
    if (colors > pixels / 20)
        seen << QStringLiteral("colors");
    if (lines > pixels / 1000)
        seen << QStringLiteral("lines");
    return seen.join(' ');
}

/// What opened data look like, by what is in them.
class tst_FirstLook : public QObject
{
    Q_OBJECT

    host::io::DataFolder m_folder;

private Q_SLOTS:
    void dependsOnTheData_data()
    {
        const Rows<QStringList, QString, QString, QString>
            row; // files, look, variables of contours, vectors and sizes, what is seen
        const auto sample = &host::io::DataFolder::sample;
        row("plane", {sample("naca_transient")}, "2D contour shade edges", "DENS, DENS",
            "colors lines");
        row("volumes with their surfaces", {sample("cavity_transient")},
            "3D contour shade light mesh edges", "p, U X, U X", "colors lines");
        const QString combustor = sample("combustor_three_blocks/multicomb_%1.vts");
        row("volumes", {combustor.arg(0), combustor.arg(1), combustor.arg(2)},
            "3D contour shade light mesh edges boundary 3", "Density, Momentum X, Density",
            "colors lines");
        row("solids and shells", {sample("exodus_biplane/biplane_rms_pressure_bs.exo")},
            "3D contour shade light mesh edges boundary 4", "ObjectId, ObjectId", "colors lines");
        row("cells", {sample("cgns_hexa/cgnslib_vers-4400.cgns")},
            "3D contour light mesh edges boundary 1", "Density, Density", "colors lines");
        row("surfaces over time", {sample("two_spheres/dualSphereAnimation4.pvd")},
            "3D contour shade light mesh edges", "Normals X, Normals X, Normals X", "colors lines");

        QByteArray rows = "x [m],y [m],T\n";
        for (int i = 0; i < 900; ++i)
            rows += QByteArray::number(i % 30) + ',' + QByteArray::number(i / 30) + ','
                + QByteArray::number(i % 7) + '\n';
        row("rows with places", {m_folder.write("places.csv", rows)}, "2D scatter", "T, x [m]",
            "colors");
        const QByteArray box = "DATASET STRUCTURED_POINTS\nDIMENSIONS 30 30 30\nORIGIN 0 0 0\n"
                               "SPACING 1 1 1\n";
        const QByteArray slice = "DATASET STRUCTURED_POINTS\nDIMENSIONS 30 30 1\nORIGIN 0 0 15\n"
                                 "SPACING 1 1 1\n";
        const auto values = [](const char* name, int count, bool isConstant) {
            QByteArray text = QByteArray("SCALARS ") + name + " float\nLOOKUP_TABLE default\n";
            for (int i = 0; i < count; ++i)
                text += QByteArray::number(isConstant ? 7 : i % 30) + ' ';
            return text;
        };
        const auto file = [&](const char* name, const QByteArray& points, int count) {
            return m_folder.write(name,
                                  legacy(points + "POINT_DATA " + QByteArray::number(count) + '\n'
                                         + values("same", count, true)
                                         + values("other", count, false)));
        };
        const QString boxFile = file("box.vtk", box, 27'000);
        row("a slice in a volume", {boxFile, file("slice.vtk", slice, 900)},
            "3D contour shade light edges boundary 1", "other, other", "colors lines");
        const QString walls =
            m_folder.write("walls.vtk",
                           legacy("DATASET POLYDATA\nPOINTS 8 float\n0 0 0 29 0 0 29 29 0 0 29 0 "
                                  "0 0 29 29 0 29 29 29 29 0 29 29\nPOLYGONS 4 20\n"
                                  "4 0 1 5 4 4 1 2 6 5 4 2 3 7 6 4 3 0 4 7\n"));
        row("walls round a volume without its ends", {boxFile, walls},
            "3D contour shade light edges boundary 1", "other, other", "colors lines");
        QByteArray blocks;
        for (int i = 0; i <= 1000; ++i)
            blocks += "<DataSet index='" + QByteArray::number(i) + "' file='piece.vtp'/>";
        m_folder.write(
            "piece.vtp",
            "<VTKFile type='PolyData' version='1.0'><PolyData><Piece NumberOfPoints='3' "
            "NumberOfPolys='1'><Points>"
            "<DataArray format='ascii' type='Float32' NumberOfComponents='3'>0 0 0 1 0 0 0 1 "
            "0</DataArray></Points>"
            "<Polys><DataArray format='ascii' type='Int64' Name='connectivity'>0 1 "
            "2</DataArray><DataArray "
            "type='Int64' Name='offsets'>3</DataArray></Polys></Piece></PolyData></VTKFile>");
        row("very many zones without variables",
            {m_folder.write(
                "many.vtm",
                "<VTKFile type='vtkMultiBlockDataSet' version='1.0'><vtkMultiBlockDataSet>" + blocks
                    + "</vtkMultiBlockDataSet></VTKFile>")},
            "2D shade mesh", "", "colors");
    }

    void linesOfTables_data()
    {
        const Rows<QByteArray, QString> row; // rows, abscissa and ordinates
        row("one way", "a b\n3 2\n2 2.5\n1 2.5\n", "line over a: b");
        row("cycles in steps",
            "a b c\n0 1 5.5\n0 2 6\n0 3 7\n1 1 7\n1 2 6\n1 3 5\n2 1 5\n2 2 6\n2 3 4\n"
            "3 1 6\n3 2 6\n3 3 7\n",
            "points over b: c");
        row("to and fro", "a b\n3 1.5\n0 2\n2 3\n1 1\n2 1\n1 2\n4 3\n2 2\n6 3\n3 2\n4 1\n",
            "points over a: b");
        row("few rows with places, and errors",
            "x y y_err c dx\n3 1.5 .1 5 1\n0 2 .2 7 2\n2 3 .3 6 1\n1 1 .1 8 2\n2 1 .2 5 1\n"
            "1 2 .3 8 2\n4 3 .1 6 1\n2 2 .2 5 2\n6 3 .3 7 1\n5 2 .1 6 2\n7 1 .2 8 1\n",
            "points over x: y+-y_err c");
        row("errors without a name", "a b err\n1 2 .5\n2 3 .4\n", "line over a: b+-err");
        row("more columns than lines",
            "a b c d e f g h i j\n1 2 3 4 5 6 7 8 9 8\n2 3 4 5 6 7 8 9 8 7\n",
            "line over a: b c d e f g h i of 9");
        row("an error that is none", "a error b\n1 2 .5\n2 3 .4\n", "line over a: error b");
        row("a curve", "a b\n5 0.5\n3 1\n1 2\n0 3\n0 4\n1 5\n2 6\n3 5\n4 3\n5 1\n6 3\n7 3\n",
            "line over a: b");
    }

    void linesOfTables()
    {
        const auto [content, told] = currentRow<QByteArray, QString>();
        host::io::ReadRequest request;
        request.files << m_folder.write("a.txt", content);
        const host::io::ReadResult result = host::io::DataReader::read(request);
        QVERIFY2(result.data, qPrintable(result.error));
        const auto nameOf = [&](int variable) {
            return QString::fromStdString(result.data->variable(variable).name);
        };
        QStringList ordinates;
        std::size_t possible = 0;
        const std::vector<app::FirstLine> lines = app::firstLines(*result.data, &possible);
        for (const app::FirstLine& line : lines)
            ordinates << nameOf(line.y) + (line.error > 0 ? "+-" + nameOf(line.error) : QString());
        if (possible > lines.size())
            ordinates << QStringLiteral("of %1").arg(possible);
        QCOMPARE(app::firstPlotType(*result.data, lines), PlotType_LineXY);
        QCOMPARE(QString(lines.front().isScattered ? "points over " : "line over ")
                     + nameOf(lines.front().x) + ": " + ordinates.join(' '),
                 told);
    }

    void dependsOnTheData()
    {
        const auto [files, look, variables, seen] =
            currentRow<QStringList, QString, QString, QString>();
        host::io::ReadRequest request;
        request.files = files;
        QCOMPARE(app::openAndWait(request).error, QString());
        const host::Frame& frame = *host::Document::instance().activeFrame();
        QCOMPARE(lookOf(frame), look);
        sdk::autoAssignScatterVariable();
        QStringList proposed {nameOf(frame, style::contourGroups.var, 1),
                              nameOf(frame, style::globalVector.uVar),
                              nameOf(frame, style::globalScatter.var)};
        proposed.removeAll({});
        QCOMPARE(proposed.join(", "), variables);
        QVERIFY(host::Document::instance().undo().undoText().isEmpty());
        QString error;
        const QImage image = plot::renderToImage(frame.id(), {600, 450}, &error);
        QVERIFY2(!image.isNull(), qPrintable(error));
        QCOMPARE(seenIn(image), seen);
    }
};

QTEST_MAIN(tst_FirstLook)
#include "tst_first_look.moc"
