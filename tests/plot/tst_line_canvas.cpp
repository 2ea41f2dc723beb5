// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plot/frame_view.h"
#include "plot/line/fit_report.h"
#include "plot/line/line_canvas.h"
#include "plot/line/stroked_line.h"
#include "plot/render.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkDoubleArray.h>
#include <vtkImageData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <functional>
#include <numeric>
#include <random>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static constexpr QSize kSize {600, 500};

static void turnWheel(QWidget& widget, const QPointF& at)
{
    QWheelEvent wheel(at, widget.mapToGlobal(at.toPoint()), {}, {0, 240}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &wheel);
}

struct ShownCanvas
{
    ShownCanvas()
    {
        view.resize(kSize);
        view.show();
        settle();
    }
    void settle()
    {
        do {
            QCoreApplication::processEvents();
        } while (view.isBusy());
    }
    LineCanvas& canvas() { return *view.findChild<LineCanvas*>(); }
    LinePlot& scene() { return canvas().scene(); }
    QCustomPlot& plot() { return canvas().plot(); }
    const LineInk& ink() { return scene().chart().ink(); }
    /// The line of a map, or null.
    const StrokedLine* find(int map)
    {
        constexpr std::size_t kLines = 2; // the layer
        const auto found = ink().shapes().find({kLines, map});
        return found == ink().shapes().end()
            ? nullptr
            : dynamic_cast<const StrokedLine*>(found->second.shape.get());
    }
    const StrokedLine& line(int map) { return *find(map); }
    int lineCount()
    {
        int count = 0;
        for (int map = 1; map <= LinePlot::kLargestPlot + 5; ++map)
            count += find(map) ? 1 : 0;
        return count;
    }

    FrameView view;
};

/// A zone of points without any order.
class Cloud : public host::ZoneSource
{
public:
    static constexpr int kPoints = 800'000;
    vtkSmartPointer<vtkDataSet> zone(std::int64_t) const override
    {
        std::mt19937 generator(1);
        const vtkNew<vtkPoints> points;
        for (int i = 0; i < kPoints; ++i) {
            const auto x = static_cast<double>(generator());
            points->InsertNextPoint(x, static_cast<double>(generator()), 0.0);
        }
        auto cloud = vtkSmartPointer<vtkPolyData>::New();
        cloud->SetPoints(points);
        return cloud;
    }
};

static void openCloud()
{
    document().clear();
    auto data = std::make_shared<host::DataSet>();
    data->variables = {{"X", {}, {}, 0}, {"Y", {}, {}, 1}};
    host::ZoneInfo zone;
    zone.pointCount = Cloud::kPoints;
    data->zones = {zone};
    data->source = std::make_shared<Cloud>();
    document().execute(host::AttachData {{}, data, PlotType_LineXY, 1});
}

