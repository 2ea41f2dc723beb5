// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_notes.h"

#include "host/document/line_map_name.h"
#include "plot/line/fit_report.h"
#include "plot/line/line_looks.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

namespace {

class LineNotes
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::LineNotes)

public:
    explicit LineNotes(const LineNoteFacts& facts)
        : m_facts(facts)
    {
    }
    std::vector<SceneNote> all() const;

private:
    /// An axis in use; the radius is one without a number.
    struct Axis
    {
        QString name;
        style::SwitchKey automaticRange;
        style::RealKey rangeMin;
        style::RealKey rangeMax;
        bool isLogarithmic = false;
        int index = -1;
    };

    std::vector<Axis> axes() const;
    Axis xyAxis(const style::LineAxis& style, bool isFirst, int number) const;
    std::optional<SceneNote> range(const Axis& axis) const;
    std::optional<SceneNote> leftOut(bool isFirst, int number) const;
    std::optional<SceneNote> noNumbers() const;
    std::optional<SceneNote> curves() const;
    std::optional<SceneNote> hiddenCurves() const;
    std::optional<SceneNote> errorBars() const;

    const LineNoteFacts& m_facts;
};

LineNotes::Axis LineNotes::xyAxis(const style::LineAxis& style, bool isFirst, int number) const
{
    const bool isLogarithmic = m_facts.frame.integer(style.scale, number) == AxisScale_Logarithmic;
    return {(isFirst ? tr("X axis %1") : tr("Y axis %1")).arg(number),
            style.automaticRange,
            style.rangeMin,
            style.rangeMax,
            isLogarithmic,
            number};
}

std::vector<LineNotes::Axis> LineNotes::axes() const
{
    constexpr const auto& polar = style::lineAxes.polar;
    if (m_facts.frame.plotType() == PlotType_LinePolar)
        return {{tr("radius"), polar.automaticRange, polar.rangeMin, polar.rangeMax}};
    std::vector<Axis> axes;
    for (int number = 1; number <= style::LineAxis::kCount; ++number) {
        axes.push_back(xyAxis(style::lineAxes.x, true, number));
        axes.push_back(xyAxis(style::lineAxes.y, false, number));
    }
    return axes;
}

/// A range that was set and cannot be shown.
std::optional<SceneNote> LineNotes::range(const Axis& axis) const
{
    if (m_facts.frame.isOn(axis.automaticRange, axis.index))
        return std::nullopt;
    const double least = m_facts.frame.real(axis.rangeMin, axis.index);
    const double most = m_facts.frame.real(axis.rangeMax, axis.index);
    QString text;
    if (!(least < most))
        text =
            tr("The %1 has the range of the data: its minimum, %2, is not below its maximum, %3.")
                .arg(axis.name)
                .arg(least)
                .arg(most);
    else if (axis.isLogarithmic && least <= 0.0)
        text = tr("The %1 has the range of the data: a logarithmic axis has no place for its "
                  "minimum, %2.")
                   .arg(axis.name)
                   .arg(least);
    else
        return std::nullopt;
    return SceneNote {text, axis.rangeMin, tr("Keep the Range of the Data"),
                      frameValue(axis.automaticRange, true, axis.index)};
}

/// Points that have no place along a logarithmic axis.
std::optional<SceneNote> LineNotes::leftOut(bool isFirst, int number) const
{
    const style::LineAxis& style = isFirst ? style::lineAxes.x : style::lineAxes.y;
    const Axis axis = xyAxis(style, isFirst, number);
    if (!axis.isLogarithmic || m_facts.frame.plotType() == PlotType_LinePolar)
        return std::nullopt;
    std::ptrdiff_t count = 0;
    for (const auto& [map, geometry] : m_facts.geometries) {
        const LineAxes along = axesOf(m_facts.frame, map);
        if ((isFirst ? along.first : along.second) + 1 != static_cast<std::size_t>(number)
            || !isSeen(m_facts.frame, map))
            continue;
        const auto& values = isFirst ? geometry.points->first : geometry.points->second;
        count += std::count_if(values.begin(), values.end(),
                               [](double value) { return std::isfinite(value) && value <= 0.0; });
    }
    if (count == 0)
        return std::nullopt;
    return SceneNote {tr("%Ln point(s) are left out: the %1 is logarithmic, and their values are "
                         "not positive.",
                         nullptr, static_cast<int>(count))
                          .arg(axis.name),
                      style.scale, tr("Make the Axis Linear"),
                      frameValue(style.scale, double {AxisScale_Linear}, number)};
}

