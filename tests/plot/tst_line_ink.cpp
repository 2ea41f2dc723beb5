// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_ink.h"
#include "plot/line/stroked_line.h"
#include "plot/line/symbol_marks.h"
#include "tests/support/rows.h"
#include "vocabulary/enums.h"

#include <QPainter>
#include <QtTest>

#include <cmath>
#include <functional>
#include <random>
#include <set>

using namespace corvala::plot;
using namespace corvala::tests;

static constexpr QSize kSize {400, 300};

/// The whole picture is x and y from 0 to 1, magnified about its middle.
static LineView viewOf(double zoom)
{
    LineView view;
    view.x = {0.5, kSize.width() / 2.0, zoom * kSize.width()};
    view.y = {0.5, kSize.height() / 2.0, -zoom * kSize.height()};
    view.visible = {0.0, double(kSize.width()), 0.0, double(kSize.height())};
    return view;
}

static ChartView chartOf(const LineView& view)
{
    ChartView chart;
    chart.first[0] = view.x;
    chart.second[0] = view.y;
    chart.visible = view.visible;
    return chart;
}

using Curve = std::function<QPointF(double)>; // of a place along the line, 0 to 1
Q_DECLARE_METATYPE(Curve)

static Polyline sampled(const Curve& curve, int count)
{
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < count; ++i) {
        const QPointF point = curve(i / (count - 1.0));
        x.push_back(point.x());
        y.push_back(point.y());
    }
    return {std::move(x), std::move(y)};
}

static double noise()
{
    static std::mt19937 generator(1);
    return static_cast<double>(generator()) / generator.max();
}

/// Every point drawn by Qt, in single strokes; many times as large and made smaller, so that
/// strokes that meet do not darken each other's edges.
static QImage fullPicture(const Polyline& line, const LineView& view, const LineStroke& stroke)
{
    constexpr int kTimes = 4;
    QImage image(kTimes * kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(kTimes, kTimes);
    const bool isSolid = stroke.pattern.empty();
    QPen pen(stroke.color, stroke.width, Qt::SolidLine, isSolid ? Qt::RoundCap : Qt::FlatCap,
             Qt::RoundJoin);
    QVector<qreal> dashes;
    for (const double part : stroke.pattern)
        dashes.append(part / stroke.width);
    if (!isSolid)
        pen.setDashPattern(dashes);
    painter.setPen(pen);
    QPolygonF part;
    const int longest = isSolid ? 2 : 1'000'000; // long solid parts take Qt minutes
    for (std::size_t i = 0; i <= line.size(); ++i) {
        const bool isPoint = i < line.size() && line.isFinite(i);
        if (isPoint)
            part.append(view.pixel(line.x(i), line.y(i)));
        if (part.size() == longest || !isPoint) {
            painter.drawPolyline(part);
            part = isPoint ? QPolygonF({part.back()}) : QPolygonF();
        }
    }
    return image.scaled(kSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

static std::shared_ptr<const ChartShape> stroked(Polyline line, const LineStroke& stroke)
{
    return std::make_shared<StrokedLine>(std::make_shared<const Polyline>(std::move(line)), stroke);
}

static QImage inkPicture(Polyline line, const LineView& view, const LineStroke& stroke,
                         int slice = -1)
{
    LineInk ink;
    ink.set({0, 1}, stroked(std::move(line), stroke));
    ink.setView(chartOf(view), kSize, 1.0);
    while (ink.advance(slice)) { }
    return ink.picture();
}

/// Share of pixels whose coverage differs by more than half.
static double shareOfDifference(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += std::abs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))) > 127 ? 1 : 0;
    return double(count) / (one.width() * one.height());
}

static QPointF wave(double t)
{
    return {t, 0.5 + 0.45 * std::sin(20 * t)};
}

