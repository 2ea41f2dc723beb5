// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/axis_names.h"

#include "host/document/line_map_name.h"
#include "plot/line/line_looks.h"

#include <QCoreApplication>
#include <QStringList>

namespace corvala::plot {

namespace {

/// Collects the variables along an axis.
struct AxisVariables
{
    static constexpr int kMostNames = 4; ///< in a title

    QStringList names; ///< different ones, up to one more than are in a title
    bool areInstants = true;

    void add(const host::Frame& drawn, CvlInt64 variable);
    QString title(bool hasLegend) const;
    void title(AxisLook& axis, bool hasLegend, QStringList& told) const;
};

} // namespace

void AxisVariables::add(const host::Frame& drawn, CvlInt64 variable)
{
    const host::DataSet* const data = drawn.data();
    const QString name = QString::fromStdString(host::shownVariableName(data, variable));
    if (names.size() <= kMostNames && !names.contains(name))
        names.append(name);
    areInstants = areInstants && data && data->hasVariable(variable)
        && data->variable(variable).kind == host::VariableKind::Instant;
}

/// Many names are those of a legend, or the first ones and an ellipsis.
QString AxisVariables::title(bool hasLegend) const
{
    const QString separator = QStringLiteral(", ");
    if (names.size() <= kMostNames)
        return names.join(separator);
    return hasLegend ? QString() : names.mid(0, kMostNames).join(separator) + ", \u2026";
}

void AxisVariables::title(AxisLook& axis, bool hasLegend, QStringList& told) const
{
    axis.isOfInstants = areInstants && !names.isEmpty();
    axis.name = axis.title.isEmpty() ? title(false) : axis.title;
    if (axis.title.isEmpty())
        axis.title = title(hasLegend);
    if (!names.isEmpty())
        told.append(axis.title);
}

void addVariableNames(const host::Frame& drawn, const host::NumberSet& maps, ChartLook& look)
{
    std::array<AxisVariables, kAxisCount> first;
    std::array<AxisVariables, kAxisCount> second;
    for (const std::uint32_t map : maps) {
        if (!isSeen(drawn, map))
            continue;
        const LineRecipe recipe = recipeOf(drawn, map);
        const LineAxes axes = axesOf(drawn, map);
        first[axes.first].add(drawn, recipe.first);
        second[axes.second].add(drawn, recipe.second);
    }
    const bool hasLegend = drawn.isOn(style::lineLegend.show);
    if (drawn.plotType() != PlotType_LinePolar) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            first[i].title(look.first[i], hasLegend, look.told);
            second[i].title(look.second[i], hasLegend, look.told);
        }
        return;
    }
    const QString angle = first[0].title(hasLegend);
    const QString radius = second[0].title(hasLegend);
    look.told.append(look.polar.title);
    if (!look.polar.title.isEmpty() || angle.isEmpty() || radius.isEmpty())
        return;
    look.polar.title = QCoreApplication::translate("AxisNames", "%1 over %2").arg(radius, angle);
    look.told.append(radius);
}

} // namespace corvala::plot
