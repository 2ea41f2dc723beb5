// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/data_set.h"
#include "plot/line/line_plane.h"
#include "plot/line/polyline.h"
#include "vocabulary/types.h"

#include <array>
#include <cstdint>
#include <tuple>
#include <vector>

namespace corvala::host {
class Frame;
}

namespace corvala::plot {

/// A part of the values of an index, from 1; an end of 0 is the last one.
struct IndexPart
{
    std::int64_t begin = 1;
    std::int64_t end = 0;
    std::int64_t step = 1;

    auto tied() const { return std::tie(begin, end, step); }
};

/// How the points of a line map are made from data.
struct LineRecipe
{
    std::int64_t zone = 0;
    std::int64_t first = 0; ///< variable along X, or of the angle
    std::int64_t second = 0; ///< variable along Y, or of the radius
    std::int64_t sortedBy = 0; ///< variable in whose order they are joined; 0 for their own order
    std::int64_t error = 0; ///< variable of the error bars; 0 without these
    int varying = 0; ///< the index along which an ordered zone is followed, 0 to 2
    std::array<IndexPart, 3> parts;

    bool operator==(const LineRecipe& other) const;
};

LineRecipe recipeOf(const host::Frame& frame, CvlInt64 map);

/// The points of a line map in the order in which they are joined, in runs that are not joined with
/// each other: a zone of more than one index gives one run for each of the other indices.
struct LinePoints
{
    std::vector<double> first; ///< X, or the angle in degrees
    std::vector<double> second; ///< Y, or the radius
    std::vector<std::int64_t> sources; ///< place of each among the values of the zone, from 0
    std::vector<std::size_t> runEnds; ///< one beyond the last point of each run
    /// Of all values: those of cells when any variable of the recipe has its values in the cells.
    host::ValueLocation location = host::ValueLocation::Points;
    std::array<std::int64_t, 3> sizes {}; ///< values of the zone along each index

    std::size_t size() const { return first.size(); }
    bool operator==(const LinePoints& other) const
    {
        return std::tie(first, second, sources, runEnds, location)
            == std::tie(other.first, other.second, other.sources, other.runEnds, other.location);
    }
};

/// Empty when the zone lacks one of the variables. Among values of cells, one of the points counts
/// as the mean over the corners of each cell. Ranges beyond the zone give what of them there is.
LinePoints linePoints(const host::DataSet& data, const LineRecipe& recipe);

/// The values of another variable at these points, or of these cells; not a number where there are
/// none.
std::vector<double> valuesAt(const host::DataSet& data, const LineRecipe& recipe,
                             const LinePoints& points, std::int64_t variable);

/// I, J and K, from 1, of one of the places among the values of the zone; 0 for an index of which
/// the zone has one value only.
std::array<std::int64_t, 3> indicesOf(const LinePoints& points, std::int64_t source);

/// The points as they lie in a plane, runs one after the other: a place that is not finite lies
/// between them.
Polyline inPlane(const LinePoints& points, const LinePlane& plane);

} // namespace corvala::plot
