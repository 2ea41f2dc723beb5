// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/contour_groups.h"

#include "plot/common/nice_steps.h"
#include "plot/common/number_list.h"

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

/// So that ends which `levelsFor` proposed have the bands that it proposed.
static int roundBands(double span)
{
    return std::max(static_cast<int>(std::lround(span / niceStep(span, kMostBands + 1))), 1);
}

ContourLevels ChosenLevels::levels(double minimum, double maximum) const
{
    const ContourLevels round = levelsFor(minimum, maximum);
    if (!ends && (bands == 0 || round.isSingleValue()))
        return round;
    const auto [lowest, highest] = ends.value_or(std::pair(minimum, maximum));
    const int count = bands > 0 ? bands : roundBands(highest - lowest);
    return {lowest, (highest - lowest) / count, count};
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

bool operator==(const ChosenLevels& left, const ChosenLevels& right)
{
    return left.ends == right.ends && left.bands == right.bands
        && left.moreLines == right.moreLines;
}

/// What the style says of a group.
class GroupStyle
{
public:
    GroupStyle(const host::Frame& frame, int group)
        : m_frame(frame)
        , m_group(group)
    {
    }

    CvlInt64 variable() const
    {
        if (m_group >= ContourGroups::kPlace)
            return coordinateOf(m_frame, m_group - ContourGroups::kPlace);
        CvlInt64 variable = integer(variableKey());
        if (m_group == ContourGroups::kIso && variable == 0)
            variable = m_frame.integer(style::contourGroups.var, 1);
        return m_frame.data() && m_frame.data()->hasVariable(variable) ? variable : 0;
    }
    /// Ends that span nothing are not in force.
    ChosenLevels levels() const
    {
        constexpr const auto& kGroup = style::contourGroups;
        if (!isContour())
            return {};
        ChosenLevels chosen {
            {}, integer(kGroup.bandCount), numbersIn(text(kGroup.moreLines)).numbers};
        const std::pair ends(real(kGroup.levelMin), real(kGroup.levelMax));
        const bool areInForce = integer(kGroup.automaticLevels) == 0 && ends.first < ends.second
            && std::isfinite(ends.second - ends.first);
        if (areInForce)
            chosen.ends = ends;
        return chosen;
    }
    ColorScale colors() const
    {
        if (!isContour())
            return {};
        return {static_cast<ColorMap_e>(integer(style::contourGroups.colorMap)),
                integer(style::contourGroups.reversesColors) != 0};
    }

private:
    bool isContour() const { return m_group < ContourGroups::kRed; }
    style::VariableKey variableKey() const
    {
        constexpr style::VariableKey kOthers[] = {
            style::globalRgb.redVar,  style::globalRgb.greenVar, style::globalRgb.blueVar,
            style::globalScatter.var, style::isoSurfaces.var,    style::globalVector.uVar,
            style::globalVector.vVar, style::globalVector.wVar};
        return isContour() ? style::contourGroups.var : kOthers[m_group - ContourGroups::kRed];
    }
    std::int32_t integer(style::Key key) const { return m_frame.integer(key, m_group); }
    double real(style::RealKey key) const { return m_frame.real(key, m_group); }
    const std::string& text(style::TextKey key) const { return m_frame.text(key, m_group); }

    const host::Frame& m_frame;
    int m_group;
};

void ContourGroups::takeStyle(const host::Frame& frame)
{
    for (int number = 1; number <= kCount; ++number) {
        const GroupStyle style(frame, number);
        Group& group = at(number);
        if (style.variable() != group.variable) {
            const int revision = group.revision + 1;
            group = Group();
            group.variable = style.variable();
            group.revision = revision;
        }
        if (!(style.colors() == group.colors)) {
            group.colors = style.colors();
            ++group.recolorings;
        }
        const ChosenLevels chosen = style.levels();
        if (!(chosen == group.chosen)) {
            group.revision += chosen.moreLines == group.chosen.moreLines ? 0 : 1;
            group.chosen = chosen;
            if (group.hasRange)
                setLevels(group, number < kRed);
        }
    }
    constexpr const auto& kVectors = style::globalVector;
    m_chosenLengthOfOne =
        frame.isOn(kVectors.automaticLength) ? 0.0 : frame.real(kVectors.lengthOfOne);
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

VectorScale ContourGroups::vectorScale() const
{
    if (!(m_chosenLengthOfOne > 0.0) || !(m_vectorScale.lengthOfOne > 0.0))
        return m_vectorScale;
    const double factor = m_chosenLengthOfOne / m_vectorScale.lengthOfOne;
    return {m_chosenLengthOfOne, factor * m_vectorScale.length};
}

/// All but contours go by the range itself.
void ContourGroups::setLevels(Group& group, bool isContour)
{
    const ContourLevels levels = group.chosen.levels(group.minimum, group.maximum);
    group.revision += !isContour || !(levels == group.levels) ? 1 : 0;
    group.levels = levels;
}

bool ContourGroups::setRange(int number, double minimum, double maximum)
{
    Group& group = at(number);
    const bool isSame = group.hasRange && group.minimum == minimum && group.maximum == maximum;
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || minimum > maximum || isSame)
        return false;
    if (!group.hasRange) {
        group.reference = minimum;
        group.unit = maximum > minimum ? maximum - minimum : 1.0;
    }
    group.hasRange = true;
    group.minimum = minimum;
    group.maximum = maximum;
    const int before = group.revision;
    setLevels(group, number < kRed);
    return group.revision != before;
}

std::vector<double> ContourGroups::lineLevels(int number) const
{
    const Group& group = at(number);
    std::vector<double> lines = group.levels.inner();
    if (group.levels.minimum > group.minimum)
        lines.push_back(group.levels.minimum);
    if (group.levels.maximum() < group.maximum)
        lines.push_back(group.levels.maximum());
    lines.insert(lines.end(), group.chosen.moreLines.begin(), group.chosen.moreLines.end());
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
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
    return at(group).levels.fraction(at(group).reference + rounding(group));
}

/// What floats between 0 and 1 lose by being interpolated, with room.
double ContourGroups::rounding(int group) const
{
    constexpr double kLoss = 2e-6;
    const ContourLevels& levels = at(group).levels;
    return kLoss * std::max(at(group).unit, levels.maximum() - levels.minimum);
}

} // namespace corvala::plot
