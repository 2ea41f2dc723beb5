// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/formats.h"
#include "host/io/reader/plot3d_files.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

#include <nlohmann/json.hpp>

namespace corvala::host::io::reader {

using nlohmann::json;

static constexpr qint64 kLongestIndex = 1 << 26;

/// A member of the index that says `yes` or `no` sets a flag that the user left open.
template<class T>
static void apply(const json& index, const char* member, const T& yes, const T& no,
                  std::optional<bool>& flag)
{
    if (flag || !index.contains(member))
        return;
    if (index.at(member) == yes || index.at(member) == no)
        flag = index.at(member) == yes;
}

static Plot3DLayout layoutOf(const json& index, const Plot3DLayout& wanted)
{
    Plot3DLayout layout = wanted;
    const bool detects = index.value("auto-detect-format", true);
    apply<std::string>(index, "format", "ascii", "binary", layout.ascii);
    if (detects && !layout.ascii.value_or(false))
        return layout;
    apply<std::string>(index, "byte-order", "big", "little", layout.bigEndian);
    apply<std::string>(index, "language", "fortran", "C", layout.byteCount);
    apply(index, "precision", 64, 32, layout.doublePrecision);
    apply(index, "multi-grid", true, false, layout.multiGrid);
    apply(index, "blanking", true, false, layout.iblank);
    apply(index, "2D", true, false, layout.twoDimensional);
    return layout;
}

static Plot3DStep stepOf(const json& entry, const QDir& folder)
{
    const auto path = [&](const char* member) {
        const std::string name = entry.value(member, "");
        return name.empty() ? QString() : folder.absoluteFilePath(QString::fromStdString(name));
    };
    Plot3DStep step;
    step.time = entry.value("time", 0.0);
    step.grid = path("xyz");
    step.solution = path("q");
    step.function = path("function");
    return step;
}

Plot3DSeries readPlot3DIndex(const QString& path, const Plot3DLayout& wanted)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    Plot3DSeries series {path, {}, wanted, {}};
    try {
        const json index = json::parse(file.read(kLongestIndex).toStdString(), nullptr, true, true);
        series.layout = layoutOf(index, wanted);
        for (const json& entry : index.at("filenames"))
            series.steps.push_back(stepOf(entry, QFileInfo(path).dir()));
        for (const json& name : index.value("function-names", json::array()))
            series.functionNames << QString::fromStdString(name.get<std::string>());
    } catch (const json::exception& fault) {
        // The text begins with a name of the fault in brackets.
        throw ReadFailure(path, "%1",
                          {QString::fromUtf8(fault.what()).section(QStringLiteral("] "), 1)});
    }
    if (series.steps.empty())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it lists no files"));
    return series;
}

} // namespace corvala::host::io::reader
