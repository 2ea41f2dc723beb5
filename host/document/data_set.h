// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "vocabulary/enums.h"

#include <vtkSmartPointer.h>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class vtkDataArray;
class vtkDataSet;

namespace corvala::host {

/// What is known of a zone without its points.
struct ZoneInfo
{
    std::string name; ///< UTF-8
    bool ordered = false;
    std::array<std::int64_t, 3> dimensions {{0, 0, 0}}; ///< I, J, K of an ordered zone, else 0
    std::int64_t pointCount = 0;
    std::int64_t cellCount = 0;
    int cellDimension = 0; ///< highest dimension of its cells, 0 to 3; 0 without cells
    int strand = 0; ///< transient strand, from 1; 0 is a static zone
    double time = 0.0; ///< solution time; meaningless for a static zone
    std::int64_t sourceIndex = 0; ///< what the ZoneSource calls this zone, from 0

    /// An ordered zone with all three dimensions above 1, or a zone of volume cells.
    bool isVolume() const
    {
        return ordered ? dimensions[0] > 1 && dimensions[1] > 1 && dimensions[2] > 1
                       : cellDimension == 3;
    }
};

/// What the values of a variable stand for.
enum class VariableKind {
    Number,
    Instant, ///< seconds since 1970-01-01 00:00 UTC, without leap seconds
    Words ///< the number of a word, from 1 in the order in which they come in a table
};

/// A field variable: a coordinate, or one component of an array of the zones.
struct Variable
{
    std::string name; ///< UTF-8, as shown; vectors by component, such as "Momentum X"
    std::string alias; ///< replaces the name in lists when not empty
    std::string array; ///< array of the zones' point or cell data; empty for a coordinate
    int component = 0; ///< component of the array, or 0, 1, 2 for the coordinate X, Y, Z
    bool isConstant = false; ///< one value everywhere and at all times, or none
    VariableKind kind = VariableKind::Number;
    /// Numbers of the variables of whose values this is the magnitude, 0 beyond the last; the array
    /// of a magnitude is empty.
    std::array<int, 3> vector {{0, 0, 0}};

    bool isMagnitude() const { return vector[0] != 0; }
    bool isCoordinate() const { return array.empty() && !isMagnitude(); }
};

enum class ValueLocation { Points, Cells };

/// Values of one variable in one zone; `array` is null where the zone does not have it.
struct ZoneValues
{
    vtkSmartPointer<vtkDataArray> array; ///< one component, one tuple per point or cell
    ValueLocation location = ValueLocation::Points;
};

/// Hands out the points and cells of zones, when they are first needed.
class ZoneSource
{
public:
    virtual ~ZoneSource() = default;
    /// The zone, or null when it has no points or cannot be read. An ordered zone comes as a
    /// vtkStructuredGrid, vtkImageData or vtkRectilinearGrid with the dimensions of its ZoneInfo;
    /// all others as vtkUnstructuredGrid or vtkPolyData. It is the caller's own, but its arrays are
    /// not to be changed. May be called from any thread.
    virtual vtkSmartPointer<vtkDataSet> zone(std::int64_t sourceIndex) const = 0;
};

/// Zones and variables of one or more files. Zones and variables are numbered from 1.
class DataSet
{
public:
    std::string title; ///< shown in the window title
    std::vector<std::string> files; ///< absolute paths; empty for made-up data
    std::vector<ZoneInfo> zones;
    std::vector<Variable> variables;
    /// Variable numbers of U, V, W; 0 where not assigned. Proposed to the frame on attach.
    std::array<int, 3> vectorVariables {{0, 0, 0}};
    /// Variable numbers proposed for contour groups 1 up; 0 is unassigned.
    std::vector<int> contourVariables;
    bool isPlanar = false; ///< all zones lie in one plane of constant Z
    bool surfacesEncloseVolumes = false; ///< zones that are surfaces lie all round the volumes
    std::vector<std::string> notes; ///< what the reader dropped or guessed, one sentence each
    std::shared_ptr<const ZoneSource> source;
    std::shared_ptr<const DataSet> whole; ///< before zones were deleted; null: none were
    /// Names that were given up: of zones by sourceIndex, of variables by number.
    std::map<std::int64_t, std::string> readZoneNames;
    std::map<std::int64_t, std::string> readVariableNames;

    std::int64_t zoneCount() const { return static_cast<std::int64_t>(zones.size()); }
    std::int64_t variableCount() const { return static_cast<std::int64_t>(variables.size()); }
    bool hasZone(std::int64_t zone) const { return zone >= 1 && zone <= zoneCount(); }
    bool hasVariable(std::int64_t variable) const
    {
        return variable >= 1 && variable <= variableCount();
    }
    const ZoneInfo& zone(std::int64_t number) const
    {
        return zones[static_cast<std::size_t>(number - 1)];
    }
    const Variable& variable(std::int64_t number) const
    {
        return variables[static_cast<std::size_t>(number - 1)];
    }

    void renameZone(std::int64_t number, const std::string& name);
    void renameVariable(std::int64_t number, const std::string& name);
    // The names in the files, whatever they were renamed to.
    const std::string& readZoneName(std::int64_t number) const;
    const std::string& readVariableName(std::int64_t number) const;

    /// The data with some of its zones, ascending, alone.
    std::shared_ptr<DataSet> withZones(const std::vector<std::int64_t>& numbers) const;

    /// Points and cells of a zone; null as ZoneSource::zone says, or for a bad number.
    vtkSmartPointer<vtkDataSet> geometry(std::int64_t zone) const;

    /// Values of a variable in a zone, from the zone's arrays or coordinates.
    ZoneValues values(std::int64_t zone, std::int64_t variable) const;

    /// Field2D for planar data without volume zones, else Field3D; LineXY without coordinates.
    PlotType_e suggestedPlotType() const;

    bool isTransient() const;
    /// Distinct solution times of the transient zones, ascending.
    std::vector<double> solutionTimes() const;

private:
    ZoneValues magnitudes(std::int64_t zone, const Variable& variable) const;
};

} // namespace corvala::host