/// Points that have no place at all.
std::optional<SceneNote> LineNotes::noNumbers() const
{
    std::size_t count = 0;
    for (const auto& [map, geometry] : m_facts.geometries) {
        const LinePoints& points = *geometry.points;
        for (std::size_t i = 0; i < points.size() && isSeen(m_facts.frame, map); ++i)
            count += std::isfinite(points.first[i]) && std::isfinite(points.second[i]) ? 0 : 1;
    }
    if (count == 0)
        return std::nullopt;
    return SceneNote {tr("%Ln point(s) are left out: their values are missing or infinite.",
                         nullptr, static_cast<int>(count)),
                      style::lineMap.assign.yAxisVar};
}

/// The first map whose curve is missing.
std::optional<SceneNote> LineNotes::curves() const
{
    CvlInt64 first = 0;
    for (const auto& [map, geometry] : m_facts.geometries)
        if (geometry.curveProblem != CurveProblem::None && (first == 0 || map < first))
            first = map;
    if (first == 0)
        return std::nullopt;
    return SceneNote {tr("There is no curve through the points of \"%1\": %2.")
                          .arg(QString::fromStdString(host::shownLineMapName(m_facts.frame, first)),
                               problemText(m_facts.geometries.at(first).curveProblem)),
                      style::lineMap.curves.curveType};
}

/// Maps have curves that lines would show, and do not show lines.
std::optional<SceneNote> LineNotes::hiddenCurves() const
{
    constexpr const auto& lines = style::lineMap.lines;
    const host::Frame& frame = m_facts.frame;
    const bool isLayerOn = frame.isOn(style::kLinesLayer.shown);
    host::NumberSet hidden;
    for (const std::uint32_t map : frame.activeLineMaps())
        if (frame.lineInteger(style::lineMap.curves.curveType, map) != CurveType_LineSegments
            && (frame.lineInteger(lines.show, map) == 0 || !isLayerOn))
            hidden.add(map);
    if (hidden.isEmpty())
        return std::nullopt;
    const QString name = QString::fromStdString(host::shownLineMapName(frame, hidden.minimum()));
    if (!isLayerOn)
        return SceneNote {
            tr("The curve of \"%1\" is not seen: the layer of lines is off.").arg(name),
            style::kLinesLayer.shown, tr("Switch On the Layer"),
            frameValue(style::kLinesLayer.shown, true)};
    return SceneNote {
        tr("The curve of \"%1\" is not seen: its line map does not show lines.").arg(name),
        lines.show, tr("Show Lines"), host::SetStyle {host::pathOf(lines.show), 1.0, hidden}};
}

/// The layer of error bars is on, and no map has any.
std::optional<SceneNote> LineNotes::errorBars() const
{
    constexpr const auto& bars = style::lineMap.errorBars;
    const host::Frame& frame = m_facts.frame;
    if (!frame.isOn(style::kErrorBarsLayer.shown) || frame.activeLineMaps().isEmpty())
        return std::nullopt;
    const host::SetStyle off = frameValue(style::kErrorBarsLayer.shown, false);
    if (frame.plotType() == PlotType_LinePolar)
        return SceneNote {tr("Error bars are drawn in XY plots only."), bars.show,
                          tr("Switch Off the Layer"), off};
    host::NumberSet ready;
    for (const std::uint32_t map : frame.activeLineMaps()) {
        const bool hasVariable = frame.lineInteger(bars.var, map) != 0;
        if (hasVariable && frame.lineInteger(bars.show, map) != 0)
            return std::nullopt;
        if (hasVariable)
            ready.add(map);
    }
    if (ready.isEmpty())
        return SceneNote {
            tr("No error bar is drawn: no active line map has an error bar variable."), bars.var,
            tr("Switch Off the Layer"), off};
    return SceneNote {tr("No error bar is drawn: the line maps that have a variable for them do "
                         "not show them."),
                      bars.show, tr("Show Them"),
                      host::SetStyle {host::pathOf(bars.show), 1.0, ready}};
}

std::vector<SceneNote> LineNotes::all() const
{
    std::vector<SceneNote> notes;
    const auto add = [&notes](std::optional<SceneNote> note) {
        if (note)
            notes.push_back(std::move(*note));
    };
    for (const Axis& axis : axes())
        add(range(axis));
    for (int number = 1; number <= style::LineAxis::kCount; ++number) {
        add(leftOut(true, number));
        add(leftOut(false, number));
    }
    add(noNumbers());
    add(curves());
    add(hiddenCurves());
    add(errorBars());
    return notes;
}

} // namespace

std::vector<SceneNote> lineNotesOn(const LineNoteFacts& facts)
{
    return LineNotes(facts).all();
}

} // namespace corvala::plot
