// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <string>

namespace corvala::host::io::reader {

/// Looks for a number that stands for missing values in a column, such as -999 or 1e30: one of
/// those that are used for that, far from all others.
class SentinelSearch
{
public:
    void take(double value);
    /// As a word, such as "-999"; empty without one.
    std::string found() const;

private:
    std::map<double, std::int64_t> m_counts; ///< of numbers that may be one
    double m_least = std::numeric_limits<double>::infinity(); ///< of all others
    double m_most = -std::numeric_limits<double>::infinity();
};

} // namespace corvala::host::io::reader
