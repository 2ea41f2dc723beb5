// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/chart_look.h"

#include "host/document/document.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static AxisRange rangeOf(double minimum, double maximum, bool isLogarithmic)
{
    const bool isUsable = minimum < maximum && (!isLogarithmic || minimum > 0.0);
    return isUsable ? AxisRange {minimum, maximum} : AxisRange();
}

/// In turn, axes stand on the first side and on the other one.
static bool isOpposite(int side, int number)
{
    return side == AxisSide_InTurn ? number % 2 == 0 : side == AxisSide_AboveOrRight;
}

static AxisLook axisLook(const host::Frame& frame, const style::LineAxis& style, int number)
{
    AxisLook look;
    look.title = QString::fromStdString(frame.text(style.title, number));
    look.isLogarithmic = frame.integer(style.scale, number) == AxisScale_Logarithmic;
    look.isReversed = frame.isOn(style.isReversed, number);
    look.isOpposite = isOpposite(frame.integer(style.side, number), number);
    const host::Rgb color = host::Document::instance().color(frame.integer(style.color, number));
    look.color = QColor(color.red, color.green, color.blue);
    if (!frame.isOn(style.automaticRange, number))
        look.range = rangeOf(frame.real(style.rangeMin, number), frame.real(style.rangeMax, number),
                             look.isLogarithmic);
    return look;
}

static double degreesOf(int start)
{
    switch (start) {
    case PolarStart_Above: return 90.0;
    case PolarStart_Left: return 180.0;
    case PolarStart_Below: return 270.0;
    default: return 0.0;
    }
}

static PolarLook polarLook(const host::Frame& frame)
{
    constexpr const auto& style = style::lineAxes.polar;
    PolarLook look;
    look.title = QString::fromStdString(frame.text(style.title));
    look.start = degreesOf(frame.integer(style.start));
    look.isClockwise = frame.isOn(style.isClockwise);
    if (!frame.isOn(style.automaticRange))
        look.radii = rangeOf(frame.real(style.rangeMin), frame.real(style.rangeMax), false);
    return look;
}

/// What was set, at most a tenth of the height.
static double fontOf(const host::Frame& frame, int height)
{
    constexpr double kSmallest = 4.0; // pixels
    constexpr double kLargest = 0.1; // of the height
    const double font = frame.real(style::lineFrame.fontSize) / 100.0 * height;
    return std::max(std::min(font, kLargest * height), kSmallest);
}

/// As other lines, a share of the height; of whole pixels, since axes are drawn without smoothing.
static double axisWidthOf(int height)
{
    constexpr double kPercent = 0.13; // of the height
    return std::max(std::round(kPercent / 100.0 * height), 1.0);
}

int ChartLook::share(double part) const
{
    return static_cast<int>(std::lround(part * font));
}

ChartLook chartLookOf(const host::Frame& frame, int height)
{
    ChartLook look;
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        look.first[i] = axisLook(frame, style::lineAxes.x, static_cast<int>(i) + 1);
        look.second[i] = axisLook(frame, style::lineAxes.y, static_cast<int>(i) + 1);
    }
    look.polar = polarLook(frame);
    look.title = QString::fromStdString(frame.text(style::lineFrame.title));
    look.font = fontOf(frame, height);
    look.lineWidth = axisWidthOf(height);
    look.showsGrid = frame.isOn(style::lineFrame.showGrid);
    look.showsBox = frame.isOn(style::lineFrame.showBox);
    return look;
}

bool isChartRange(style::Key value)
{
    const auto isOf = [value](const auto& axis) {
        return value == axis.automaticRange || value == axis.rangeMin || value == axis.rangeMax;
    };
    return isOf(style::lineAxes.x) || isOf(style::lineAxes.y) || isOf(style::lineAxes.polar);
}

} // namespace corvala::plot
