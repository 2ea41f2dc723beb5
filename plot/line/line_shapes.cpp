// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_shapes.h"

#include "host/document/document.h"
#include "plot/common/line_patterns.h"
#include "plot/line/bar_chart.h"
#include "plot/line/error_bars.h"
#include "plot/line/stroked_line.h"
#include "plot/line/symbol_marks.h"

#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace corvala::plot {

static constexpr const auto& kMap = style::lineMap;
static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

namespace {

/// Reads the style of a line map.
class LineStyle
{
public:
    explicit LineStyle(const ShownLine& line)
        : m_line(line)
    {
    }

    std::int32_t number(style::Key key) const { return m_line.frame.lineInteger(key, m_line.map); }
    double real(style::RealKey key) const { return m_line.frame.lineReal(key, m_line.map); }
    std::string text(style::TextKey key) const
    {
        return m_line.frame.lineStyle().text(host::Schema::instance().at(key), m_line.map);
    }
    QColor color(style::ColorKey key) const
    {
        const host::Rgb color = host::Document::instance().color(number(key));
        return {color.red, color.green, color.blue};
    }
    /// A share of the picture in pixels.
    double pixels(style::RealKey key) const { return real(key) / 100.0 * m_line.height; }
    double width(style::RealKey key) const { return linePixels(real(key), m_line.height); }
    double leastDot() const
    {
        constexpr double kShare = 0.4; // percent of the height: to be seen at a glance
        return linePixels(kShare, m_line.height);
    }
    QColor fill(const style::ChoiceKey<FillMode_e>& mode, style::ColorKey fill,
                style::ColorKey line) const
    {
        switch (number(mode)) {
        case FillMode_SpecificColor: return color(fill);
        case FillMode_LineColor: return color(line);
        case FillMode_BackgroundColor: return Qt::white;
        default: return {};
        }
    }
    MarkSpacing spacing(const style::ChoiceKey<SkipMode_e>& mode, style::RealKey skipping) const
    {
        if (number(mode) == SkipMode_ByIndex)
            return {false, real(skipping)};
        return {true, pixels(skipping)};
    }

private:
    const ShownLine& m_line;
};

} // namespace

static LineStroke strokeOf(const LineStyle& style)
{
    LineStroke stroke;
    stroke.color = style.color(kMap.lines.color);
    stroke.width = style.width(kMap.lines.lineThickness);
    stroke.dot = std::max(stroke.width, style.leastDot());
    const int pattern = style.number(kMap.lines.linePattern);
    if (pattern != LinePattern_Solid)
        for (const double part : patternStrokes(pattern))
            stroke.pattern.push_back(part * style.pixels(kMap.lines.patternLength));
    return stroke;
}

std::shared_ptr<const ChartShape> curveShape(const ShownLine& line, const LineGeometry& geometry)
{
    return std::make_shared<StrokedLine>(geometry.curve, strokeOf(LineStyle(line)));
}

namespace {

class AwaitedShape : public ChartShape
{
public:
    explicit AwaitedShape(std::shared_ptr<const Polyline> places)
        : m_places(std::move(places))
    {
    }
    const Polyline& places() const override { return *m_places; }
    LineBox bounds() const override { return m_places->bounds(); }
    double distance(const LineView&, const QPointF&, double limit) const override { return limit; }
    void cover(CoverGrid&, const LineView&) const override { }
    std::unique_ptr<ShapeDrawing> begin(const InkSheet&, const LineView&) const override
    {
        class Nothing : public ShapeDrawing
        {
            bool step() override { return false; }
            double share() const override { return 1.0; }
        };
        return std::make_unique<Nothing>();
    }
    void paint(QPainter&, const LineView&) const override { }

private:
    std::shared_ptr<const Polyline> m_places;
};

} // namespace

std::shared_ptr<const ChartShape> awaitedShape(const LineGeometry& geometry)
{
    return std::make_shared<AwaitedShape>(geometry.places);
}

/// The width of a line in a sample.
static double widthIn(const QRectF& place, double width)
{
    return std::min(width, 0.7 * place.height());
}

