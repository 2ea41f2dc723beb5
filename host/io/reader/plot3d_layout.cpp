// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/plot3d_layout.h"

namespace corvala::host::io::reader {

static constexpr std::int64_t kMostGrids = 1'000'000;
static constexpr std::int64_t kLargestSize = 1'000'000'000;

static std::int64_t pointCount(const std::array<std::int64_t, 3>& size)
{
    std::int64_t result = 1;
    for (const std::int64_t each : size)
        if (each < 1 || each > kLargestSize || __builtin_mul_overflow(result, each, &result))
            return 0;
    return result < (std::int64_t(1) << 48) ? result : 0;
}

/// Number of grids and their sizes; with `extra` further numbers per grid, which are skipped.
static bool readSizes(Plot3DSource& source, const Plot3DLayout& layout, std::size_t extra,
                      std::vector<std::array<std::int64_t, 3>>& sizes,
                      std::vector<std::int64_t>& extras)
{
    std::vector<std::int64_t> values {1};
    if (*layout.multiGrid && !source.readIntegers(1, values))
        return false;
    if (values[0] < 1 || values[0] > kMostGrids)
        return false;
    const std::size_t axes = *layout.twoDimensional ? 2 : 3;
    const auto grids = static_cast<std::size_t>(values[0]);
    if (!source.readIntegers(grids * (axes + extra), values))
        return false;
    for (std::size_t g = 0; g < grids; ++g) {
        const std::int64_t* first = values.data() + g * (axes + extra);
        sizes.push_back({first[0], first[1], axes == 3 ? first[2] : 1});
        if (extra > 0)
            extras.push_back(first[axes]);
        if (pointCount(sizes.back()) == 0)
            return false;
    }
    return true;
}

static std::unique_ptr<Plot3DSource> sourceOf(const QString& path, const Plot3DLayout& layout,
                                              const Plot3DText* text)
{
    return text ? textPlot3D(*text) : binaryPlot3D(path, layout);
}

static bool fitsGrid(Plot3DSource& source, const Plot3DLayout& layout, Plot3DGrids& grids)
{
    std::vector<std::int64_t> none;
    if (!readSizes(source, layout, 0, grids.sizes, none))
        return false;
    for (const auto& size : grids.sizes) {
        const std::int64_t points = pointCount(size);
        const std::int64_t axes = *layout.twoDimensional ? 2 : 3;
        if (!source.skip(points * axes, *layout.iblank ? points : 0))
            return false;
    }
    return source.isAtEnd();
}

/// Every combination of flags that the wish leaves open, the usual ones first.
static std::vector<Plot3DLayout> candidates(const Plot3DLayout& wanted, bool isText)
{
    // A text file has no byte order and record marks, and keeps all digits that it has.
    std::vector<Plot3DLayout> result {wanted};
    result[0].ascii = isText;
    if (isText) {
        result[0].byteCount = false;
        result[0].bigEndian = false;
        result[0].doublePrecision = wanted.doublePrecision.value_or(true);
    }
    constexpr std::optional<bool> Plot3DLayout::*kFlags[] = {
        &Plot3DLayout::twoDimensional, &Plot3DLayout::multiGrid, &Plot3DLayout::byteCount,
        &Plot3DLayout::bigEndian,      &Plot3DLayout::iblank,    &Plot3DLayout::doublePrecision,
    };
    for (const auto flag : kFlags) {
        std::vector<Plot3DLayout> filled;
        for (Plot3DLayout layout : result) {
            for (const bool value : {false, true}) {
                if (layout.*flag && *(layout.*flag) != value)
                    continue;
                Plot3DLayout next = layout;
                next.*flag = value;
                filled.push_back(next);
            }
        }
        result = filled;
    }
    return result;
}

std::optional<Plot3DGrids> detectPlot3D(const QString& path, const Plot3DLayout& wanted,
                                        const Plot3DText* text)
{
    std::optional<Plot3DGrids> result;
    for (const Plot3DLayout& layout : candidates(wanted, text != nullptr)) {
        Plot3DGrids grids;
        grids.layout = layout;
        if (!fitsGrid(*sourceOf(path, layout, text), layout, grids))
            continue;
        if (result) {
            result->isAmbiguous = true;
            break;
        }
        result = grids;
    }
    return result;
}

static bool skipSolutions(Plot3DSource& source, const Plot3DGrids& grids)
{
    for (const auto& size : grids.sizes)
        if (!source.skip(4, 0)
            || !source.skip(pointCount(size) * (*grids.layout.twoDimensional ? 4 : 5), 0))
            return false;
    return true;
}

static bool skipFunctions(Plot3DSource& source, const Plot3DGrids& grids,
                          const std::vector<std::int64_t>& counts)
{
    for (std::size_t g = 0; g < grids.sizes.size(); ++g) {
        const std::int64_t points = pointCount(grids.sizes[g]);
        if (counts[g] < 1 || counts[g] > 10'000 || !source.skip(points * counts[g], 0))
            return false;
    }
    return true;
}

Plot3DFit fitOfPlot3D(const QString& path, const Plot3DGrids& grids, const Plot3DText* text,
                      bool isFunction)
{
    if (*grids.layout.ascii != (text != nullptr))
        return Plot3DFit::OtherGrids;
    const auto source = sourceOf(path, grids.layout, text);
    std::vector<std::array<std::int64_t, 3>> sizes;
    std::vector<std::int64_t> counts;
    if (!readSizes(*source, grids.layout, isFunction ? 1 : 0, sizes, counts)
        || sizes != grids.sizes)
        return Plot3DFit::OtherGrids;
    const bool isWhole =
        isFunction ? skipFunctions(*source, grids, counts) : skipSolutions(*source, grids);
    return isWhole ? Plot3DFit::Fits : Plot3DFit::CutOff;
}

} // namespace corvala::host::io::reader
