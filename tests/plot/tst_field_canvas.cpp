// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/io/data_reader.h"
#include "host/io/sample_list.h"
#include "pictures.h"
#include "plot/common/axis_ticks.h"
#include "plot/field/geometry/color_map.h"
#include "plot/field/scene/field_scene.h"
#include "plot/field/view/field_canvas.h"
#include "plot/field/view/legend.h"
#include "plot/frame_view.h"
#include "plot/render.h"
#include "plot/stored_view.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <QCryptographicHash>
#include <QPainter>
#include <QPainterPath>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

#include <vtkImageData.h>
#include <vtkRenderWindow.h>
#include <vtkUnsignedCharArray.h>

#include <cmath>
#include <cstdio>
#include <numeric>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static constexpr const char* kReportProblem = "CORVALA_REPORT_OPENGL";
static constexpr const char* kReportZones = "CORVALA_REPORT_ZONES";
static constexpr const char* kReportPictures = "CORVALA_REPORT_PICTURES";

static constexpr QSize kSize {480, 400};

static QImage picture(const QSize& size = kSize)
{
    QString error;
    const QImage image = renderToImage(document().activeFrameId(), size, &error);
    if (image.isNull())
        qWarning("%s", qPrintable(error));
    return image;
}

/// A plot in a window that has drawn what there is.
struct ShownPlot
{
    ShownPlot()
    {
        view.resize(kSize);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qWarning("the window does not appear");
        settle();
    }
    void settle()
    {
        do {
            QCoreApplication::processEvents();
        } while (view.isBusy());
        QCoreApplication::processEvents();
    }
    QWidget* target() { return view.childAt(view.rect().center()); }
    QPoint middle() const { return view.rect().center(); }
    QImage grabbed() { return view.grab().toImage(); }
    FieldCanvas& canvas() { return *view.findChild<FieldCanvas*>(); }
    FieldView& fieldView() { return canvas().fieldView(); }
    void drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(target(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target(), &move);
        QTest::mouseRelease(target(), Qt::LeftButton, {}, to);
        settle();
    }

    FrameView view;
};

/// A square for each zone, ten to the right of the one before.
class Squares : public host::ZoneSource
{
public:
    vtkSmartPointer<vtkDataSet> zone(std::int64_t index) const override
    {
        auto square = vtkSmartPointer<vtkImageData>::New();
        square->SetDimensions(2, 2, 1);
        square->SetOrigin(10.0 * static_cast<double>(index), 0.0, 0.0);
        return square;
    }
};

/// Opens three squares: one after the other in time, each at its place, or all in the same one.
static void openSquares(PlotType_e plotType, bool isTransient)
{
    auto data = std::make_shared<host::DataSet>();
    for (int i = 0; i < 3; ++i) {
        host::ZoneInfo zone;
        zone.ordered = true;
        zone.dimensions = {2, 2, 1};
        zone.pointCount = 4;
        zone.cellDimension = 2;
        zone.strand = isTransient ? 1 : 0;
        zone.time = i;
        zone.sourceIndex = isTransient ? i : 0;
        data->zones.push_back(zone);
    }
    data->source = std::make_shared<Squares>();
    document().clear();
    document().execute(host::AttachData {{}, data, plotType, 0});
}

/// Share of dark pixels within a rectangle.
static double inkIn(const QImage& image, const QRectF& part)
{
    return 1.0 - shareOfColor(image.copy(part.toAlignedRect()), Qt::white);
}

/// A view of the origin from a direction, at a distance of ten.
static SpaceView viewFrom(double azimuth, double elevation)
{
    const double a = qDegreesToRadians(azimuth);
    const double e = qDegreesToRadians(elevation);
    const std::array<double, 3> right = {-std::sin(a), std::cos(a), 0.0};
    const std::array<double, 3> back = {std::cos(a) * std::cos(e), std::sin(a) * std::cos(e),
                                        std::sin(e)};
    SpaceView view;
    for (std::size_t axis = 0; axis < 3; ++axis)
        view.eye[axis] = 10.0 * back[axis];
    const std::array<double, 3> up = {-std::cos(a) * std::sin(e), -std::sin(a) * std::sin(e),
                                      std::cos(e)};
    for (std::size_t axis = 0; axis < 3; ++axis)
        view.directions[axis] = {right[axis], up[axis], back[axis]};
    view.pixelsPerSlope = 600.0;
    return view;
}

/// What this program prints with some variables of the environment set.
static QString outputWith(const QMap<QString, QString>& variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    process.waitForFinished();
    return process.exitStatus() == QProcess::NormalExit
        ? QString::fromUtf8(process.readAllStandardOutput())
        : QStringLiteral("crashed");
}

/// A line for each sample with the sum of its picture, for everyRunDrawsTheSame.
static int reportPictures()
{
    const auto report = [](const char* name) {
        if (document().activeFrame()->isFieldPlot()) {
            write("FieldLayers/ShowContour", "", 1);
            write("FieldMap/Surfaces/SurfacesToPlot", "all", SurfacesToPlot_BoundaryCellFaces);
        }
        const QImage image = picture();
        QCryptographicHash sum(QCryptographicHash::Md5);
        sum.addData(reinterpret_cast<const char*>(image.constBits()),
                    static_cast<int>(image.sizeInBytes()));
        std::printf("%s %s\n", name, sum.result().toHex().constData());
    };
    for (const char* name : {"field2d", "field3d", "kinds", "transient"}) {
        openDemo(name);
        report(name);
    }
    for (const host::io::Sample& sample : host::io::sampleList()) {
        host::io::ReadRequest request;
        request.files = sample.files;
        const host::io::ReadResult read = host::io::DataReader::read(request);
        if (!read.data)
            return 1;
        document().execute(host::AttachData {{}, read.data, read.data->suggestedPlotType(), 0});
        report(qPrintable(sample.title));
    }
    return 0;
}

