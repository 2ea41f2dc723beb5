// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvala::host::storage {

/// Names in order, from 1; those that count on, as "Zone 8", "Zone 9", "Zone 10", are kept as one
/// run.
class NameList
{
public:
    struct Run
    {
        std::string first;
        std::int64_t count = 1;
        bool operator==(const Run& other) const
        {
            return first == other.first && count == other.count;
        }
    };

    void add(const std::string& name) { add(name, 1); }
    /// The name and those that count on from it; `count` is 1 for a name without a number.
    void add(const std::string& first, std::int64_t count);

    const std::vector<Run>& runs() const { return m_runs; }
    std::int64_t count() const { return m_count; }
    std::vector<std::string> names() const;
    bool operator==(const NameList& other) const { return m_runs == other.m_runs; }

private:
    std::vector<Run> m_runs; ///< as long as can be
    std::string m_next; ///< the name that would make the last run longer; empty for none
    std::int64_t m_count = 0;
};

/// The name that comes a number of places after the first of a run; empty when that has no number
/// at its end, or a too large one.
std::string countedName(const std::string& first, std::int64_t places);

/// How many places after the first name the last one comes; -1 when it does not.
std::int64_t placesBetween(const std::string& first, const std::string& last);

} // namespace corvala::host::storage