class tst_LineInk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reducedLikeFull_data()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const Rows<Curve, int, double, double, QVector<double>> rows;
        const auto row = [&rows](const char* name, Curve curve, int points, double zoom,
                                 double width, QVector<double> pattern = {}) {
            rows(name, curve, points, zoom, width, pattern);
        };
        row("few points", wave, 60, 1.0, 1.0);
        row("smooth", wave, 50'000, 1.0, 3.0);
        row("smooth, wide", wave, 50'000, 1.0, 30.0);
        row("smooth, magnified", wave, 50'000, 300.0, 3.0);
        row(
            "noise", [](double t) { return QPointF(t, noise()); }, 20'000, 1.0, 2.0);
        row(
            "noise, magnified", [](double t) { return QPointF(t, noise()); }, 20'000, 80.0, 2.0);
        row(
            "upwards", [](double t) { return QPointF(0.5 + 0.1 * noise(), t); }, 20'000, 1.0, 2.0);
        row(
            "there and back", [](double t) { return QPointF(0.5 + 0.4 * std::cos(300 * t), t); },
            20'000, 1.0, 1.5);
        row(
            "unsorted", [](double) { return QPointF(noise(), noise()); }, 150, 1.0, 2.0);
        row(
            "far beyond", [](double t) { return QPointF(t, noise() < 0.02 ? 1e300 : 0.5); }, 500,
            1.0, 2.0);
        row(
            "gaps", [nan](double t) { return QPointF(t, std::sin(40 * t) > 0.5 ? nan : t); },
            20'000, 1.0, 4.0);
        row(
            "gaps of infinity",
            [](double t) { return QPointF(std::fmod(t, 0.2) < 0.05 ? INFINITY : t, t); }, 20'000,
            1.0, 4.0);
        row("dashes", wave, 50, 1.0, 3.0, {12, 8});
        row("dashes of many points", wave, 5'000, 1.0, 3.0, {12, 8});
        row("dash dot, magnified", wave, 2'000, 6.0, 2.0, {20, 8, 4, 8});
        row("wide dashes round corners",
            [](double t) { return QPointF(t, 0.2 + 0.5 * (int(t * 9.0) % 2)); }, 10, 1.0, 9.0,
            {30, 20});
    }

    void reducedLikeFull()
    {
        const auto [curve, points, zoom, width, pattern] =
            currentRow<Curve, int, double, double, QVector<double>>();
        const LineStroke stroke {Qt::black, width, {pattern.begin(), pattern.end()}};
        const Polyline line = sampled(curve, points);
        const LineView view = viewOf(zoom);
        const QImage full = fullPicture(line, view, stroke);
        const QImage reduced = inkPicture(line, view, stroke);
        const double ink = 1.0 - shareOfDifference(full, QImage(full.size(), full.format()));
        const double difference = shareOfDifference(full, reduced);
        if (qEnvironmentVariableIsSet("CORVALA_KEEP_PICTURES")) {
            full.save(QStringLiteral("%1-full.png").arg(QTest::currentDataTag()));
            reduced.save(QStringLiteral("%1-reduced.png").arg(QTest::currentDataTag()));
        }
        QVERIFY2(difference < 0.005,
                 qPrintable(QStringLiteral("%1 of %2").arg(difference).arg(ink)));
    }

    /// Marks beyond the picture, and a second one in the same place, make no difference.
    void marksLikeSingleOnes_data()
    {
        const Rows<Curve, int, double, double> row;
        row("smooth", wave, 200, 1.0, 1.0);
        row("smooth, every third", wave, 3'000, 1.0, 3.0);
        row("smooth, magnified", wave, 5'000, 40.0, 1.0);
        row(
            "on each other", [](double t) { return QPointF(t, 0.5 + 0.02 * noise()); }, 5'000, 1.0,
            1.0);
    }

    void marksLikeSingleOnes()
    {
        const auto [curve, points, zoom, step] = currentRow<Curve, int, double, double>();
        const LineView view = viewOf(zoom);
        SymbolStyle style;
        style.path = symbolPath(GeomShape_Diamond, {}, FontOverride_None);
        style.size = 7.3;
        style.lineWidth = 1.4;
        style.line = Qt::blue;
        style.fill = Qt::yellow;
        LineInk reduced;
        LineInk single;
        const auto mark = [&](LineInk& ink, Polyline places, double every) {
            const auto number = static_cast<std::int64_t>(ink.shapes().size()) + 1;
            ink.set({0, number},
                    std::make_shared<SymbolMarks>(
                        MarkedPoints {std::make_shared<const Polyline>(std::move(places)),
                                      {false, every}},
                        style));
        };
        const Polyline all = sampled(curve, points);
        mark(reduced, all, step);
        std::set<std::pair<double, double>> places; // halves of pixels
        for (std::size_t i = 0; i < all.size(); i += static_cast<std::size_t>(step)) {
            const QPointF pixel = 2.0 * view.pixel(all.x(i), all.y(i));
            if (places.insert({std::floor(pixel.x()), std::floor(pixel.y())}).second)
                mark(single, Polyline({all.x(i)}, {all.y(i)}), 1.0);
        }
        for (LineInk* const ink : {&reduced, &single}) {
            ink->setView(chartOf(view), kSize, 1.0);
            ink->advance(-1);
        }
        QCOMPARE(reduced.picture(), single.picture());
    }

    void slicesDrawTheSame()
    {
        const Polyline line = sampled([](double) { return QPointF(noise(), noise()); }, 5'000);
        const LineStroke stroke {Qt::blue, 3.0, {10.0, 5.0}};
        QCOMPARE(inkPicture(line, viewOf(1.0), stroke, 0), inkPicture(line, viewOf(1.0), stroke));
    }

    /// Layers that a map is not in are cleared of it while another line is in work.
    void removalsOfNothingDisturbNothing()
    {
        const LineStroke stroke {Qt::blue, 3.0, {}};
        const auto drawn = [&](bool isDisturbed) {
            LineInk ink;
            ink.set({0, 1}, stroked(sampled(wave, 20'000), stroke));
            ink.set({0, 2}, stroked(sampled(wave, 10), {Qt::red, 3.0, {}}));
            ink.setView(chartOf(viewOf(1.0)), kSize, 1.0);
            ink.advance(0);
            if (isDisturbed)
                ink.remove({3, 99});
            ink.advance(-1);
            return ink.picture();
        };
        QCOMPARE(drawn(true), drawn(false));
    }

    /// What reaches into the picture, wide characters, too, is there as if there was more of it.
    void marksAtTheRim_data()
    {
        const Rows<int, QPointF> row;
        row("centre outside", GeomShape_Square, QPointF(-6.0, 150.0));
        row("clipped by a corner", GeomShape_Circle, QPointF(398.0, 296.0));
        row("a wide character", GeomShape_Character, QPointF(-11.0, 150.0));
    }

    void marksAtTheRim()
    {
        const auto [shape, at] = currentRow<int, QPointF>();
        const SymbolStyle style {
            symbolPath(shape, "W", FontOverride_None), 20.0, Qt::black, 1.0, {}};
        const auto place = std::make_shared<const Polyline>(std::vector<double> {at.x()},
                                                            std::vector<double> {at.y()});
        const auto drawn = [&](int around) {
            const QSize size = kSize + 2 * QSize(around, around);
            const LineScale scale {0.0, double(around), 1.0};
            LineInk ink;
            ink.set({0, 1}, std::make_shared<SymbolMarks>(MarkedPoints {place, {}}, style));
            ink.setView(
                chartOf({scale, scale, {0.0, double(size.width()), 0.0, double(size.height())}}),
                size, 1.0);
            ink.advance(-1);
            return ink.picture().copy({QPoint(around, around), kSize});
        };
        QCOMPARE(drawn(0), drawn(50));
        QVERIFY(shareOfDifference(drawn(0), drawn(50).copy({QPoint(200, 0), kSize})) > 0.0);
    }

    void denseLinesAreThinned()
    {
        LineInk ink;
        const LineStroke stroke {Qt::blue, 5.0, {10.0, 5.0}};
        const auto scribble = [](double) { return QPointF(noise(), noise()); };
        ink.set({0, 1}, stroked(sampled(scribble, 400'000), stroke));
        ink.set({0, 2}, stroked(sampled(wave, 400'000), stroke));
        ink.setView(chartOf(viewOf(1.0)), kSize, 1.0);
        ink.advance(-1);
        QCOMPARE(ink.simplifiedCount(), 1);
        ink.remove({0, 1});
        ink.advance(-1);
        QCOMPARE(ink.simplifiedCount(), 0);
    }
};

QTEST_MAIN(tst_LineInk)

#include "tst_line_ink.moc"
