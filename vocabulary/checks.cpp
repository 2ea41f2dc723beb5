// SPDX-License-Identifier: BSD-3-Clause
#include "vocabulary/layers.h"

#include <string_view>
#include <utility>

// What must hold for the dictionary, found out while it is compiled.

namespace corvala::style {

namespace {

constexpr std::uint64_t fingerprint(const Entry& entry)
{
    std::uint64_t hash = 14695981039346656037ULL;
    for (std::size_t i = 0; i < entry.length(); ++i) {
        for (const char* c = entry.path[i]; *c; ++c)
            hash = (hash ^ static_cast<unsigned char>(*c)) * 1099511628211ULL;
        hash = (hash ^ 0xffU) * 1099511628211ULL;
    }
    return hash;
}

constexpr bool havePathsOfTheirOwn()
{
    std::array<std::uint64_t, allEntries.size()> seen {};
    for (std::size_t i = 0; i < seen.size(); ++i) {
        seen[i] = fingerprint(allEntries[i]);
        for (std::size_t j = 0; j < i; ++j)
            if (seen[i] == seen[j])
                return false;
    }
    return true;
}

constexpr bool isInRange(const Entry& entry)
{
    return entry.type == ValueType::Enumeration
        ? entry.choices.contains(static_cast<int>(entry.defaultNumber))
        : entry.isText() || entry.type == ValueType::Numbers
            || (entry.defaultNumber >= entry.minimum && entry.defaultNumber <= entry.maximum);
}

constexpr bool haveDefaultsInRange()
{
    for (const Entry& entry : allEntries)
        if (!isInRange(entry))
            return false;
    return true;
}

constexpr bool haveLabels()
{
    for (const Entry& entry : allEntries)
        if (!*entry.label || !entry.path[0])
            return false;
    return true;
}

/// Whether the value is an enumerator: the compiler writes any other one as a cast.
template<auto value>
constexpr bool isEnumerator()
{
    return std::string_view(__PRETTY_FUNCTION__).find("= (") == std::string_view::npos;
}

template<class Enum, int... values>
constexpr bool namesExactly(Choices choices, std::integer_sequence<int, values...>)
{
    return ((isEnumerator<static_cast<Enum>(values)>() == choices.contains(values)) && ...);
}

/// The choices are the enumerators, no more and no fewer.
template<class Enum>
constexpr bool names(Choices choices)
{
    constexpr int kTried = 32; // and the one enumerator beyond
    return namesExactly<Enum>(choices, std::make_integer_sequence<int, kTried>())
        && namesExactly<Enum>(choices, std::integer_sequence<int, GeomShape_Character>());
}

} // namespace

static_assert(havePathsOfTheirOwn());
static_assert(haveDefaultsInRange());
static_assert(haveLabels());

static_assert(names<ArrowheadStyle_e>(kArrowheadStyles));
static_assert(names<AxisScale_e>(kAxisScales));
static_assert(names<AxisSide_e>(kAxisSides));
static_assert(names<BlankedCells_e>(kBlankedCells));
static_assert(names<BorderLocation_e>(kBorderLocations));
static_assert(names<ColorMap_e>(kColorMaps));
static_assert(names<ComparedWith_e>(kComparedWith));
static_assert(names<ContourColoring_e>(kContourColorings));
static_assert(names<ContourType_e>(kContourTypes));
static_assert(names<CurveType_e>(kCurveTypes));
static_assert(names<EdgeType_e>(kEdgeTypes));
static_assert(names<ErrorBar_e>(kErrorBars));
static_assert(names<ExtendedFit_e>(kExtendedFits));
static_assert(names<FillMode_e>(kFillModes));
static_assert(names<FontOverride_e>(kFontOverrides));
static_assert(names<FunctionDependency_e>(kFunctionDependencies));
static_assert(names<GeomShape_e>(kGeomShapes));
static_assert(names<IJKLines_e>(kIJKLines));
static_assert(names<LegendShow_e>(kLegendShows));
static_assert(names<LightingEffect_e>(kLightingEffects));
static_assert(names<LineMapSort_e>(kLineMapSorts));
static_assert(names<LinePattern_e>(kLinePatterns));
static_assert(names<MeshType_e>(kMeshTypes));
static_assert(names<PlotType_e>(kPlotTypes));
static_assert(names<PointsToPlot_e>(kPointsToPlot));
static_assert(names<PolarStart_e>(kPolarStarts));
static_assert(names<Relation_e>(kRelations));
static_assert(names<SkipMode_e>(kSkipModes));
static_assert(names<SlicePlane_e>(kSlicePlanes));
static_assert(names<StreamDirection_e>(kStreamDirections));
static_assert(names<SurfacesToPlot_e>(kSurfacesToPlot));
static_assert(names<VectorType_e>(kVectorTypes));

} // namespace corvala::style
