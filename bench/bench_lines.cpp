// SPDX-License-Identifier: GPL-3.0-or-later
// What drawing a line of a million points costs, against one of a thousand and against the plotting
// library's own curve, in one run. Run it offscreen: QT_QPA_PLATFORM=offscreen bench_lines

#include "ratio_report.h"

#include "plot/line/line_chart.h"
#include "plot/line/stroked_line.h"
#include "plot/line/symbol_marks.h"
#include "vocabulary/enums.h"

#include <QApplication>

#include <cmath>
#include <random>

using namespace corvala::bench;
using namespace corvala::plot;
using benchmark::State;

namespace {

enum Kind { Signal, Unsorted };

struct Points
{
    std::vector<double> x;
    std::vector<double> y;
};

Points pointsOf(Kind kind, std::int64_t count)
{
    std::mt19937 generator(1);
    const auto noise = [&generator] { return static_cast<double>(generator()) / 4294967296.0; };
    Points points;
    for (std::int64_t i = 0; i < count; ++i) {
        const double place = static_cast<double>(i) / static_cast<double>(count);
        points.x.push_back(kind == Signal ? place : noise());
        points.y.push_back(kind == Signal ? std::sin(20.0 * place) + 0.2 * noise() : noise());
    }
    return points;
}

std::shared_ptr<const Polyline> polylineOf(Kind kind, std::int64_t count)
{
    Points points = pointsOf(kind, count);
    return std::make_shared<const Polyline>(std::move(points.x), std::move(points.y));
}

/// A window's plot of some lines, moved a little at every turn.
struct Plot
{
    Plot(Kind kind, std::int64_t points, std::int64_t lines = 1)
    {
        widget.resize(1000, 700);
        chart = makeXyChart(widget);
        chart->setPatience(-1);
        for (std::int64_t map = 1; map <= lines; ++map)
            chart->ink().set({0, map},
                             std::make_shared<StrokedLine>(polylineOf(kind, points),
                                                           LineStroke {Qt::blue, 2.5, {}}));
        chart->updateAxes(true);
        chart->fit({});
        range = chart->range();
    }
    void turn()
    {
        isMoved = !isMoved;
        range.first[0] = {isMoved ? 0.1 : 0.0, 1.0};
        chart->setRange(range);
        widget.replot(QCustomPlot::rpImmediateRefresh);
    }

    QCustomPlot widget;
    std::unique_ptr<LineChart> chart;
    ChartRange range;
    bool isMoved = false;
};

void draw(State& state)
{
    Plot plot(static_cast<Kind>(state.range(1)), state.range(0));
    for (auto _ : state)
        plot.turn();
}

void drawMany(State& state)
{
    Plot plot(Signal, 1000, state.range(0));
    for (auto _ : state)
        plot.turn();
}

void drawSymbols(State& state)
{
    Plot plot(Signal, 2);
    SymbolStyle style;
    style.path = symbolPath(GeomShape_Square, {}, FontOverride_None);
    style.line = Qt::blue;
    plot.chart->ink().set(
        {1, 1},
        std::make_shared<SymbolMarks>(MarkedPoints {polylineOf(Signal, state.range(0)), {}},
                                      std::move(style)));
    for (auto _ : state)
        plot.turn();
}

void drawWithLibrary(State& state)
{
    QCustomPlot widget;
    widget.resize(1000, 700);
    auto* const curve = new QCPCurve(widget.xAxis, widget.yAxis);
    const Points points = pointsOf(static_cast<Kind>(state.range(1)), state.range(0));
    curve->setData(QVector<double>(points.x.begin(), points.x.end()),
                   QVector<double>(points.y.begin(), points.y.end()));
    curve->setPen(QPen(Qt::blue, 2.5));
    widget.rescaleAxes();
    bool isMoved = false;
    for (auto _ : state) {
        isMoved = !isMoved;
        widget.xAxis->setRange(isMoved ? 0.1 : 0.0, 1.0);
        widget.replot(QCustomPlot::rpImmediateRefresh);
    }
}

void pick(State& state)
{
    Plot plot(Signal, state.range(0));
    plot.turn();
    const QPoint middle = plot.widget.axisRect()->center();
    for (auto _ : state)
        for (int y = 0; y < 100; ++y)
            benchmark::DoNotOptimize(plot.chart->mapAt(middle + QPoint(0, y), 8.0));
}

constexpr auto kMs = benchmark::kMillisecond;
BENCHMARK(draw)
    ->Args({1000, Signal})
    ->Args({1000000, Signal})
    ->Args({1000, Unsorted})
    ->Args({1000000, Unsorted})
    ->Unit(kMs);
BENCHMARK(drawMany)->Arg(1)->Arg(1000)->Unit(kMs);
BENCHMARK(drawSymbols)->Arg(1000)->Arg(1000000)->Unit(kMs);
BENCHMARK(drawWithLibrary)
    ->Args({1000, Signal})
    ->Args({5000, Signal})
    ->Args({1000, Unsorted})
    ->Iterations(2)
    ->Unit(kMs);
BENCHMARK(pick)->Arg(1000)->Arg(1000000)->Unit(kMs);

std::vector<Ratio> ratios()
{
    return {
        {"moving a line, 1,000,000 points against 1,000", "draw/1000000/0", "draw/1000/0", 12.0},
        {"moving a line of 1,000 points, against a plain curve", "draw/1000/0",
         "drawWithLibrary/1000/0", 1.5},
        {"moving a line of 1,000,000 points, against a plain curve of 5,000", "draw/1000000/0",
         "drawWithLibrary/5000/0", 1.0},
        {"moving 1,000 unsorted points, against a plain curve", "draw/1000/1",
         "drawWithLibrary/1000/1", 0.1},
        {"moving unsorted points, 1,000,000 against 1,000", "draw/1000000/1", "draw/1000/1", 0},
        {"moving 1,000 lines of 1,000 points against one", "drawMany/1000", "drawMany/1", 0},
        {"moving 1,000,000 symbols against 1,000", "drawSymbols/1000000", "drawSymbols/1000", 0},
        {"100 picks, 1,000,000 points against 1,000", "pick/1000000", "pick/1000", 20.0},
    };
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) {}); // offscreen
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RecordingReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);
    return reportRatios(times, ratios()) ? 0 : 1;
}