LegendSample curveSample(const ShownLine& line)
{
    return [stroke = strokeOf(LineStyle(line))](QPainter& painter, const QRectF& place) {
        LineStroke fitting = stroke;
        fitting.width = widthIn(place, stroke.width);
        const double height = place.center().y();
        const double cap = std::max(fitting.width / 2.0 - 0.1 * place.height(), 0.0);
        const std::vector<double> ends {place.left() + cap, place.right() - cap};
        LineView view; // pixels as they are
        view.visible = {place.left(), place.right(), place.top(), place.bottom()};
        StrokedLine(std::make_shared<const Polyline>(ends, std::vector<double> {height, height}),
                    std::move(fitting))
            .paint(painter, view);
    };
}

static SymbolStyle symbolStyleOf(const LineStyle& style)
{
    const auto& symbols = kMap.symbols;
    const style::SymbolShape& shape = symbols.symbolShape;
    const int font = style.number(shape.asciiShape.useBaseFont) != 0
        ? int(FontOverride_None)
        : style.number(shape.asciiShape.fontOverride);
    SymbolStyle symbol;
    symbol.path = style.number(shape.isAscii) != 0
        ? symbolPath(GeomShape_Character, style.text(shape.asciiShape.asciiChar), font)
        : symbolPath(style.number(shape.geomShape), {}, font);
    symbol.size = style.pixels(symbols.size);
    symbol.line = style.color(symbols.color);
    symbol.lineWidth = style.width(symbols.lineThickness);
    symbol.fill = style.fill(symbols.fillMode, symbols.fillColor, symbols.color);
    return symbol;
}

std::shared_ptr<const ChartShape> symbolShape(const ShownLine& line, const LineGeometry& geometry)
{
    const LineStyle style(line);
    return std::make_shared<SymbolMarks>(
        MarkedPoints {geometry.places, style.spacing(kMap.symbols.skipMode, kMap.symbols.skipping)},
        symbolStyleOf(style));
}

LegendSample symbolSample(const ShownLine& line)
{
    return [symbol = symbolStyleOf(LineStyle(line))](QPainter& painter, const QRectF& place) {
        SymbolStyle fitting = symbol;
        fitting.size = std::min(fitting.size, place.height());
        fitting.lineWidth = std::min(fitting.lineWidth, 0.4 * fitting.size);
        fitting.paint(painter, place.center());
    };
}

/// How far bars of a type extend to the left, to the right, down and up.
static std::array<bool, 4> directionsOf(int type)
{
    const auto is = [type](std::initializer_list<int> types) {
        return std::find(types.begin(), types.end(), type) != types.end();
    };
    return {{is({ErrorBar_Left, ErrorBar_Horizontal, ErrorBar_Cross}),
             is({ErrorBar_Right, ErrorBar_Horizontal, ErrorBar_Cross}),
             is({ErrorBar_Down, ErrorBar_Vertical, ErrorBar_Cross}),
             is({ErrorBar_Up, ErrorBar_Vertical, ErrorBar_Cross})}};
}

/// The ends of all bars, one for each place between which runs are told apart.
static ErrorBars::Ends endsOf(const LineGeometry& geometry, const std::vector<double>& extents,
                              int type)
{
    const std::array<bool, 4> extends = directionsOf(type);
    const LinePoints& points = *geometry.points;
    ErrorBars::Ends ends;
    const auto logarithmicEnd = [](double place) {
        return std::isnan(place) ? -std::numeric_limits<double>::infinity() : place;
    };
    std::size_t begin = 0;
    for (const std::size_t end : points.runEnds) {
        for (auto& some : ends)
            if (begin > 0)
                some.push_back(kNone);
        for (std::size_t i = begin; i < end; ++i) {
            const double extent = std::abs(extents[i]);
            const auto along = [&](std::size_t which, double by) {
                return extends[which] ? by * extent : 0.0;
            };
            const auto low = geometry.plane.place(points.first[i] + along(0, -1.0),
                                                  points.second[i] + along(2, -1.0));
            const auto high = geometry.plane.place(points.first[i] + along(1, 1.0),
                                                   points.second[i] + along(3, 1.0));
            const bool hasBar = std::isfinite(extent);
            ends[0].push_back(hasBar ? logarithmicEnd(low.first) : kNone);
            ends[1].push_back(hasBar ? high.first : kNone);
            ends[2].push_back(hasBar ? logarithmicEnd(low.second) : kNone);
            ends[3].push_back(hasBar ? high.second : kNone);
        }
        begin = end;
    }
    return ends;
}

static ErrorBarStyle errorBarStyleOf(const LineStyle& style)
{
    const auto& keys = kMap.errorBars;
    return {style.color(keys.color), style.width(keys.lineThickness), style.pixels(keys.size)};
}

