// SPDX-License-Identifier: BSD-3-Clause
// What saving and loading a document costs against writing and reading its bytes, on the disk and
// back: bench_documents

#include "ratio_report.h"

#include "host/document/document.h"
#include "host/storage/document_file.h"
#include "host/storage/whole_file.h"
#include "samples/demo_data.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>

#include <fcntl.h>
#include <unistd.h>

using namespace corvala;
using namespace corvala::bench;
using namespace corvala::host;
using benchmark::State;

namespace {

constexpr int kMaps = 100'000;
constexpr int kEdits = 10'000;
constexpr double kLimit = 10.0;

Document& document()
{
    return Document::instance();
}

void require(const QString& problem)
{
    if (problem.isEmpty())
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(problem));
    std::abort();
}

/// Edits of one map each, of any value of field maps.
void edit()
{
    std::mt19937 random(7);
    const auto& values = Schema::instance().inScope(Scope::FieldMap);
    for (int done = 0; done < kEdits;) {
        const Attribute& attribute = Schema::instance().at(values[random() % values.size()]);
        SetStyle set {attribute.names, attribute.defaultNumber + 0.25 * double(random() % 9)};
        set.maps = NumberSet::bitmapOf(1, 1 + random() % kMaps);
        done += document().execute(set).result == StyleWrite_Ok ? 1 : 0;
    }
}

void syncNow(const QString& file)
{
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDWR);
    ::fsync(descriptor);
    ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED); // the next reading is from the disk
    ::close(descriptor);
}

void measure(const char* name, const QString& file, const std::function<void()>& step)
{
    benchmark::RegisterBenchmark(name,
                                 [=](State& state) {
                                     for (auto _ : state) {
                                         state.PauseTiming();
                                         syncNow(file);
                                         state.ResumeTiming();
                                         step();
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(20);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder(
        QStringLiteral("bench_documents-XXXXXX")); // where documents lie, not in memory
    const QString file = folder.filePath(QStringLiteral("a.cvdoc"));
    const QString copy = folder.filePath(QStringLiteral("copy"));
    std::string error;
    if (!samples::openDemo("field2d", kMaps, error))
        return 1;
    const std::shared_ptr<DataSet> data = samples::demoData("field2d", kMaps, error).data;
    edit();
    require(storage::saveDocument(document(), file));
    std::string text;
    require(storage::readWhole(file, text));
    std::printf("%zu bytes\n", text.size());

    measure("plain write", copy, [&] {
        QFile written(copy);
        written.open(QIODevice::WriteOnly);
        written.write(text.data(), static_cast<qint64>(text.size()));
        written.flush();
        ::fsync(written.handle());
    });
    measure("save", file, [&] { require(storage::saveDocument(document(), file)); });
    measure("plain read", file, [&] {
        std::string bytes;
        require(storage::readWhole(file, bytes));
        benchmark::DoNotOptimize(bytes.data());
    });
    measure("load", file, [&] {
        require(storage::loadDocument(document(), file, [&](const auto&, QString&) {
                    return data;
                }).problem);
    });
    RecordingReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);
    return reportRatios(times,
                        {{"saving", "save", "plain write", kLimit},
                         {"loading", "load", "plain read", kLimit}})
        ? 0
        : 1;
}