class tst_LineCanvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void curvesOfActiveMaps()
    {
        openDemo("xy");
        ShownCanvas shown;
        QCOMPARE(shown.lineCount(), 6);
        QCOMPARE(shown.line(1).points().size(), std::size_t(101));
        QVERIFY(shown.plot().axisRect()->axis(QCPAxis::atBottom)->range().contains(0.0));
        write("LineMap/Lines/Show", "2", 0);
        shown.settle();
        QCOMPARE(shown.lineCount(), 5);
        write("LinePlotLayers/ShowLines", "", 0);
        shown.settle();
        QVERIFY(!shown.ink().isShown({2, 1}));
        document().undo().undo();
        document().undo().undo();
        shown.settle();
        QCOMPARE(shown.lineCount(), 6);
        document().execute(host::DeleteMaps {mapsOf("1-4")});
        shown.settle();
        QCOMPARE(shown.lineCount(), 2);
        document().clear();
        shown.settle();
        QCOMPARE(shown.lineCount(), 0);
    }

    void pens_data()
    {
        const Rows<double, int, double, double, int> row;
        row("thin lines have a pixel", 0.01, 0, 2.0, 1.0, 0);
        row("percent of the height", 1.0, 0, 2.0, 5.0, 0);
        row("dashed", 0.4, 1, 4.0, 2.0, 2);
        row("dash dot dot", 0.4, 5, 4.0, 2.0, 6);
    }

    void pens()
    {
        const auto [thickness, pattern, length, width, dashes] =
            currentRow<double, int, double, double, int>();
        openDemo("xy");
        write("LineMap/Lines/Color", "1", 4);
        write("LineMap/Lines/LineThickness", "1", thickness);
        write("LineMap/Lines/LinePattern", "1", pattern);
        write("LineMap/Lines/PatternLength", "1", length);
        ShownCanvas shown;
        const LineStroke look = shown.line(1).stroke();
        const host::Rgb color = document().color(4);
        QCOMPARE(look.color, QColor(color.red, color.green, color.blue));
        QCOMPARE(look.width, width);
        QCOMPARE(look.pattern.size(), std::size_t(dashes));
        const double period = std::accumulate(look.pattern.begin(), look.pattern.end(), 0.0);
        QCOMPARE(period, dashes > 0 ? length / 100 * kSize.height() : 0.0);
    }

    void editsTouchWhatTheyName()
    {
        openDemo("xy", 50);
        ShownCanvas shown;
        const std::int64_t before = shown.scene().syncCount();
        const int redraws = shown.view.redrawCount();
        write("LineMap/Lines/Color", "3,7", 9);
        write("LineMap/Lines/LineThickness", "7", 1);
        shown.settle();
        QCOMPARE(shown.scene().syncCount() - before, 2);
        QCOMPARE(shown.view.redrawCount(), redraws + 1);
        write("FieldMap/Mesh/Color", "1", 3);
        shown.settle();
        QCOMPARE(shown.view.redrawCount(), redraws + 1);
        write("LineMap/Assign/YAxisVar", "3", 5);
        shown.settle();
        QCOMPARE(shown.scene().syncCount() - before, 3);
        QVERIFY(shown.line(3).points().y(50) != shown.line(9).points().y(50));
    }

    void zonesWithoutTheVariable()
    {
        openDemo("field2d");
        document().execute(host::CreateLineMaps {2});
        write("PlotType", "", PlotType_LineXY);
        ShownCanvas shown;
        QCOMPARE(shown.lineCount(), 2);
        QVERIFY(!shown.view.render(kSize, nullptr).isNull());
        document().execute(host::DetachData {});
        shown.settle();
        QCOMPARE(shown.lineCount(), 0);
    }

    /// Values of the points come to the cells, also for error bars.
    void cellsOverPoints()
    {
        struct Row : host::ZoneSource
        {
            vtkSmartPointer<vtkDataSet> zone(std::int64_t) const override
            {
                auto row = vtkSmartPointer<vtkImageData>::New();
                row->SetDimensions(3, 1, 1);
                const vtkNew<vtkDoubleArray> values;
                values->SetName("v");
                values->InsertNextValue(7.0);
                values->InsertNextValue(9.0);
                row->GetCellData()->AddArray(values);
                return row;
            }
        };
        host::DataSet data;
        data.variables = {{"X", {}, {}, 0}, {"v", {}, "v", 0}};
        data.zones = {host::ZoneInfo {"row", true, {{3, 1, 1}}}};
        data.source = std::make_shared<Row>();
        const LinePoints points = linePoints(data, {1, 1, 2, 0, 0, 0, {}});
        QCOMPARE(points.first, (std::vector<double> {0.5, 1.5}));
        QCOMPARE(points.second, (std::vector<double> {7.0, 9.0}));
        QCOMPARE(linePoints(data, {1, 1, 1, 0, 2, 0, {}}).first, points.first); // its error bars
    }

    void polarLines()
    {
        openDemo("polar");
        write("LineMap/Lines/Color", "all", 2);
        write("LineMap/Lines/LineThickness", "all", 1);
        const host::Rgb color = document().color(2);
        const QImage image = renderToImage(document().activeFrameId(), kSize, nullptr);
        const double share = shareOfColor(image, QColor(color.red, color.green, color.blue));
        QVERIFY2(share > 0.005, QByteArray::number(share));
        write("LineMap/Lines/Show", "all", 0);
        const QImage empty = renderToImage(document().activeFrameId(), kSize, nullptr);
        QVERIFY(shareOfColor(empty, QColor(color.red, color.green, color.blue)) < share / 5);

        // From one kind of axes to the other and back.
        ShownCanvas shown;
        QVERIFY(shown.scene().isPolar());
        write("PlotType", "", PlotType_LineXY);
        shown.settle();
        QVERIFY(!shown.scene().isPolar());
        QCOMPARE(shown.lineCount(), 0);
        document().undo().undo();
        document().undo().undo();
        shown.settle();
        QVERIFY(shown.scene().isPolar());
    }

    void titles()
    {
        openDemo("xy");
        ShownCanvas shown;
        const auto title = [&](QCPAxis::AxisType side) {
            return shown.plot().axisRect()->axis(side)->label();
        };
        QCOMPARE(title(QCPAxis::atBottom), QStringLiteral("Time"));
        QCOMPARE(title(QCPAxis::atLeft), QStringLiteral("Force, Moment, Power"));
        write("LineMap/Assign/YAxisVar", "4", 5);
        write("LineMap/Assign/YAxisVar", "5", 6);
        shown.settle();
        QVERIFY(title(QCPAxis::atLeft).isEmpty()); // the legend says more
        write("LineLegend/Show", "", 0);
        shown.settle();
        QCOMPARE(title(QCPAxis::atLeft), QStringLiteral("Force, Moment, Power, Error, \u2026"));
        document().execute(host::RenameVariable {2, "Kraft"});
        write("LineMap/Lines/Show", "2-6", 0);
        shown.settle();
        QCOMPARE(title(QCPAxis::atLeft), QStringLiteral("Kraft"));
        for (const auto& [mode, isEmpty] : {std::pair(0, false), std::pair(2, true)}) {
            write("LineLegend/Show", "", 1);
            write("LineMap/Assign/ShowInLegend", "all", mode); // what the title says, too
            shown.settle();
            QCOMPARE(shown.scene().legend().box().isEmpty(), isEmpty);
        }
        document().execute(host::RenameLineMaps {host::allUpTo(1), "lift"});
        shown.settle();
        QVERIFY(!shown.scene().legend().box().isEmpty());
    }

    void axesInUse()
    {
        openDemo("xy");
        ShownCanvas shown;
        QCPAxisRect& box = *shown.plot().axisRect();
        const auto visible = [&](QCPAxis::AxisType side) {
            QList<QCPAxis*> axes = box.axes(side);
            axes.erase(std::remove_if(axes.begin(), axes.end(),
                                      [](const QCPAxis* axis) { return !axis->visible(); }),
                       axes.end());
            return axes;
        };
        const QCPRange before = box.axis(QCPAxis::atLeft)->range();
        write("LineMap/Assign/YAxis", "1,4", 2);
        write("LineMap/Assign/YAxis", "2", 3);
        write("LineMap/Assign/XAxis", "2", 4);
        write("LineMap/Assign/YAxisVar", "1,4", 6); // angles
        shown.settle();
        QCOMPARE(visible(QCPAxis::atLeft).size(), 2);
        QCOMPARE(visible(QCPAxis::atBottom).size(), 1);
        QCOMPARE(visible(QCPAxis::atRight).size(), 1);
        QCOMPARE(visible(QCPAxis::atTop).size(), 1);
        const QCPAxis& second = *visible(QCPAxis::atRight)[0];
        QCOMPARE(second.label(), QStringLiteral("Angle"));
        QVERIFY(second.range().upper > 300.0 && before.upper < 10.0);
        QVERIFY(box.axis(QCPAxis::atLeft)->range().upper < 10.0);
        const Polyline& points = shown.line(1).points();
        const QPoint place(
            static_cast<int>(box.axis(QCPAxis::atBottom)->coordToPixel(points.x(70))),
            static_cast<int>(second.coordToPixel(points.y(70))));
        QSignalSpy picked(&shown.view, &FrameView::lineMapPicked);
        QTest::mouseClick(&shown.plot(), Qt::LeftButton, {}, place);
        QCOMPARE(picked.last()[0].value<CvlInt64>(), 1);

        // Moved, they stay where they are, also while another plot type is shown.
        turnWheel(shown.plot(), shown.plot().rect().center());
        shown.settle();
        const QCPRange moved = second.range();
        QVERIFY(moved.upper < 340.0);
        for (const int plotType : {PlotType_Field2D, PlotType_LineXY}) {
            write("PlotType", "", plotType);
            shown.settle();
        }
        QCOMPARE(shown.plot().axisRect()->axes(QCPAxis::atRight)[1]->range(), moved);
        write("LineMap/Assign/YAxis", "1,4", 1);
        shown.settle();
        QVERIFY(!shown.plot().axisRect()->axes(QCPAxis::atRight)[1]->visible());
    }

    /// What a value of the frame does; all of them change the picture, each time alike.
    void frameValues_data()
    {
        using Check = std::function<bool(ShownCanvas&)>;
        const Rows<const char*, const char*, Check> row;
        const auto axis = [](QCPAxis::AxisType side, auto check) -> Check {
            return [=](ShownCanvas& shown) { return check(*shown.plot().axisRect()->axis(side)); };
        };
        const auto plane = [](auto check) -> Check {
            return [=](ShownCanvas& shown) { return check(shown.scene().chart().plane({})); };
        };
        const Check any = [](ShownCanvas&) { return true; };
        const Check oneNote = [](ShownCanvas& shown) { return shown.scene().notes().size() == 1; };
        row("range", "xy", "LineAxes/X/AutomaticRange[1]=0 LineAxes/X/RangeMax[1]=3",
            axis(QCPAxis::atBottom, [](auto& x) { return x.range() == QCPRange(0, 3); }));
        row("range far from 0", "xy",
            "LineAxes/X/AutomaticRange[1]=0 LineAxes/X/RangeMin[1]=3.0000001 "
            "LineAxes/X/RangeMax[1]=3.0000002",
            axis(QCPAxis::atBottom, [](auto& x) {
                return x.tickVectorLabels().size() > 2
                    && x.tickVectorLabels().toList().removeDuplicates() == 0;
            }));
        row("powers", "xy",
            "LineAxes/Y/Scale[1]=1 LineAxes/Y/AutomaticRange[1]=0 LineAxes/Y/RangeMin[1]=1e-4 "
            "LineAxes/Y/RangeMax[1]=1",
            axis(QCPAxis::atLeft, [](auto& y) {
                return y.tickVectorLabels().contains(QStringLiteral("10\u207b\u2074"));
            }));
        row("logarithmic", "xy", "LineAxes/Y/Scale[1]=1", axis(QCPAxis::atLeft, [](auto& y) {
                return y.scaleType() == QCPAxis::stLogarithmic && y.range().lower > 0
                    && y.tickVectorLabels().size() == y.tickVector().size();
            }));
        row("a scale anew in a moved view", "xy", "LineAxes/Y/Scale[1]=1", [](ShownCanvas& shown) {
            for (const char* scale : {"LineAxes/Y/Scale[1]=0", "LineAxes/Y/Scale[1]=1"}) {
                turnWheel(shown.plot(), shown.plot().rect().center());
                QCPAxis& y = *shown.plot().axisRect()->axis(QCPAxis::atLeft);
                y.setRange(y.range().lower - 2.0, y.range().upper);
                editStyle(scale);
                shown.settle();
            }
            const AxisRange home = shown.scene().home().second[0];
            return shown.plot().axisRect()->axis(QCPAxis::atLeft)->range()
                == QCPRange(home.minimum, home.maximum);
        });
        row("points left out", "xy", "LineAxes/Y/Scale[1]=1", oneNote);
        row("minimum left out", "xy", "LineAxes/X/Scale[1]=1 LineAxes/X/AutomaticRange[1]=0",
            [](ShownCanvas& shown) { return shown.scene().notes().size() == 2; });
        row("no error bars", "xy", "LinePlotLayers/ShowErrorBars=1 LineLegend/ShowBox=0", oneNote);
        row("a fit without a line", "xy", "LinePlotLayers/ShowLines=0 Curves/CurveType=1", oneNote);
        row("reversed", "xy", "LineAxes/X/Reversed[1]=1",
            axis(QCPAxis::atBottom, [](auto& x) { return x.rangeReversed(); }));
        row("title", "xy", "LineAxes/X/Title[1]=Zeit",
            axis(QCPAxis::atBottom, [](auto& x) { return x.label() == "Zeit"; }));
        row("color", "xy", "LineAxes/Y/Color[1]=4", axis(QCPAxis::atLeft, [](auto& y) {
                const host::Rgb color = document().color(4);
                return y.tickLabelColor() == QColor(color.red, color.green, color.blue);
            }));
        row("side", "xy", "LineAxes/Y/Side[1]=2",
            axis(QCPAxis::atRight, [](auto& y) { return y.visible() && y.tickLabels(); }));
        row("angle 0", "polar", "LineAxes/Polar/ThetaStart=1",
            plane([](const LinePlane& it) { return it.place(0, 1).second > 0.9; }));
        row("clockwise", "polar", "LineAxes/Polar/Clockwise=1",
            plane([](const LinePlane& it) { return it.place(90, 1).second < -0.9; }));
        row("radii", "polar",
            "LineAxes/Polar/AutomaticRange=0 LineAxes/Polar/RangeMin=0.2 "
            "LineAxes/Polar/RangeMax=2",
            plane([](const LinePlane& it) { return it.middle == 0.2; }));
        row("polar title", "polar", "LineAxes/Polar/Title=Kraft", any);
        row("plot title", "xy", "LineFrame/Title=Kraft", [](ShownCanvas& shown) {
            return dynamic_cast<QCPTextElement*>(shown.plot().plotLayout()->element(0, 0));
        });
        row("font", "xy", "LineFrame/FontSize=4", axis(QCPAxis::atLeft, [](auto& y) {
                return y.tickLabelFont().pixelSize() == kSize.height() / 25;
            }));
        row("grid", "xy", "LineFrame/ShowGrid=0",
            axis(QCPAxis::atLeft, [](auto& y) { return !y.grid()->visible(); }));
        row("box", "xy", "LineFrame/ShowBox=0", any);
        row("no legend", "xy", "LineLegend/Show=0",
            [](ShownCanvas& shown) { return shown.scene().legend().box().isEmpty(); });
        row("legend", "xy", "LineLegend/AutomaticPlace=0 LineLegend/X=20 LineLegend/Y=100",
            [](ShownCanvas& shown) {
                const QRectF box = shown.scene().legend().box();
                return box.left() == 0.2 * kSize.width() && box.bottom() <= kSize.height();
            });
        row("bars hide", "xy", "LinePlotLayers/ShowLines=0 LinePlotLayers/ShowBarCharts=1",
            [](ShownCanvas& shown) {
                const QCPAxisRect& axes = *shown.plot().axisRect();
                const QPointF half(axes.axis(QCPAxis::atBottom)->coordToPixel(0.0),
                                   axes.axis(QCPAxis::atLeft)->coordToPixel(0.5));
                return shown.scene().chart().hiddenBy(
                    {half - QPointF(10, 10), half + QPointF(10, 10)});
            });
        row("numbers of angles hide", "polar", "LineFrame/FontSize=4", [](ShownCanvas& shown) {
            LineChart& chart = shown.scene().chart();
            const QRectF area = chart.area();
            const QSizeF number(40.0, 20.0);
            return chart.hiddenBy({{area.center().x() - 20.0, area.top()}, number})
                && !chart.hiddenBy({area.topLeft(), number});
        });
        row("legend box", "xy", "LineLegend/ShowBox=0", any);
    }

    void frameValues()
    {
        using Check = std::function<bool(ShownCanvas&)>;
        const auto [demo, values, check] = currentRow<const char*, const char*, Check>();
        openDemo(demo);
        ShownCanvas shown;
        const auto picture = [] {
            return renderToImage(document().activeFrameId(), kSize, nullptr);
        };
        const QImage before = picture();
        editStyle(values);
        shown.settle();
        QVERIFY(check(shown));
        QVERIFY(picture() != before);
        QCOMPARE(picture(), picture());
    }

    void legendIsMoved()
    {
        openDemo("xy");
        ShownCanvas shown;
        const QRectF before = shown.scene().legend().box();
        QVERIFY(shown.plot().rect().contains(before.toRect()));
        const QPoint by(-60, 40);
        QTest::mousePress(&shown.plot(), Qt::LeftButton, {}, before.center().toPoint());
        for (const QPoint& way : {by / 2, by}) {
            QMouseEvent move(QEvent::MouseMove, before.center().toPoint() + way, Qt::NoButton,
                             Qt::LeftButton, {});
            QCoreApplication::sendEvent(&shown.plot(), &move);
        }
        write("LineMap/Lines/Color", "1", 4); // slices of work do not move it
        shown.settle();
        QTest::mouseRelease(&shown.plot(), Qt::LeftButton, {}, before.center().toPoint() + by);
        shown.settle();
        QCOMPARE(shown.scene().legend().box(), before.translated(by));
        QVERIFY(!document().activeFrame()->isOn(style::lineLegend.automaticPlace));
        QCOMPARE(document().undo().stepCount(), 2);
        write("LineMap/Assign/ShowInLegend", "1", LegendShow_Never);
        shown.settle();
        QVERIFY(shown.scene().legend().box().height() < before.height());
    }

    void clickPicksALine()
    {
        openDemo("xy");
        write("LineMap/Lines/Show", "2-6", 0);
        ShownCanvas shown;
        QSignalSpy picked(&shown.view, &FrameView::lineMapPicked);
        const QCPAxisRect& axes = *shown.plot().axisRect();
        const QPoint place =
            QPointF(axes.axis(QCPAxis::atBottom)->coordToPixel(shown.line(1).points().x(30)),
                    axes.axis(QCPAxis::atLeft)->coordToPixel(shown.line(1).points().y(30)))
                .toPoint();
        QTest::mouseClick(&shown.plot(), Qt::LeftButton, {}, place);
        QCOMPARE(picked.size(), 1);
        QCOMPARE(picked[0][0].value<CvlInt64>(), 1);
        QTest::mouseDClick(&shown.plot(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(&shown.plot(), Qt::LeftButton, {}, place);
        QCOMPARE(picked.last()[1].toBool(), true);
        QTest::mouseClick(&shown.plot(), Qt::LeftButton, {}, {3, 3});
        QCOMPARE(picked.last()[0].value<CvlInt64>(), 0);

        // Half way up its bar.
        const QCPAxis& up = *axes.axis(QCPAxis::atLeft);
        editStyle("BarCharts/Show=0", "2-6");
        editStyle("LinePlotLayers/ShowLines=0 LinePlotLayers/ShowBarCharts=1", "1");
        shown.settle();
        const double half = (place.y() + up.coordToPixel(0.0)) / 2.0;
        QTest::mouseClick(&shown.plot(), Qt::LeftButton, {}, {place.x(), int(half)});
        QCOMPARE(picked.last()[0].value<CvlInt64>(), 1);

        // In a polar plot, also after another radius has come to its middle.
        std::string error;
        QVERIFY(samples::openDemo("polar", 0, error));
        shown.settle();
        turnWheel(shown.plot(), shown.plot().rect().center() + QPoint(100, 0));
        shown.settle();
        const auto* angle =
            qobject_cast<QCPPolarAxisAngular*>(shown.plot().plotLayout()->element(0, 0));
        QVERIFY(angle && angle->radialAxis()->range().lower > 0.1);
        const auto value = [](CvlInt64 variable) {
            return document().activeFrame()->data()->values(1, variable).array->GetComponent(30, 0);
        };
        const QPointF point = angle->radialAxis()->coordToPixel(value(6), value(7));
        QTest::mouseClick(&shown.plot(), Qt::LeftButton, {}, point.toPoint());
        QCOMPARE(picked.last()[0].value<CvlInt64>(), 1);
    }

    void viewsAreKept()
    {
        openDemo("xy");
        ShownCanvas shown;
        const auto across = [&] {
            return shown.plot().axisRect()->axis(QCPAxis::atBottom)->range();
        };
        const QCPRange fitted = across();
        turnWheel(shown.plot(), shown.plot().rect().center());
        shown.settle();
        const QCPRange moved = across();
        QVERIFY(moved.size() < 0.9 * fitted.size());
        QVERIFY(shown.view.render(kSize, nullptr)
                != renderToImage(document().activeFrameId(), kSize, nullptr));

        const std::any kept = shown.canvas().view();
        shown.canvas().zoomToBox({5000, 5000, 10, 10});
        QVERIFY(!shown.canvas().seesSomething());
        QVERIFY(shown.canvas().zoomToMaps(host::allUpTo(1)) && shown.canvas().seesSomething());
        shown.canvas().setView(kept);

        // Whatever changes in the frame, and while another plot type is shown.
        write("LinePlotLayers/ShowLines", "", 0);
        write("LinePlotLayers/ShowSymbols", "", 1);
        write("LinePlotLayers/ShowLines", "", 1);
        document().execute(host::CreateLineMaps {1});
        shown.settle();
        QCOMPARE(across(), moved);
        for (const int plotType : {PlotType_LinePolar, PlotType_Field2D, PlotType_LineXY}) {
            write("PlotType", "", plotType);
            shown.settle();
        }
        QCOMPARE(across(), moved);
        std::string error;
        QVERIFY(samples::openDemo("xy", 0, error));
        shown.settle();
        QCOMPARE(across(), fitted);
    }

    /// Extremes that once ended the program, or left nothing to see.
    void extremes_data()
    {
        const Rows<int, QString> row;
        row("a legend of more maps than it looks at", 1200, "LineFrame/FontSize=0.8");
        row("a range too narrow for its logarithms", 1,
            "LineAxes/X/AutomaticRange[1]=0 LineAxes/X/RangeMin[1]=5 "
            "LineAxes/X/RangeMax[1]=5.000000000000001 LineAxes/X/Scale[1]=1");
    }

    void extremes()
    {
        const auto [maps, settings] = currentRow<int, QString>();
        openDemo("xy", maps);
        editStyle(settings);
        QVERIFY(!renderToImage(document().activeFrameId(), {800, 600}, nullptr).isNull());
    }

    void badPictures()
    {
        openDemo("xy");
        for (const QSize& size : {QSize(0, 100), QSize(100'000, 100)}) {
            QString error;
            QVERIFY(renderToImage(document().activeFrameId(), size, &error).isNull());
            QVERIFY2(error.contains(QString::number(size.width())), qPrintable(error));
        }
    }

    void largestPlot()
    {
        openDemo("xy", LinePlot::kLargestPlot + 5);
        ShownCanvas shown;
        QCOMPARE(shown.lineCount(), int(LinePlot::kLargestPlot));
        QVERIFY(!shown.scene().notice().isEmpty());
        for (const char* layer :
             {"LineMap/Lines/Show", "LineMap/Symbols/Show", "LineMap/BarCharts/Show"})
            write(layer, "1-10", 0);
        shown.settle();
        QCOMPARE(shown.lineCount(), int(LinePlot::kLargestPlot) - 5);
        QVERIFY(shown.scene().notice().isEmpty());
    }

    void longWorkIsReported()
    {
        openCloud();
        FrameView view;
        view.resize(kSize);
        QSignalSpy progressed(&view, &FrameView::workProgressed);
        QSignalSpy ended(&view, &FrameView::workEnded);
        auto& canvas = dynamic_cast<LineCanvas&>(*view.canvas());
        view.show();
        QTRY_VERIFY_WITH_TIMEOUT(!progressed.isEmpty(), 60000);
        view.cancelWork();
        QTRY_VERIFY(!view.isBusy());
        QCOMPARE(ended.takeFirst()[0].toBool(), true);
        const LineInk& ink = canvas.scene().chart().ink();
        QCOMPARE(ink.missingCount(), std::int64_t(1));
        QVERIFY(!canvas.scene().notice().isEmpty());
        QTRY_COMPARE(canvas.findChild<QLabel*>()->text(), canvas.scene().notice());
        view.resumeWork();
        QTRY_VERIFY_WITH_TIMEOUT(!view.isBusy(), 60000);
        QCOMPARE(ended.takeFirst()[0].toBool(), false);
        QCOMPARE(ink.progress().first, ink.progress().second);
        const QImage drawn = ink.picture();
        canvas.plot().replot(); // for the same view nothing is drawn again
        QVERIFY(!view.isBusy());
        QCOMPARE(ink.picture(), drawn);
    }

    /// They are made beside the window, and none is seen that is not that of the style.
    void fitsOfManyPoints()
    {
        openCloud();
        write("LineMap/Curves/CurveType", "1", CurveType_PolynomialFit);
        ShownCanvas shown;
        const auto begin = [&shown](int order) {
            write("LineMap/Curves/PolyOrder", "1", order);
            QCoreApplication::processEvents();
            const QCPRange up = shown.plot().axisRect()->axis(QCPAxis::atLeft)->range();
            return !shown.find(1) && shown.scene().hasWork() && up.size() > 2.0;
        };
        QVERIFY(shown.find(1) && begin(5) && begin(2));
        shown.settle();
        QCustomPlot widget;
        LinePlot atOnce(widget);
        atOnce.setFrame(document().activeFrameId());
        QVERIFY(!atOnce.advance(-1));
        const auto bounds = [](const LineInk& ink) {
            const LineBox box = ink.shapes().at({2, 1}).shape->bounds();
            return std::vector<double> {box.left, box.right, box.low, box.high};
        };
        QCOMPARE(bounds(shown.ink()), bounds(atOnce.chart().ink()));

        QVERIFY(begin(6));
        shown.view.cancelWork();
        QVERIFY(!shown.scene().hasWork() && !shown.scene().notice().isEmpty());
        shown.view.resumeWork();
        shown.settle();
        QVERIFY(shown.find(1) && begin(8));
        write("LinePlotLayers/ShowLines", "", 0);
        shown.settle();
        QCOMPARE(shown.scene().progress().first, shown.scene().progress().second);
        write("LinePlotLayers/ShowLines", "", 1);
        shown.settle();
        QVERIFY(shown.find(1) && begin(7));
        document().execute(host::DeleteMaps {mapsOf("1")});
        shown.settle();
        QCOMPARE(shown.lineCount(), 0);
        document().undo().undo();
        shown.settle();
        QVERIFY(shown.find(1) && begin(3));
        document().clear(); // while it is fitted
    }

    void reportsOfFits()
    {
        openDemo("field2d");
        document().execute(host::CreateLineMaps {1});
        write("PlotType", "", PlotType_LineXY);
        editStyle("Curves/CurveType=1 Assign/YAxisVar=4");
        FitReports reports;
        std::optional<QString> report;
        QTRY_VERIFY((report = reports.of(*document().activeFrame(), 1)));
        const auto& zone = document().activeFrame()->data()->zone(1);
        QCOMPARE(report->count("R squared"), zone.dimensions[1]);
        QVERIFY(report->startsWith("J = 1\n") && report->contains("\n\nJ = 2\n"));
    }

    void viewChoosesTheCanvas()
    {
        document().clear();
        FrameView view;
        view.resize(kSize);
        view.show();
        QVERIFY(!view.canvas());
        const auto* hint = view.findChild<QLabel*>();
        QVERIFY(hint->text().startsWith("No data"));
        std::string error;
        QVERIFY(samples::openDemo("xy", 0, error));
        QVERIFY(qobject_cast<LineCanvas*>(view.canvas()));
        QVERIFY(samples::openDemo("field2d", 0, error));
        QCOMPARE(QByteArray(view.canvas()->metaObject()->className()),
                 QByteArray("corvala::plot::FieldCanvas"));
        QVERIFY(!view.problem().isEmpty()); // this test runs without X
        write("PlotType", "", PlotType_LinePolar);
        QVERIFY(qobject_cast<LineCanvas*>(view.canvas()));
        QVERIFY(view.problem().isEmpty());
        write("PlotType", "", PlotType_Annotation);
        QVERIFY(!view.canvas() && hint->text().startsWith("Nothing is drawn"));
        const CvlUniqueId first = document().activeFrameId();
        document().undo().undo();
        QVERIFY(view.canvas());
        document().execute(host::AddFrame {});
        QVERIFY(!view.canvas());
        document().execute(host::ActivateFrame {1});
        QCOMPARE(view.canvas()->scene().frameId(), first);
    }
};

QTEST_MAIN(tst_LineCanvas)

#include "tst_line_canvas.moc"
