// SPDX-License-Identifier: BSD-3-Clause
#include "ratio_report.h"

#include <cstdio>

namespace corvala::bench {

void RecordingReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.error_occurred || run.run_type != Run::RT_Iteration || run.iterations == 0)
            continue;
        const std::string& args = run.run_name.args;
        const double seconds =
            m_isProcessorTime ? run.cpu_accumulated_time : run.real_accumulated_time;
        m_milliseconds[run.run_name.function_name + (args.empty() ? "" : "/") + args] =
            1000.0 * seconds / static_cast<double>(run.iterations);
    }
}

double RecordingReporter::milliseconds(const std::string& name) const
{
    const auto found = m_milliseconds.find(name);
    return found == m_milliseconds.end() ? 0.0 : found->second;
}

bool reportRatios(const RecordingReporter& times, const std::vector<Ratio>& ratios)
{
    bool ok = true;
    std::printf("\n| what | measured | reference | ratio | limit |\n|---|---|---|---|---|\n");
    for (const Ratio& ratio : ratios) {
        const double measured = times.milliseconds(ratio.measured);
        const double reference = times.milliseconds(ratio.reference);
        if (measured <= 0.0 || reference <= 0.0)
            continue; // left out by a filter
        const double value = measured / reference;
        const bool over = ratio.limit > 0.0 && value > ratio.limit;
        ok = ok && !over;
        std::printf("| %s | %.3f ms | %.3f ms | %.3g | ", ratio.what.c_str(), measured, reference,
                    value);
        if (ratio.limit > 0.0)
            std::printf("%.3g%s |\n", ratio.limit, over ? " **over**" : "");
        else
            std::printf("|\n");
    }
    return ok;
}

} // namespace corvala::bench
