// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace corvala::bench {

/// Prints the usual lines and keeps the mean time of every benchmark by name.
class RecordingReporter : public benchmark::ConsoleReporter
{
public:
    /// Keeps the time of the processors, where benchmarks measure that of the whole program: what
    /// software draws in threads is in it, and what other programs do is not.
    void setProcessorTime() { m_isProcessorTime = true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Milliseconds; 0 for a benchmark that did not run.
    double milliseconds(const std::string& name) const;

private:
    bool m_isProcessorTime = false;
    std::map<std::string, double> m_milliseconds;
};

/// A statement about two benchmarks of the same run.
struct Ratio
{
    std::string what;
    std::string measured; ///< benchmark names
    std::string reference;
    double limit = 0.0; ///< measured / reference at most this; 0 states no limit
};

/// Writes the ratios as a Markdown table to standard output; false when one is over its limit.
bool reportRatios(const RecordingReporter& times, const std::vector<Ratio>& ratios);

} // namespace corvala::bench
