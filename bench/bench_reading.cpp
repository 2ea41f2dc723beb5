// SPDX-License-Identifier: BSD-3-Clause
// What opening files and the first picture of a big zone cost against what a program of VTK alone
// takes, in processor time and memory of all processes: xvfb-run bench_reading. As
// "bench_reading open FILE" it opens one file, as "bench_reading write COUNT SIDE" it writes one.

#include "process_cost.h"
#include "ratio_report.h"
#include "reading_files.h"

#include "host/io/data_reader.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

using namespace corvala::bench;
using benchmark::State;

namespace {

constexpr double kMegabytes = 100.0; ///< more than what VTK takes

struct Case
{
    const char* name;
    int count; ///< of blocks; 0 for one zone of hexahedra
    int side; ///< points of a block, or hexahedra, in each direction
    bool isDrawn;
    double limit = 1.5; ///< times what VTK takes; 0 for none
};

constexpr Case kCases[] = {
    {"100 blocks of 8,000 points", 100, 20, false},
    {"1,000 blocks of 1,000 points", 1000, 10, false},
    {"10,000 blocks of 1,000 points", 10000, 10, false},
    {"1 block of 10 million points", 1, 215, false},
    {"4 million hexahedra", 0, 160, false, 0.0}, // of raw bytes, which VTK merely copies
    {"4 million hexahedra to the first picture", 0, 160, true}};

std::map<std::string, double> megabytes; ///< by benchmark

/// Until every zone can be drawn.
bool open(const QString& file)
{
    corvala::host::io::ReadRequest request;
    request.files = QStringList {file};
    const auto result = corvala::host::io::DataReader::read(request);
    for (std::int64_t zone = 1; result.data && zone <= result.data->zoneCount(); ++zone)
        benchmark::DoNotOptimize(result.data->geometry(zone));
    return result.data != nullptr;
}

QString write(const QDir& folder, int count, int side)
{
    return count > 0 ? writeBlocks(folder, count, side) : writeHexahedra(folder, side);
}

/// The program that is to be measured runs when a file is opened, that of VTK alone does not.
bool openInProgram(char* program, const QString& file)
{
    int count = 1;
    char* arguments[] = {program, nullptr};
    const QCoreApplication application(count, arguments);
    return open(file);
}

using Measured = std::function<Cost()>;

void measure(const std::string& name, const Measured& work)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](State& state) {
                                     for (auto _ : state) {
                                         const Cost cost = work();
                                         if (!cost.isOk)
                                             state.SkipWithError("the process failed");
                                         state.SetIterationTime(cost.seconds);
                                         double& known = megabytes[name];
                                         known = std::max(known, cost.megabytes);
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(3);
}

std::vector<Ratio> addBenchmarks(char* program, const QDir& folder)
{
    const std::string beside =
        QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath().toStdString() + '/';
    std::vector<Ratio> ratios;
    QString file;
    int written = -1;
    for (const Case& each : kCases) {
        if (each.count != written)
            costOf([&] { return !write(folder, each.count, each.side).isEmpty(); });
        written = each.count;
        file = each.count > 0 ? folder.filePath(QStringLiteral("%1.vtm").arg(each.count))
                              : folder.filePath(QStringLiteral("%1.vtu").arg(each.side));
        const std::string path = file.toStdString();
        const std::string name = each.name;
        const std::string picture = folder.filePath(QStringLiteral("picture.png")).toStdString();
        measure(name + ": VTK", [=] {
            return costOf(std::vector<std::string> {beside + "vtk_alone",
                                                    each.isDrawn ? "draw" : "read", path});
        });
        measure(name, [=] {
            return each.isDrawn ? costOf(std::vector<std::string> {
                       beside + "corvala", path, "--render", picture, "--size", "800x600"})
                                : costOf([=] { return openInProgram(program, file); });
        });
        ratios.push_back({name, name, name + ": VTK", each.limit});
    }
    return ratios;
}

/// False when one is over its limit.
bool reportMemory(const std::vector<Ratio>& ratios)
{
    bool isOk = true;
    std::printf("\n| what | measured | reference | more | limit |\n|---|---|---|---|---|\n");
    for (const Ratio& ratio : ratios) {
        const double more = megabytes[ratio.measured] - megabytes[ratio.reference];
        const bool isOver = more > kMegabytes;
        isOk = isOk && !isOver;
        std::printf("| %s | %.0f MB | %.0f MB | %.0f MB | %.0f MB%s |\n", ratio.what.c_str(),
                    megabytes[ratio.measured], megabytes[ratio.reference], more, kMegabytes,
                    isOver ? " **over**" : "");
    }
    return isOk;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    if (argc == 3 && mode == "open")
        return openInProgram(argv[0], QString::fromLocal8Bit(argv[2])) ? 0 : 1;
    if (argc == 4 && mode == "write")
        return write(QDir(), std::atoi(argv[2]), std::atoi(argv[3])).isEmpty() ? 1 : 0;
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder;
    const std::vector<Ratio> ratios = addBenchmarks(argv[0], QDir(folder.path()));
    RecordingReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const bool isQuick = reportRatios(times, ratios);
    return reportMemory(ratios) && isQuick ? 0 : 1;
}
