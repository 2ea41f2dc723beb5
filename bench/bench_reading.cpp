// SPDX-License-Identifier: BSD-3-Clause
// What opening files costs against what VTK alone takes to read them, in processor time of all
// processes: bench_reading

#include "ratio_report.h"

#include "host/io/data_reader.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <vtkFloatArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkStructuredGrid.h>
#include <vtkXMLMultiBlockDataReader.h>
#include <vtkXMLMultiBlockDataWriter.h>

#include <cmath>
#include <cstdlib>

#include <sys/resource.h>

using namespace corvala::bench;
using benchmark::State;

namespace {

constexpr double kLimit = 1.5; ///< times what VTK takes

struct Blocks
{
    int count;
    int side; ///< points of a block in each direction
    const char* name;
};

constexpr Blocks kCases[] = {{100, 20, "100 blocks"},
                             {1000, 10, "1,000 blocks"},
                             {10000, 10, "10,000 blocks"},
                             {1, 215, "1 block of 10 million points"}};

vtkSmartPointer<vtkFloatArray> numbers(const char* name, int components, vtkIdType tuples)
{
    auto array = vtkSmartPointer<vtkFloatArray>::New();
    array->SetName(name);
    array->SetNumberOfComponents(components);
    array->SetNumberOfTuples(tuples);
    for (vtkIdType i = 0; i < tuples * components; ++i)
        array->SetValue(i, static_cast<float>(std::sin(0.001 * static_cast<double>(i))));
    return array;
}

vtkSmartPointer<vtkStructuredGrid> block(int side, int number)
{
    auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(side, side, side);
    const vtkNew<vtkPoints> points;
    points->SetNumberOfPoints(vtkIdType(side) * side * side);
    for (int k = 0; k < side; ++k)
        for (int j = 0; j < side; ++j)
            for (int i = 0; i < side; ++i)
                points->SetPoint((vtkIdType(k) * side + j) * side + i, number * side + i, j, k);
    grid->SetPoints(points);
    grid->GetPointData()->AddArray(numbers("pressure", 1, points->GetNumberOfPoints()));
    grid->GetPointData()->AddArray(numbers("velocity", 3, points->GetNumberOfPoints()));
    return grid;
}

QString write(const QDir& folder, const Blocks& blocks)
{
    vtkNew<vtkMultiBlockDataSet> tree;
    for (int i = 0; i < blocks.count; ++i)
        tree->SetBlock(static_cast<unsigned>(i), block(blocks.side, i));
    const QString path = folder.filePath(QStringLiteral("%1.vtm").arg(blocks.count));
    vtkNew<vtkXMLMultiBlockDataWriter> writer;
    writer->SetInputData(tree);
    writer->SetFileName(qPrintable(path));
    writer->Write();
    return path;
}

double processorSeconds()
{
    double seconds = 0.0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used {};
        getrusage(static_cast<decltype(RUSAGE_SELF)>(who), &used);
        for (const timeval& time : {used.ru_utime, used.ru_stime})
            seconds += static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    }
    return seconds;
}

void readWithVtk(const QString& file)
{
    vtkNew<vtkXMLMultiBlockDataReader> reader;
    reader->SetFileName(qPrintable(file));
    reader->Update();
    benchmark::DoNotOptimize(reader->GetOutput());
}

/// Until every zone can be drawn.
void open(const QString& file)
{
    corvala::host::io::ReadRequest request;
    request.files = QStringList {file};
    const auto result = corvala::host::io::DataReader::read(request);
    if (!result.data)
        std::abort();
    for (std::int64_t zone = 1; zone <= result.data->zoneCount(); ++zone)
        benchmark::DoNotOptimize(result.data->geometry(zone));
}

void measure(const std::string& name, const QString& file, void (*step)(const QString&))
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](State& state) {
                                     for (auto _ : state) {
                                         const double start = processorSeconds();
                                         step(file);
                                         state.SetIterationTime(processorSeconds() - start);
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(3);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder;
    std::vector<Ratio> ratios;
    for (const Blocks& blocks : kCases) {
        const std::string name = blocks.name;
        const QString file = write(QDir(folder.path()), blocks);
        measure(name + ": VTK", file, readWithVtk);
        measure(name, file, open);
        ratios.push_back({name, name, name + ": VTK", kLimit});
    }
    RecordingReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);
    return reportRatios(times, ratios) ? 0 : 1;
}