/// Which zones are seen in a small window, point by point, for everyPixelRatioShowsTheSame.
static int reportZones()
{
    openDemo("field2d");
    ShownPlot shown;
    shown.view.resize(300, 200);
    shown.settle();
    for (int y = 4; y < shown.view.height(); y += 8)
        for (int x = 4; x < shown.view.width(); x += 8)
            std::printf("%d ", static_cast<int>(shown.fieldView().zoneAt(QPointF(x, y))));
    return 0;
}

/// What a machine without OpenGL does, as a program of its own.
static int reportOpenGl()
{
    openDemo("field2d");
    FrameView view;
    view.resize(kSize);
    view.show();
    QCoreApplication::processEvents();
    QString error;
    const bool hasPicture = !view.render(kSize, &error).isNull();
    std::printf("%s %s %s\n", qPrintable(view.problem()), qPrintable(error),
                hasPicture ? "a picture" : "no picture, no crash");
    return 0;
}

class tst_FieldCanvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorsAreTheirs()
    {
        openDemo("field2d", 4);
        write("FieldLayers/ShowMesh", "", 0);
        write("FieldLayers/ShowShade", "", 1);
        write("FieldMap/Shade/Color", "all", 3);
        const host::Rgb color = document().color(3);
        const double share = shareOfColor(picture(), QColor(color.red, color.green, color.blue));
        QVERIFY2(share > 0.3 && share < 0.8, QByteArray::number(share));
        write("FieldMap/Shade/Show", "1-3", 0);
        const double quarter = shareOfColor(picture(), QColor(color.red, color.green, color.blue));
        QVERIFY2(quarter > share / 5 && quarter < share / 3, QByteArray::number(quarter));
    }

    void constantFieldHasAColor()
    {
        openDemo("field3d");
        write("ContourGroups/Var", "", 3, 1); // Z
        write("FieldLayers/ShowContour", "", 1);
        write("FieldMap/Contour/UseLightingEffect", "all", 0);
        activate("1,3-12", false); // leaves a zone in the plane Z = 0
        const QImage image = picture();
        const auto shareOf = [&](const host::Rgb& color) {
            return shareOfColor(image, QColor(color.red, color.green, color.blue));
        };
        QVERIFY(shareOf(scaleColor({}, 0.5)) > 0.05);
        QVERIFY(shareOf(noValueColor()) < 0.01); // some of the pixels of smooth lines
    }

    void hiddenLinesAreRemoved()
    {
        openDemo("kinds");
        write("FieldLayers/ShowEdge", "", 0);
        activate("2-8", false);
        write("FieldMap/Surfaces/SurfacesToPlot", "1", 0);
        write("FieldMap/Mesh/Color", "1", 0);
        const auto ink = [](int type) {
            write("FieldMap/Mesh/MeshType", "1", type);
            return 1.0 - shareOfColor(picture(), Qt::white);
        };
        const double overlay = ink(MeshType_Overlay);
        const double hidden = ink(MeshType_HiddenLine);
        QVERIFY2(hidden < 0.75 * overlay, QByteArray::number(hidden / overlay));
        QVERIFY2(hidden > 0.3 * overlay, QByteArray::number(hidden / overlay)); // but whole
    }

    void wireFrameIsSeenThroughFaces()
    {
        openDemo("kinds");
        write("FieldLayers/ShowEdge", "", 0);
        write("FieldLayers/ShowShade", "", 1);
        activate("2-8", false);
        write("FieldMap/Surfaces/SurfacesToPlot", "1", 0);
        write("FieldMap/Shade/Color", "1", 7);
        write("FieldMap/Mesh/Color", "1", 0);
        const QImage overlay = picture();
        write("FieldMap/Mesh/MeshType", "1", MeshType_WireFrame);
        const QImage wires = picture();
        QVERIFY(shareOfColor(wires, Qt::black) > 1.2 * shareOfColor(overlay, Qt::black));
    }

    void edgesLieOnTheMesh()
    {
        openDemo("field3d");
        write("FieldMap/EdgeLayer/Color", "all", 0);
        const auto ink = [](bool mesh) {
            write("FieldLayers/ShowMesh", "", mesh ? 1 : 0);
            return shareOfColor(picture({1200, 900}), Qt::black);
        };
        const double alone = ink(false);
        const double together = ink(true);
        QVERIFY2(together > 0.9 * alone, QByteArray::number(together / alone));
    }

    void laterMapsCoverEarlierOnes()
    {
        openSquares(PlotType_Field3D, false);
        write("FieldLayers/ShowShade", "", 1);
        for (const char* map : {"1", "2", "3"})
            write("FieldMap/Shade/Color", map, map[0] - '0');
        const auto isSeen = [](int map) {
            const host::Rgb color = document().color(map);
            return shareOfColor(picture(), QColor(color.red, color.green, color.blue)) > 0.1;
        };
        // Light takes a mapper of its own, in front of or behind the one that the other two share.
        for (const char* lit : {"1", "2"}) {
            write("FieldMap/Shade/UseLightingEffect", "all", 0);
            write("FieldMap/Shade/UseLightingEffect", lit, 1);
            QVERIFY(isSeen(3));
        }
        write("FieldMap/Shade/UseLightingEffect", "2", 0);
        write("FieldMap/Shade/UseLightingEffect", "3", 1);
        activate("3", false);
        QVERIFY(isSeen(2));
        write("FieldMap/Shade/UseLightingEffect", "3", 0);
        write("FieldLayers/UseTranslucency", "", 1);
        write("FieldMap/Effects/UseTranslucency", "all", 1);
        const host::Rgb behind = document().color(1);
        const host::Rgb before = document().color(2);
        const auto half = [](int back, int front) { return (255 + back + 2 * front) / 4; };
        const QColor mixed(half(behind.red, before.red), half(behind.green, before.green),
                           half(behind.blue, before.blue));
        QVERIFY(shareOfColor(picture(), mixed) > 0.1);
    }

    void thickLinesScaleWithThePicture()
    {
        openDemo("field2d", 4);
        write("FieldLayers/ShowEdge", "", 0);
        write("FieldMap/Mesh/Color", "all", 0);
        write("FieldMap/Mesh/LineThickness", "all", 1.0);
        const double small = shareOfColor(picture(), Qt::black);
        const double large = shareOfColor(picture(3 * kSize), Qt::black);
        QVERIFY2(qAbs(large / small - 1.0) < 0.15, QByteArray::number(large / small));
    }

    void nothingIsClipped_data()
    {
        const Rows<QString, QSize> row;
        for (const char* demo : {"field2d", "field3d", "kinds", "transient"}) {
            row(QString::asprintf("%s, wide", demo), demo, QSize(900, 300));
            row(QString::asprintf("%s, tall", demo), demo, QSize(300, 900));
        }
    }

    void nothingIsClipped()
    {
        const auto [demo, size] = currentRow<QString, QSize>();
        openDemo(demo.toUtf8().constData());
        write("FieldMap/EdgeLayer/Color", "all", 3);
        const host::Rgb edge = document().color(3);
        const QImage image = picture(size);
        const auto isEdge = [&](const QPoint& at) {
            const QColor color = image.pixelColor(at);
            return qAbs(color.red() - edge.red) + qAbs(color.green() - edge.green)
                + qAbs(color.blue() - edge.blue)
                < 40;
        };
        QRect seen;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (isEdge({x, y}))
                    seen |= QRect(x, y, 1, 1);
        const int margin = 2;
        QVERIFY(image.rect().adjusted(margin, margin, -margin, -margin).contains(seen));
        const bool isFlat = document().activeFrame()->plotType() == PlotType_Field2D;
        QVERIFY(
            layOut(size, isFlat, {}).plot.contains(seen)); // inside of the axes that are painted
        // Fitted: it fills one direction but for axes and margins.
        QVERIFY2(seen.width() > 0.6 * size.width() || seen.height() > 0.6 * size.height(),
                 qPrintable(QStringLiteral("%1 x %2").arg(seen.width()).arg(seen.height())));
    }

    /// In a flat plot bodies are drawn as their outlines: cube, sphere and octahedron.
    void symbolsAndArrowsLookDifferent()
    {
        openDemo("field2d", 2);
        QVector<QImage> pictures;
        const auto isNew = [&pictures] {
            const QImage image = picture();
            const bool isSeen = pictures.contains(image);
            pictures << image;
            return !isSeen;
        };
        write("FieldMap/Vector/LineThickness", "all", 0.4);
        write("FieldLayers/ShowVector", "", 1);
        for (int type = VectorType_TailAtPoint; type <= VectorType_HeadOnly; ++type) {
            write("FieldMap/Vector/VectorType", "all", type);
            for (int head = ArrowheadStyle_Plain; head <= ArrowheadStyle_Hollow; ++head) {
                write("FieldMap/Vector/ArrowheadStyle", "all", head);
                QVERIFY2(isNew(), QByteArray::number(10 * type + head));
            }
        }
        const auto differ = [&isNew](const std::vector<std::pair<const char*, double>>& values) {
            for (const auto& [path, value] : values) {
                write(path, "", value);
                QVERIFY2(isNew(), path);
            }
        };
        differ({{"GlobalVector/ReferenceMagnitude", 1.5},
                {"GlobalVector/ShowReferenceArrow", 0},
                {"GlobalVector/RelativeLength", 2},
                {"GlobalVector/HeadSize", 60},
                {"GlobalVector/HeadAngle", 45},
                {"GlobalVector/IsUniform", 1}});
        write("FieldLayers/ShowVector", "", 0);
        write("FieldLayers/ShowScatter", "", 1);
        for (int shape = GeomShape_Square; shape <= GeomShape_LineArt; ++shape) {
            write("FieldMap/Scatter/SymbolShape/GeomShape", "all", shape);
            const bool isBody = shape >= GeomShape_Cube && shape <= GeomShape_Octahedron;
            QVERIFY2(isNew() != isBody, QByteArray::number(shape));
        }
        write("FieldMap/Scatter/SymbolShape/GeomShape", "all", GeomShape_Square);
        write("FieldMap/Scatter/Color", "all", 101);
        QVERIFY(isNew());
        write("FieldMap/Scatter/FillMode", "all", FillMode_SpecificColor);
        QVERIFY(isNew());
        write("FieldMap/Scatter/FillColor", "all", 101);
        QVERIFY(!isNew()); // as filled with the colours of the lines
        write("FieldMap/Scatter/SizeByVariable", "all", 1);
        differ({{"GlobalScatter/Var", 5},
                {"GlobalScatter/AutomaticRange", 0},
                {"GlobalScatter/RangeMin", -1},
                {"GlobalScatter/RangeMax", 3},
                {"GlobalScatter/SmallestSize", 2},
                {"GlobalScatter/LargestSize", 9}});
    }

    void numbersKeepClearOfTitles_data()
    {
        const Rows<double, double> row;
        row("short", 0.0, 4.0);
        row("far from zero", 4'523'000.0, 3.0);
        row("close together", 1000.0001, 0.0004);
        row("small", -1.2e-5, 2e-5);
    }

    void numbersKeepClearOfTitles()
    {
        const auto [from, span] = currentRow<double, double>();
        const PlaneWindow window {from, from + span, from, from + span};
        FieldLayout layout = layOut(kSize, true, {});
        layout = layOut(kSize, true, {}, yTextsWidth(layout, window));
        QImage image(kSize, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintPlaneAxes(painter, layout, window, "x", "y");
        painter.end();
        const QRectF& plot = layout.plot;
        const double half = plot.height() / 2 - 2 * layout.font; // the title stands in the middle
        const double title = 2.0 * layout.font;
        QCOMPARE(inkIn(image, {0.0, 0.0, title, plot.top() + half}), 0.0);
        QCOMPARE(inkIn(image, {0.0, plot.bottom() - half, title, half + 4 * layout.font}), 0.0);
        const AxisTicks ticks =
            axisTicks(from, from + span, plot.width(), layout.font, TickTexts::SideBySide);
        QVERIFY(ticks.places.size() >= 2);
        const double gap = (ticks.places[1] - ticks.places[0]) / span * plot.width();
        QVERIFY2(ticks.widest < gap, QByteArray::number(ticks.widest / gap));
    }

    void manyLegendsStandInRows()
    {
        const std::vector<FieldLegend> legends(7, {"Stress of the mean flow", levelsFor(0.0, 8.0)});
        const FieldLayout layout = layOut({1200, 900}, true, legends);
        QVERIFY(layout.plot.width() > 0.4 * 1200);
        for (std::size_t i = 1; i < legends.size(); ++i)
            QVERIFY(!layout.legends[i].intersects(layout.legends[i - 1])
                    && QRectF(0, 0, 1200, 900).contains(layout.legends[i]));
        const QStringList title = legendTitleLines(legends[0].title, 12 * layout.font, layout.font);
        QVERIFY(title.size() == 2 && title.join(' ') == legends[0].title);
    }

    void legendsShowTheirBands()
    {
        const std::vector<FieldLegend> legends = {{"Pressure", levelsFor(0.0, 8.0)}};
        const FieldLayout layout = layOut(kSize, true, legends);
        QImage image(kSize, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintLegends(painter, layout, legends);
        painter.end();
        const std::vector<host::Rgb> bands = bandColors({}, legends[0].levels->bands);
        std::vector<std::size_t> met; // going up the bar
        const int x = static_cast<int>(layout.legends[0].left() + 0.7 * layout.font);
        for (int y = image.height() - 1; y >= 0; --y) {
            const QRgb pixel = image.pixel(x, y);
            for (std::size_t band = 0; band < bands.size(); ++band)
                if (pixel == qRgb(bands[band].red, bands[band].green, bands[band].blue)
                    && (met.empty() || met.back() != band))
                    met.push_back(band);
        }
        std::vector<std::size_t> all(bands.size());
        std::iota(all.begin(), all.end(), std::size_t {0});
        QCOMPARE(met, all);
    }

    void spaceAxesCoverNothing_data()
    {
        const Rows<double, double, int> row;
        for (const double azimuth : {-150.0, -60.0, 25.0, 100.0})
            for (const double elevation : {-50.0, 20.0, 70.0})
                row(QString::asprintf("from %g, %g", azimuth, elevation), azimuth, elevation, 3);
        row("along an axis", 0.0, 0.0, 2);
    }

    void spaceAxesCoverNothing()
    {
        const auto [azimuth, elevation, axes] = currentRow<double, double, int>();
        const vtkBoundingBox box(-1.0, 1.0, -1.2, 1.2, -0.7, 0.7);
        const SpaceView view = viewFrom(azimuth, elevation);
        const FieldLayout layout = layOut(kSize, false, {});
        QPolygonF corners;
        for (int corner = 0; corner < 8; ++corner) {
            double point[3];
            box.GetCorner(corner, point);
            corners.append(*view.project({point[0], point[1], point[2]}, layout.plot));
        }
        QImage image(kSize, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintSpaceAxes(painter, layout, box, view, {"I", "II", "III"});
        painter.end();
        const double ink = inkIn(image, image.rect());
        QVERIFY2(ink > 0.0008 * axes, QByteArray::number(ink));
        // Triangles of corners make up the whole of what the box covers.
        QPainterPath covered;
        for (int a = 0; a < 8; ++a)
            for (int b = 0; b < a; ++b)
                for (int c = 0; c < b; ++c)
                    covered = covered.united([&] {
                        QPainterPath triangle;
                        triangle.addPolygon(QPolygonF({corners[a], corners[b], corners[c]}));
                        return triangle;
                    }());
        painter.begin(&image);
        painter.setClipPath(covered);
        painter.setClipping(true);
        painter.fillRect(image.rect(), Qt::white);
        painter.end();
        QCOMPARE(inkIn(image, image.rect()), ink);
        // Two lines at least of each axis, on as many faces as are behind.
        QVERIFY(spaceGrid(layout, box, view).size() >= static_cast<std::size_t>(2 * axes));
    }

    void badPictures()
    {
        openDemo("field2d");
        const CvlUniqueId frame = document().activeFrameId();
        QString error;
        QVERIFY(renderToImage(frame, {0, 100}, &error).isNull());
        QVERIFY(error.contains("0") && error.contains("100"));
        QVERIFY(renderToImage(frame, {100, 100000}, &error).isNull());
        QVERIFY(!error.isEmpty());
        QVERIFY(renderToImage(frame + 1, kSize, &error).isNull());
        QVERIFY(!error.isEmpty());
        QVERIFY(!renderToImage(frame, {1, 1}, &error).isNull());
        QVERIFY(error.isEmpty());
        document().execute(host::DetachData {});
        QVERIFY(renderToImage(frame, kSize, &error).isNull());
        QVERIFY(renderToImage(frame, kSize, nullptr).isNull());
    }

    void windowShowsThePicture()
    {
        openDemo("field2d");
        write("FieldLayers/ShowContour", "", 1);
        ShownPlot shown;
        const QImage window = shown.grabbed();
        const double change = shareOfChange(window, shown.view.render(kSize, nullptr));
        QVERIFY2(change < 0.05, QByteArray::number(change)); // jagged lines differ more
        write("FieldMap/Contour/Show", "all", 0);
        shown.settle();
        QVERIFY(shareOfChange(window, shown.grabbed()) > 0.2);
    }

    void partsMakeTheSamePicture_data()
    {
        const Rows<int> row;
        row("opaque", 0);
        row("translucent", 1);
    }

    void partsMakeTheSamePicture()
    {
        const auto [translucent] = currentRow<int>();
        openDemo("kinds");
        write("FieldLayers/ShowShade", "", 1);
        write("FieldMap/Mesh/MeshType", "2-5", MeshType_WireFrame); // in front
        write("FieldMap/Surfaces/SurfacesToPlot", "1,4", SurfacesToPlot_BoundaryCellFaces);
        const QImage opaque = picture();
        write("FieldLayers/UseTranslucency", "", translucent);
        write("FieldMap/Effects/UseTranslucency", "all", 1);
        QCOMPARE(shareOfChange(picture(), opaque) > 0.02, translucent != 0);
        vtkNew<vtkRenderWindow> window;
        window->SetOffScreenRendering(1);
        window->SetSize(kSize.width(), kSize.height());
        FieldView view(std::make_shared<SurfaceCache>());
        view.attach(window);
        view.setSize(kSize, 1.0);
        view.scene().setFrame(document().activeFrameId());
        view.scene().advance(-1);
        view.prepare();
        const auto drawn = [&] {
            window->Render();
            vtkNew<vtkUnsignedCharArray> pixels;
            window->GetPixelData(0, 0, kSize.width() - 1, kSize.height() - 1, 0, pixels);
            return QByteArray(reinterpret_cast<const char*>(pixels->GetPointer(0)),
                              static_cast<int>(pixels->GetNumberOfValues()));
        };
        const QByteArray whole = drawn();
        int parts = 1;
        view.setSorted(false); // while it is moved
        QCOMPARE(drawn() != whole, translucent != 0);
        view.setSorted(true);
        QVERIFY(drawn() == whole);
        view.parts().begin(1);
        QVERIFY(drawn() != whole);
        for (; view.parts().hasMore(); ++parts) {
            view.parts().goOn(1);
            drawn();
        }
        QVERIFY(parts >= 4);
        QVERIFY(drawn() == whole);
        QCOMPARE(view.parts().drawn(), view.scene().drawingCost());
    }

    void largePicturesCanBeCancelled()
    {
        openDemo("kinds"); // some in front of others
        write("FieldLayers/ShowShade", "", 1);
        write("FieldMap/Surfaces/SurfacesToPlot", "1,4", SurfacesToPlot_BoundaryCellFaces);
        ShownPlot shown;
        shown.canvas().setPartSize(1);
        const QImage complete = shown.grabbed();
        shown.view.requestRedraw();
        while (!shown.canvas().isUnfinished())
            QCoreApplication::processEvents();
        const auto [done, all] = shown.canvas().drawingProgress();
        QVERIFY(done > 0 && done < all);
        shown.view.cancelWork();
        QVERIFY(!shown.view.isBusy());
        QVERIFY(shareOfChange(shown.grabbed(), complete) > 0.0);
        shown.view.resumeWork();
        shown.settle();
        QCOMPARE(shareOfChange(shown.grabbed(), complete), 0.0);
    }

    void oneRedrawPerIdleMoment()
    {
        openDemo("field2d");
        ShownPlot shown;
        const int before = shown.view.redrawCount();
        for (int color = 0; color < 10; ++color)
            write("FieldMap/Mesh/Color", "all", color);
        document().undo().undo();
        QCOMPARE(shown.view.redrawCount(), before);
        shown.settle();
        QCOMPARE(shown.view.redrawCount(), before + 1);
        write("FieldMap/Group", "all", 3); // draws nothing
        document().execute(host::RenameZone {1, "wing"});
        shown.settle();
        QCOMPARE(shown.view.redrawCount(), before + 1);
    }

    void hiddenCanvasDoesNothing()
    {
        openDemo("field2d");
        ShownPlot shown;
        shown.view.hide();
        shown.settle();
        const int before = shown.view.redrawCount();
        const auto& scene = shown.canvas().scene();
        const std::int64_t built = scene.layer(FieldLayer::Mesh).counters().built;
        write("FieldMap/Mesh/LinePattern", "all", 1);
        shown.settle();
        QCOMPARE(shown.view.redrawCount(), before);
        QCOMPARE(scene.layer(FieldLayer::Mesh).counters().built, built);
        shown.view.show();
        QTRY_COMPARE(scene.layer(FieldLayer::Mesh).counters().built, built + 12);
    }

    void clicksPickZones()
    {
        openDemo("field2d"); // four columns, three rows, counted from the lower left
        ShownPlot shown;
        QSignalSpy picked(&shown.view, &FrameView::zonePicked);
        const QPoint middle = shown.middle();
        QTest::mouseClick(shown.target(), Qt::LeftButton, {}, middle);
        QCOMPARE(picked.size(), 1);
        const CvlInt64 zone = picked[0][0].value<CvlInt64>();
        QVERIFY(zone >= 1 && zone <= 12);
        QCOMPARE(picked[0][1].toBool(), false);
        activate(QByteArray::number(static_cast<qlonglong>(zone)), false);
        shown.settle();
        picked.clear();
        QTest::mouseClick(shown.target(), Qt::LeftButton, {}, middle);
        QVERIFY(picked[0][0].value<CvlInt64>() != zone);
        document().undo().undo();
        shown.settle();
        picked.clear();
        QTest::mouseDClick(shown.target(), Qt::LeftButton, {}, middle);
        QTest::mouseRelease(shown.target(), Qt::LeftButton, {}, middle);
        QCOMPARE(picked.last()[0].value<CvlInt64>(), zone);
        QCOMPARE(picked.last()[1].toBool(), true);
        picked.clear();
        QTest::mouseClick(shown.target(), Qt::LeftButton, {}, {2, 2});
        QCOMPARE(picked[0][0].value<CvlInt64>(), 0);
        picked.clear();
        shown.drag(middle, middle + QPoint(60, 30));
        QCOMPARE(picked.size(), 0);
    }

    void dragAndWheelMoveTheView()
    {
        for (const char* demo : {"field2d", "field3d"}) {
            openDemo(demo);
            ShownPlot shown;
            const QImage fitted = shown.grabbed();
            const QPoint middle = shown.middle();
            const int threshold = QApplication::startDragDistance();
            for (const int way : {1, threshold}) { // a hand that trembles; a drag that begins
                shown.drag(middle, middle + QPoint(way, 0));
                QCOMPARE(shown.grabbed(), fitted);
                QCOMPARE(shown.fieldView().isFitted(), way < threshold);
            }
            shown.drag(middle, middle + QPoint(60, 30));
            const QImage dragged = shown.grabbed();
            QVERIFY(shareOfChange(fitted, dragged) > 0.01);
            QWheelEvent wheel(middle, shown.target()->mapToGlobal(middle), {}, {0, 240},
                              Qt::NoButton, {}, Qt::NoScrollPhase, false);
            const double before = shown.fieldView().camera().parallelScale;
            QCoreApplication::sendEvent(shown.target(), &wheel);
            shown.settle();
            QVERIFY(shareOfChange(dragged, shown.grabbed()) > 0.01);
            if (document().activeFrame()->plotType() == PlotType_Field2D)
                QVERIFY(shown.fieldView().camera().parallelScale < before); // nearer
            // The picture is of the view; letters are no commands.
            QTest::keyClick(shown.target(), Qt::Key_R);
            shown.settle();
            QVERIFY(shareOfChange(fitted, shown.view.render(kSize, nullptr)) > 0.01);
            shown.view.fitView();
            shown.settle();
            QVERIFY(shareOfChange(fitted, shown.grabbed()) < 0.001);
        }
    }

    void boxesFillThePlot_data()
    {
        const Rows<const char*, bool> row;
        row("plane", "field2d", false);
        row("space", "field3d", false);
        row("space in parallel", "field3d", true);
    }
    /// What is in the middle of the box comes into that of the plot, and the view before back.
    void boxesFillThePlot()
    {
        const auto [demo, isParallel] = currentRow<const char*, bool>();
        openDemo(demo);
        ShownPlot shown;
        shown.canvas().setParallel(isParallel);
        QCOMPARE(shown.canvas().isParallel(), isParallel);
        shown.view.requestRedraw();
        shown.settle();
        const QImage before = shown.grabbed();
        const QPoint place = shown.middle() + QPoint(40, 25);
        const QPoint half(30, 25);
        const auto wanted = shown.fieldView().placeAt(place);
        QVERIFY(wanted);
        shown.view.setZoomsToBox(true);
        shown.drag(place - half, place + half);
        QVERIFY(shareOfChange(before, shown.grabbed()) > 0.02);
        const auto seen = shown.fieldView().camera().focalPoint;
        for (const std::size_t axis : {0, 1})
            QVERIFY(std::abs(seen[axis] - (*wanted)[axis]) < 0.05);
        shown.view.showPreviousView();
        shown.settle();
        QVERIFY(shareOfChange(before, shown.grabbed()) < 0.001);
        shown.canvas().zoomToBox({5000, 5000, 10, 10});
        shown.view.requestRedraw();
        shown.settle();
        QVERIFY(!shown.canvas().seesSomething());
        QVERIFY(shown.canvas().zoomToMaps(host::allUpTo(1)));
        shown.view.requestRedraw();
        shown.settle();
        QVERIFY(shown.canvas().seesSomething());
        QVERIFY(!shown.canvas().zoomToMaps({}));
    }

    /// The inside of a square has no pixel of it.
    void anEmptyInsideIsNothing()
    {
        openSquares(PlotType_Field2D, false);
        ShownPlot shown;
        QVERIFY(shown.canvas().seesSomething());
        shown.canvas().zoomToBox(QRectF(shown.middle(), QSizeF(10, 10)));
        shown.view.requestRedraw();
        shown.settle();
        QVERIFY(!shown.canvas().seesSomething());
    }

    /// Also where another canvas, or none, hears of the button that is let go.
    void anotherPlotEndsDrags()
    {
        openDemo("field3d");
        ShownPlot shown;
        const auto moveTo = [&](const QPoint& to, Qt::MouseButtons buttons) {
            QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, buttons, {});
            QCoreApplication::sendEvent(shown.target(), &move);
            shown.settle();
        };
        for (const bool isBox : {false, true}) {
            QSignalSpy ends(&shown.view, &FrameView::boxEnded);
            shown.view.setZoomsToBox(isBox);
            QTest::mousePress(shown.target(), Qt::LeftButton, {}, shown.middle());
            moveTo(shown.middle() + QPoint(30, 20), Qt::LeftButton);
            write("PlotType", "", PlotType_Field2D);
            shown.settle();
            QCOMPARE(ends.count(), isBox ? 1 : 0);
            QTest::mouseRelease(shown.target(), Qt::LeftButton, {}, shown.middle());
            write("PlotType", "", PlotType_Field3D);
            shown.settle();
            const QImage before = shown.grabbed();
            moveTo(shown.middle() - QPoint(50, 50), Qt::NoButton);
            QCOMPARE(shown.grabbed(), before);
        }
    }

    /// Along an axis and back to the corner; outlines are on the screen only.
    void presetsAndOutlines()
    {
        openDemo("field3d");
        ShownPlot shown;
        const QImage corner = shown.grabbed();
        QList<QImage> pictures;
        for (const ViewPreset preset :
             {ViewPreset::X, ViewPreset::Y, ViewPreset::Z, ViewPreset::Corner}) {
            shown.canvas().lookFrom(preset);
            shown.view.requestRedraw();
            shown.settle();
            QVERIFY(shown.canvas().seesSomething());
            for (const QImage& other : std::as_const(pictures))
                QVERIFY(shareOfChange(other, shown.grabbed()) > 0.01);
            pictures << shown.grabbed();
            // A document keeps it.
            const std::string stored = viewText(shown.canvas().view(), PlotType_Field3D);
            QCOMPARE(stored.empty(), preset == ViewPreset::Corner);
            shown.canvas().setView(std::any());
            shown.canvas().setView(viewOf(stored, PlotType_Field3D));
            shown.view.requestRedraw();
            shown.settle();
            QVERIFY(shareOfChange(pictures.last(), shown.grabbed()) < 0.001);
        }
        QCOMPARE(shareOfChange(corner, pictures.last()), 0.0);
        const QImage saved = shown.view.render(kSize, nullptr);
        shown.view.setOutlined(host::allUpTo(2));
        QVERIFY(shareOfChange(corner, shown.grabbed()) > 0.002);
        QCOMPARE(shown.view.render(kSize, nullptr), saved);
    }

    /// Only a click of the right button opens a menu.
    void mouseTellsWhatIsThere()
    {
        openDemo("field2d");
        ShownPlot shown;
        QSignalSpy menus(&shown.view, &FrameView::menuWanted);
        QSignalSpy told(&shown.view, &FrameView::probed);
        const QPoint place = shown.middle() + QPoint(20, 15);
        const CvlInt64 zone = shown.fieldView().zoneAt(place);
        QTest::mouseClick(shown.target(), Qt::RightButton, {}, place);
        QTRY_COMPARE(menus.size(), 1);
        QCOMPARE(menus[0][0].value<CvlInt64>(), zone);
        QTest::mousePress(shown.target(), Qt::RightButton, {}, place);
        QMouseEvent move(QEvent::MouseMove, place + QPoint(30, 0), Qt::NoButton, Qt::RightButton,
                         {});
        QCoreApplication::sendEvent(shown.target(), &move);
        QTest::mouseRelease(shown.target(), Qt::RightButton, {}, place + QPoint(30, 0));
        shown.view.fitView();
        shown.settle();
        QMouseEvent hover(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(shown.target(), &hover);
        const QString expected = QStringLiteral("Zone %1:").arg(zone);
        QTRY_VERIFY2(!told.isEmpty() && told.last()[0].toString().contains(expected),
                     qPrintable(told.isEmpty() ? QString() : told.last()[0].toString()));
        QVERIFY(told.last()[0].toString().startsWith("X = "));
        QCOMPARE(menus.size(), 1);
    }

    void legendsAreMovedByHand()
    {
        for (const char* demo : {"field2d", "field3d"}) {
            openDemo(demo);
            write("FieldLayers/ShowContour", "", 1);
            write("FieldMap/Surfaces/SurfacesToPlot", "all", SurfacesToPlot_BoundaryCellFaces);
            ShownPlot shown;
            const auto corner = [&] { return *shown.fieldView().legendCorner(1); };
            const QPointF before = corner();
            const auto hold =
                QPointF(before.x() * kSize.width(), before.y() * kSize.height()) / 100.0;
            const auto place = shown.fieldView().camera().position;
            const int steps = document().undo().stepCount();
            shown.drag(hold.toPoint() + QPoint(5, 5), hold.toPoint() + QPoint(-95, 205));
            QCOMPARE(document().undo().stepCount(), steps + 1);
            QVERIFY(std::abs(corner().x() - before.x() + 10000.0 / kSize.width()) < 0.01);
            QVERIFY(corner().y() > before.y() + 5.0);
            QCOMPARE(shown.canvas().proposal(style::contourGroups.legendX, 1), corner().x());
            document().undo().undo();
            shown.settle();
            QCOMPARE(corner(), before);
            QCOMPARE(shown.fieldView().camera().position, place); // the hand did not turn it
        }
    }

    /// What is proposed for the ends of an axis is what the plot shows along it.
    void axesShowTheirRange()
    {
        constexpr const auto& kAxes = style::fieldAxes;
        for (const char* demo : {"field2d", "field3d"}) {
            openDemo(demo);
            ShownPlot shown;
            const auto ends = [&](const style::FieldAxis& axis) {
                return std::pair(*shown.canvas().proposal(axis.rangeMin, -1),
                                 *shown.canvas().proposal(axis.rangeMax, -1));
            };
            for (const auto* axis : {&kAxes.x, &kAxes.y})
                QVERIFY(ends(*axis).first < ends(*axis).second);
            shown.drag(shown.middle(), shown.middle() + QPoint(60, 30));
            const QImage moved = shown.grabbed();
            write("FieldAxes/Y/RangeMin", "", -2);
            write("FieldAxes/Y/RangeMax", "", 8);
            write("FieldAxes/Y/AutomaticRange", "", 0);
            shown.settle(); // it fits, whatever was seen before
            QVERIFY(shareOfChange(shown.grabbed(), moved) > 0.01);
            const auto [least, most] = ends(kAxes.y);
            const bool isFlat = document().activeFrame()->plotType() == PlotType_Field2D;
            QVERIFY(!isFlat || (std::abs(least + most - 6.0) < 0.01 && least <= -2.0));
            const QImage plain = shown.grabbed();
            write("FieldAxes/ShowGrid", "", 1);
            shown.settle();
            QVERIFY(shareOfChange(shown.grabbed(), plain) > 0.005);
        }
    }

    void viewsAreKeptByFrameAndPlotType()
    {
        openDemo("field3d");
        ShownPlot shown;
        const QPoint middle = shown.middle();
        shown.drag(middle, middle + QPoint(80, 40));
        const QImage turned = shown.grabbed();
        write("PlotType", "", PlotType_Field2D);
        shown.settle();
        const QImage flat = shown.grabbed();
        QVERIFY(shareOfChange(flat, turned) > 0.02);
        write("PlotType", "", PlotType_Field3D);
        shown.settle();
        QVERIFY(shareOfChange(shown.grabbed(), turned) < 0.001);

        document().execute(host::AddFrame {});
        std::string error;
        QVERIFY(samples::openDemo("field2d", 0, error));
        shown.settle();
        QVERIFY(shareOfChange(shown.grabbed(), turned) > 0.02);
        document().execute(host::ActivateFrame {1});
        shown.settle();
        QVERIFY(shareOfChange(shown.grabbed(), turned) < 0.001);
    }

    void viewWidensForOtherTimes()
    {
        openSquares(PlotType_Field2D, true);
        ShownPlot shown;
        const auto right = [&] { return shown.fieldView().camera().fitBox.GetMaxPoint()[0]; };
        QCOMPARE(right(), 1.0);
        document().execute(host::SetSolutionTime {2.0});
        shown.settle();
        QCOMPARE(right(), 21.0);
        QCOMPARE(shown.fieldView().camera().fitBox.GetMinPoint()[0], 0.0);
        document().execute(host::SetSolutionTime {1.0}); // inside of what is seen already
        shown.settle();
        QCOMPARE(right(), 21.0);
        shown.view.fitView();
        shown.settle();
        QCOMPARE(right(), 11.0);
        const QPoint middle = shown.middle();
        shown.drag(middle, middle + QPoint(60, 30));
        document().execute(host::SetSolutionTime {2.0}); // the user's view stays
        shown.settle();
        QCOMPARE(right(), 11.0);
    }

    void missingOpenGlIsNamed()
    {
        const auto problemWith = [](const QString& variable, const QString& value) {
            return outputWith({{kReportProblem, "1"}, {variable, value}});
        };
        const QString old = problemWith("MESA_GL_VERSION_OVERRIDE", "2.1");
        QVERIFY2(old.contains("OpenGL 3.2") && old.contains("libgl1-mesa-dri"), qPrintable(old));
        QVERIFY(old.contains("no picture, no crash"));
        const QString other = problemWith("QT_QPA_PLATFORM", "offscreen");
        QVERIFY2(other.contains("X server") && other.contains("offscreen"), qPrintable(other));
        const QString fine = problemWith("MESA_GL_VERSION_OVERRIDE", "");
        QVERIFY2(fine.contains("a picture"), qPrintable(fine));
    }

    void everyPixelRatioShowsTheSame()
    {
        const auto zonesAt = [](const QString& ratio) {
            return outputWith({{kReportZones, "1"}, {"QT_SCALE_FACTOR", ratio}}).split(' ');
        };
        const QStringList plain = zonesAt("1");
        QVERIFY2(plain.size() > 500, qPrintable(plain.join(' ')));
        for (const char* ratio : {"1.5", "2"}) {
            const QStringList scaled = zonesAt(ratio);
            QCOMPARE(scaled.size(), plain.size());
            int different = 0; // at the rims of zones
            for (int i = 0; i < plain.size(); ++i)
                different += plain[i] != scaled[i] ? 1 : 0;
            QVERIFY2(different < plain.size() / 50, QByteArray::number(different));
        }
    }

    void everyRunDrawsTheSame()
    {
        const auto run = [] { return outputWith({{kReportPictures, "1"}}).split('\n'); };
        const QStringList first = run();
        QCOMPARE(first.size() - 1, 4 + static_cast<int>(host::io::sampleList().size()));
        for (int i = 0; i < 2; ++i)
            QCOMPARE(run(), first);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(kReportProblem))
        return reportOpenGl();
    if (qEnvironmentVariableIsSet(kReportZones))
        return reportZones();
    if (qEnvironmentVariableIsSet(kReportPictures))
        return reportPictures();
    tst_FieldCanvas test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_field_canvas.moc"
