// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/plot3d_layout.h"

#include <algorithm>

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

/// Whole numbers that follow the sizes in their record.
struct ExtraCounts
{
    std::size_t perGrid = 0;
    std::size_t atEnd = 0;
};

/// Number of grids, their sizes and what follows these.
static bool readSizes(Plot3DSource& source, const Plot3DLayout& layout, const ExtraCounts& extra,
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
    if (!source.readIntegers(grids * (axes + extra.perGrid) + extra.atEnd, values))
        return false;
    const std::int64_t* next = values.data();
    for (std::size_t g = 0; g < grids; ++g) {
        sizes.push_back({next[0], next[1], axes == 3 ? next[2] : 1});
        next += axes;
        extras.insert(extras.end(), next, next + extra.perGrid);
        next += extra.perGrid;
        if (pointCount(sizes.back()) == 0)
            return false;
    }
    extras.insert(extras.end(), next, next + extra.atEnd);
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
    if (!readSizes(source, layout, {}, grids.sizes, none))
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

/// A solution of OVERFLOW tells how many equations and gases it has, and has the gas constants in
/// the headers of the grids. OtherGrids also for any other solution.
static Plot3DFit fitOfOverflow(const QString& path, const Plot3DGrids& grids)
{
    constexpr std::int64_t kLeastEquations = 5; // and gases come after a sixth
    constexpr std::int64_t kMostEquations = 1000;
    if (*grids.layout.ascii || *grids.layout.twoDimensional)
        return Plot3DFit::OtherGrids;
    const auto source = binaryPlot3D(path, grids.layout);
    std::vector<std::array<std::int64_t, 3>> sizes;
    std::vector<std::int64_t> counts;
    if (!readSizes(*source, grids.layout, {0, 2}, sizes, counts) || sizes != grids.sizes)
        return Plot3DFit::OtherGrids;
    const std::int64_t equations = counts[0];
    const std::int64_t gases = counts[1];
    if (equations > kMostEquations || gases < 0
        || equations < kLeastEquations + (gases > 0 ? 1 + gases : 0))
        return Plot3DFit::OtherGrids;
    const std::int64_t headerReals = 13 + std::max<std::int64_t>(2, gases);
    for (const auto& size : sizes)
        if (!source->skip(headerReals, 1) || !source->skip(pointCount(size) * equations, 0))
            return Plot3DFit::CutOff;
    return *grids.layout.byteCount ? Plot3DFit::Fits : Plot3DFit::Unmarked;
}

Plot3DFit fitOfPlot3D(const QString& path, const Plot3DGrids& grids, const Plot3DText* text,
                      bool isFunction)
{
    if (*grids.layout.ascii != (text != nullptr))
        return Plot3DFit::OtherGrids;
    const Plot3DFit overflow = isFunction ? Plot3DFit::OtherGrids : fitOfOverflow(path, grids);
    if (overflow != Plot3DFit::OtherGrids)
        return overflow;
    const auto source = sourceOf(path, grids.layout, text);
    std::vector<std::array<std::int64_t, 3>> sizes;
    std::vector<std::int64_t> counts;
    if (!readSizes(*source, grids.layout, {isFunction ? std::size_t(1) : 0, 0}, sizes, counts)
        || sizes != grids.sizes)
        return Plot3DFit::OtherGrids;
    const bool isWhole =
        isFunction ? skipFunctions(*source, grids, counts) : skipSolutions(*source, grids);
    return isWhole ? Plot3DFit::Fits : Plot3DFit::CutOff;
}

} // namespace corvala::host::io::reader
