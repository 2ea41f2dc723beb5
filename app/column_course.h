// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

class vtkDataArray;

namespace corvala::app {

/// The largest and the smallest of the values that are numbers.
struct ValueRange
{
    double minimum = 0.0;
    double maximum = 0.0;
    double size() const { return maximum - minimum; }
};

ValueRange rangeOf(vtkDataArray& values);

/// Every value is beyond the one before; those that are missing do not count.
bool goesOneWay(vtkDataArray& values);

/// How the values of a column follow each other.
class ColumnCourse
{
public:
    explicit ColumnCourse(vtkDataArray& values);

    /// One way, but for jumps back.
    bool goesInCycles() const
    {
        const int back = std::min(m_ups, m_downs);
        return m_repeats == 0 && back > 0 && back == m_jumps && 2 * back <= m_steps;
    }
    /// Stays the same for some rows, and then goes on.
    bool goesInSteps() const
    {
        return m_steps > 0 && std::min(m_ups, m_downs) == 0 && 2 * m_repeats > m_steps;
    }
    /// A line through the values would go to and fro, or up and down in the same place.
    bool isScattered() const
    {
        constexpr int kLeastSteps = 9;
        const bool isOften = 10 * m_turns > m_steps || 4 * m_repeats > m_steps;
        return m_steps >= kLeastSteps && (goesInCycles() || isOften);
    }

private:
    void take(double step, double range);

    int m_steps = 0;
    int m_ups = 0;
    int m_downs = 0;
    int m_repeats = 0;
    int m_turns = 0;
    int m_jumps = 0; ///< over more than half of the range
    int m_way = 0; ///< of the last step
};

} // namespace corvala::app
