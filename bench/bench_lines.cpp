// SPDX-License-Identifier: GPL-3.0-or-later
// What drawing a line of a million points costs, against one of a thousand and against the plotting
// library's own curve, in one run. Run it offscreen: QT_QPA_PLATFORM=offscreen bench_lines

#include "ratio_report.h"

#include "plot/line/line_chart.h"

#include <QApplication>

#include <cmath>
#include <random>

using namespace corvala::bench;
using namespace corvala::plot;
using benchmark::State;

namespace {

enum Kind { Signal, Unsorted };

LineData dataOf(Kind kind, std::int64_t count)
{
    std::mt19937 generator(1);
    const auto noise = [&generator] { return static_cast<double>(generator()) / 4294967296.0; };
    LineData data;
    for (std::int64_t i = 0; i < count; ++i) {
        const double place = static_cast<double>(i) / static_cast<double>(count);
        data.first.push_back(kind == Signal ? place : noise());
        data.second.push_back(kind == Signal ? std::sin(20.0 * place) + 0.2 * noise() : noise());
    }
    return data;
}

/// A window's plot, moved a little at every turn.
struct Plot
{
    Plot() { widget.resize(1000, 700); }
    void turn()
    {
        isMoved = !isMoved;
        widget.axisRect()->axis(QCPAxis::atBottom)->setRange(isMoved ? 0.1 : 0.0, 1.0);
        widget.replot(QCustomPlot::rpImmediateRefresh);
    }

    QCustomPlot widget;
    bool isMoved = false;
};

void draw(State& state)
{
    Plot plot;
    const auto chart = makeXyChart(plot.widget);
    chart->setPatience(-1);
    chart->setLine(1, dataOf(static_cast<Kind>(state.range(1)), state.range(0)));
    chart->ink().setLook(1, {Qt::blue, 2.5, {}});
    chart->fit();
    for (auto _ : state)
        plot.turn();
}

void drawWithLibrary(State& state)
{
    Plot plot;
    QCustomPlot& widget = plot.widget;
    auto* const curve = new QCPCurve(widget.xAxis, widget.yAxis);
    const LineData data = dataOf(static_cast<Kind>(state.range(1)), state.range(0));
    curve->setData(QVector<double>(data.first.begin(), data.first.end()),
                   QVector<double>(data.second.begin(), data.second.end()));
    curve->setPen(QPen(Qt::blue, 2.5));
    widget.rescaleAxes();
    for (auto _ : state)
        plot.turn();
}

void pick(State& state)
{
    Plot plot;
    const auto chart = makeXyChart(plot.widget);
    chart->setLine(1, dataOf(Signal, state.range(0)));
    chart->ink().setLook(1, {Qt::blue, 2.5, {}});
    chart->fit();
    plot.turn();
    const QPoint middle = plot.widget.axisRect()->center();
    for (auto _ : state)
        for (int y = 0; y < 100; ++y)
            benchmark::DoNotOptimize(chart->lineAt(middle + QPoint(0, y), 8.0));
}

constexpr auto kMs = benchmark::kMillisecond;
BENCHMARK(draw)
    ->Args({1000, Signal})
    ->Args({1000000, Signal})
    ->Args({1000, Unsorted})
    ->Args({1000000, Unsorted})
    ->Unit(kMs);
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
