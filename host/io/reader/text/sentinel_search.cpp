// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/sentinel_search.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace corvala::host::io::reader {

static constexpr double kHuge = 1e20; ///< and beyond: once is enough

static bool mayBeSentinel(double value)
{
    constexpr double kUsual[] = {-99,    -999,    -9999,   -99999,  -999999,  -99.9,  -99.99,
                                 -999.9, -999.25, -999.99, -9999.9, -9999.99, 999,    9999,
                                 99999,  999999,  999.9,   999.99,  9999.9,   9999.99};
    return std::abs(value) >= kHuge
        || std::find(std::begin(kUsual), std::end(kUsual), value) != std::end(kUsual);
}

void SentinelSearch::take(double value)
{
    if (!std::isfinite(value))
        return;
    if (mayBeSentinel(value)) {
        ++m_counts[value];
    } else {
        m_least = std::min(m_least, value);
        m_most = std::max(m_most, value);
    }
}

std::string SentinelSearch::found() const
{
    if (m_counts.size() != 1 || !(m_least <= m_most))
        return {};
    const auto [value, count] = *m_counts.begin();
    const double distance = std::max(m_least - value, value - m_most);
    const bool isFar = distance > 2 * (m_most - m_least);
    const bool isOften = count > 1 || std::abs(value) >= kHuge;
    return isFar && isOften ? QString::number(value, 'g', 12).toStdString() : std::string();
}

} // namespace corvala::host::io::reader
