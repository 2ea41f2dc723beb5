// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/column_course.h"

#include <vtkDataArray.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace corvala::app {

ValueRange rangeOf(vtkDataArray& values)
{
    std::optional<ValueRange> range;
    for (vtkIdType i = 0; i < values.GetNumberOfTuples(); ++i) {
        const double value = values.GetComponent(i, 0);
        if (!std::isfinite(value))
            continue;
        if (!range)
            range = ValueRange {value, value};
        range->minimum = std::min(range->minimum, value);
        range->maximum = std::max(range->maximum, value);
    }
    return range.value_or(ValueRange());
}

bool goesOneWay(vtkDataArray& values)
{
    std::optional<double> before;
    int way = 0;
    for (vtkIdType i = 0; i < values.GetNumberOfTuples(); ++i) {
        const double value = values.GetComponent(i, 0);
        if (!std::isfinite(value))
            continue;
        const int step = before ? (value > *before) - (value < *before) : way;
        if (before && (step == 0 || (way != 0 && step != way)))
            return false;
        way = step;
        before = value;
    }
    return way != 0;
}

ColumnCourse::ColumnCourse(vtkDataArray& values)
{
    constexpr vtkIdType kLookedAt = 100'000;
    const double range = rangeOf(values).size();
    std::optional<double> before;
    for (vtkIdType i = 0; i < std::min(values.GetNumberOfTuples(), kLookedAt); ++i) {
        const double value = values.GetComponent(i, 0);
        if (!std::isfinite(value))
            continue;
        if (before)
            take(value - *before, range);
        before = value;
    }
}

void ColumnCourse::take(double step, double range)
{
    const int way = (step > 0) - (step < 0);
    ++m_steps;
    m_ups += way > 0 ? 1 : 0;
    m_downs += way < 0 ? 1 : 0;
    m_repeats += way == 0 ? 1 : 0;
    m_turns += way != 0 && m_way != 0 && way != m_way ? 1 : 0;
    m_jumps += 2 * std::abs(step) > range ? 1 : 0;
    m_way = way != 0 ? way : m_way;
}

} // namespace corvala::app