std::shared_ptr<const ChartShape> errorBarShape(const ShownLine& line, const LineGeometry& geometry)
{
    const LineStyle style(line);
    const auto& keys = kMap.errorBars;
    const int variable = style.number(keys.var);
    if (geometry.plane.isPolar || variable == 0)
        return nullptr;
    const std::vector<double> extents =
        valuesAt(*line.frame.data(), geometry.recipe, *geometry.points, variable);
    return std::make_shared<ErrorBars>(
        MarkedPoints {geometry.places, style.spacing(keys.skipMode, keys.skipping)},
        endsOf(geometry, extents, style.number(keys.barType)), errorBarStyleOf(style));
}

LegendSample errorBarSample(const ShownLine& line)
{
    const LineStyle style(line);
    if (line.frame.plotType() == PlotType_LinePolar || style.number(kMap.errorBars.var) == 0)
        return {};
    return [bar = errorBarStyleOf(style)](QPainter& painter, const QRectF& place) {
        const double cap = std::min(bar.capSize, place.height()) / 2.0;
        const QPointF middle = place.center();
        const QPointF up(0.0, 0.45 * place.height());
        painter.setPen(QPen(bar.color, widthIn(place, bar.width), Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(middle - up, middle + up);
        for (const QPointF& end : {middle - up, middle + up})
            painter.drawLine(end - QPointF(cap, 0.0), end + QPointF(cap, 0.0));
    };
}

static BarStyle barStyleOf(const LineStyle& style)
{
    const auto& keys = kMap.barCharts;
    BarStyle bars;
    bars.isUpright = style.number(kMap.assign.functionDependency) == FunctionDependency_YofX;
    bars.width = style.pixels(keys.size);
    bars.line = style.color(keys.color);
    bars.lineWidth = style.width(keys.lineThickness);
    bars.fill = style.fill(keys.fillMode, keys.fillColor, keys.color);
    return bars;
}

LegendSample barSample(const ShownLine& line)
{
    if (line.frame.plotType() == PlotType_LinePolar)
        return {};
    return [bar = barStyleOf(LineStyle(line))](QPainter& painter, const QRectF& place) {
        BarStyle fitting = bar;
        fitting.lineWidth = std::min(bar.lineWidth, 0.3 * place.height());
        const double outline = std::max(fitting.lineWidth - 0.2 * place.height(), 0.0);
        QRectF swatch(0.0, 0.0, 1.2 * place.height(), 0.7 * place.height() - outline);
        swatch.moveCenter(place.center());
        fitting.paint(painter, swatch);
    };
}

/// Whether bars of two maps stand at the same places.
static bool standTogether(const host::Frame& frame, CvlInt64 one, CvlInt64 other)
{
    const auto isSame = [&](style::Key key) {
        return frame.lineInteger(key, one) == frame.lineInteger(key, other);
    };
    const auto& assign = kMap.assign;
    const bool isUpright =
        frame.lineInteger(assign.functionDependency, one) == FunctionDependency_YofX;
    return isSame(assign.functionDependency)
        && (isUpright ? isSame(assign.xAxisVar) && isSame(assign.xAxis)
                      : isSame(assign.yAxisVar) && isSame(assign.yAxis));
}

/// Bars of several maps at the same places stand side by side; those of more maps than can be told
/// apart stand on each other.
static void standBeside(const ShownLine& line, BarStyle& bars)
{
    constexpr int kMost = 12;
    int before = 0;
    int all = 0;
    for (const std::uint32_t map : line.frame.activeLineMaps()) {
        const bool hasBars = line.frame.lineInteger(kMap.barCharts.show, map) != 0;
        if (!hasBars || !standTogether(line.frame, line.map, map))
            continue;
        before += map < line.map ? 1 : 0;
        if (++all > kMost)
            return;
    }
    bars.together = std::max(all, 1);
    bars.turn = before - (bars.together - 1) / 2.0;
}

std::shared_ptr<const ChartShape> barShape(const ShownLine& line, const LineGeometry& geometry)
{
    if (geometry.plane.isPolar)
        return nullptr;
    BarStyle bars = barStyleOf(LineStyle(line));
    standBeside(line, bars);
    const bool hasZero =
        bars.isUpright ? !geometry.plane.isSecondLogarithmic : !geometry.plane.isFirstLogarithmic;
    return std::make_shared<BarChart>(geometry.places, hasZero, std::move(bars));
}

} // namespace corvala::plot
