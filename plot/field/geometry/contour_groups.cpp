// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/contour_groups.h"

#include "plot/common/nice_steps.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr int kMostBands = 20;

std::vector<double> ContourLevels::inner() const
{
    std::vector<double> values;
    for (int i = 1; i < bands; ++i)
        values.push_back(minimum + step * i);
    return values;
}

bool operator==(const ContourLevels& left, const ContourLevels& right)
{
    return left.minimum == right.minimum && left.step == right.step && left.bands == right.bands;
}

ContourLevels levelsFor(double minimum, double maximum)
{
    const double magnitude = std::max(std::abs(minimum), std::abs(maximum));
    if (maximum - minimum <= magnitude * 1e-12) {
        const double step = magnitude > 0.0 ? niceStep(magnitude, 1) : 1.0;
        return {minimum - step / 2, step, 1};
    }
    ContourLevels levels;
    levels.step = niceStep(maximum - minimum, kMostBands);
    const double first = std::floor(minimum / levels.step + 1e-9);
    const double last = std::ceil(maximum / levels.step - 1e-9);
    levels.minimum = first * levels.step;
    levels.bands = std::max(static_cast<int>(last - first), 1);
    return levels;
}

static CvlInt64 variableOf(const host::Frame& frame, host::AttributeId id, int index)
{
    return frame.values().integer(host::Schema::instance().at(id), index);
}

/// The variable of the coordinate X, Y or Z; 0 without one.
static CvlInt64 coordinateOf(const host::Frame& frame, int axis)
{
    const CvlInt64 count = frame.data() ? frame.data()->variableCount() : 0;
    for (CvlInt64 number = 1; number <= count; ++number) {
        const host::Variable& variable = frame.data()->variable(number);
        if (variable.isCoordinate() && variable.component == axis)
            return number;
    }
    return 0;
}

static CvlInt64 variableOf(const host::Frame& frame, int group)
{
    constexpr style::VariableKey kOthers[] = {style::globalRgb.redVar,  style::globalRgb.greenVar,
                                              style::globalRgb.blueVar, style::globalScatter.var,
                                              style::isoSurfaces.var,   style::globalVector.uVar,
                                              style::globalVector.vVar, style::globalVector.wVar};
    if (group >= ContourGroups::kPlace)
        return coordinateOf(frame, group - ContourGroups::kPlace);
    if (group < ContourGroups::kRed)
        return variableOf(frame, style::contourGroups.var, group);
    const CvlInt64 variable = variableOf(frame, kOthers[group - ContourGroups::kRed], -1);
    return group == ContourGroups::kIso && variable == 0
        ? variableOf(frame, style::contourGroups.var, 1)
        : variable;
}

bool ContourGroups::setVariables(const host::Frame& frame)
{
    bool changed = false;
    for (int group = 1; group <= kCount; ++group) {
        CvlInt64 variable = variableOf(frame, group);
        if (!frame.data() || !frame.data()->hasVariable(variable))
            variable = 0;
        if (variable != at(group).variable) {
            const int revision = at(group).revision + 1;
            at(group) = Group();
            at(group).variable = variable;
            at(group).revision = revision;
            changed = true;
        }
    }
    return changed;
}

void ContourGroups::clear()
{
    for (Group& group : m_groups) {
        const int revision = group.revision + 1;
        group = Group();
        group.revision = revision;
    }
    m_vectorScale = {};
}

bool ContourGroups::hasRgb() const
{
    return variable(kRed) > 0 && variable(kRed + 1) > 0 && variable(kRed + 2) > 0;
}

bool ContourGroups::hasVector(bool inSpace) const
{
    return variable(kVector) > 0 || variable(kVector + 1) > 0
        || (inSpace && variable(kVector + 2) > 0);
}

bool ContourGroups::setVectorScale(const VectorScale& scale)
{
    const bool changed =
        m_vectorScale.lengthOfOne != scale.lengthOfOne || m_vectorScale.length != scale.length;
    m_vectorScale = scale;
    return changed;
}

bool ContourGroups::setRange(int number, double minimum, double maximum)
{
    Group& group = at(number);
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || minimum > maximum)
        return false;
    if (!group.hasRange) {
        group.reference = minimum;
        group.unit = maximum > minimum ? maximum - minimum : 1.0;
    }
    const ContourLevels levels = levelsFor(minimum, maximum);
    const bool isSame = group.hasRange && group.minimum == minimum && group.maximum == maximum;
    // All but contours go by the range itself.
    const bool changed = number < kRed ? !(levels == group.levels) : !isSame;
    group.hasRange = true;
    group.minimum = minimum;
    group.maximum = maximum;
    group.levels = levels;
    group.revision += changed ? 1 : 0;
    return changed;
}

double ContourGroups::coordinate(int group, double value) const
{
    return (value - at(group).reference) / at(group).unit;
}

double ContourGroups::textureScale(int group) const
{
    const ContourLevels& levels = at(group).levels;
    return at(group).unit / (levels.maximum() - levels.minimum);
}

double ContourGroups::textureShift(int group) const
{
    return at(group).levels.fraction(at(group).reference);
}

} // namespace corvala::plot
