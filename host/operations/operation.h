// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/style/number_set.h"
#include "host/style/style_input.h"
#include "vocabulary/enums.h"
#include "vocabulary/types.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

/// What can be done to a document, as plain values: they say what is to be done, to the active
/// frame unless stated, and know nothing of how. They can be compared, kept, and written as text
/// (operation_text.h). Document::execute does them.
namespace corvala::host::storage {
struct StoredDocument;
struct StyleSheet;
}

namespace corvala::host {

/// An RGB colour, 0 to 255 each.
struct Rgb
{
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    auto fields() const { return std::tie(red, green, blue); }
};

/// An object that the user picked on the plot.
struct Pick
{
    int type = 0; ///< PickType_e, or another code
    CvlInt64 number = 0; ///< zone or line map
    auto fields() const { return std::tie(type, number); }
};

/// Gives maps, or the frame or document, a value of the style tree; or changes one of its sets.
struct SetStyle
{
    std::vector<std::string> path;
    StyleInput value;
    std::optional<NumberSet> maps = {}; ///< none for a value of the frame or document
    std::int64_t index = -1; ///< from 1, of a value that has several; else -1
    AssignOp_e op = AssignOp_None; ///< how a set takes the value
    /// False for what the program fills in by itself: no undo step.
    bool undoable = true;
    auto fields() const { return std::tie(path, value, maps, index, op, undoable); }
};

struct RenameZone
{
    CvlInt64 zone;
    std::string name; ///< UTF-8
    auto fields() const { return std::tie(zone, name); }
};

struct RenameVariable
{
    CvlInt64 variable;
    std::string name; ///< UTF-8
    auto fields() const { return std::tie(variable, name); }
};

struct RenameLineMaps
{
    NumberSet maps;
    std::string name; ///< UTF-8, with tokens (line_map_name.h)
    auto fields() const { return std::tie(maps, name); }
};

/// Appends active line maps with default style. Outcome::firstMap tells where they begin.
struct CreateLineMaps
{
    CvlInt64 count;
    auto fields() const { return std::tie(count); }
};

/// Appends copies in ascending order; those of inactive maps are inactive.
struct CopyLineMaps
{
    NumberSet maps;
    auto fields() const { return std::tie(maps); }
};

/// Gives the maps the first or last numbers; they keep their order, and the others theirs.
struct MoveLineMaps
{
    NumberSet maps;
    bool toTop;
    auto fields() const { return std::tie(maps, toTop); }
};

enum class MapKind { Shown, Field, Line }; ///< Shown: the kind that the frame's plot type shows

/// Field maps go with their zones.
struct DeleteMaps
{
    NumberSet maps;
    MapKind kind = MapKind::Shown;
    auto fields() const { return std::tie(maps, kind); }
};

/// Which zones, or variables, can be chosen and are drawn.
struct EnableZones
{
    NumberSet zones;
    auto fields() const { return std::tie(zones); }
};

struct EnableVariables
{
    NumberSet variables;
    auto fields() const { return std::tie(variables); }
};

/// Not undoable.
struct SetSolutionTime
{
    double time;
    auto fields() const { return std::tie(time); }
};

/// Replaces the list of picks. Not undoable.
struct SetPicks
{
    std::vector<Pick> picks;
    auto fields() const { return std::tie(picks); }
};

/// Changes an entry of the document's palette, 0 to 63.
struct SetPaletteColor
{
    int palette;
    Rgb color;
    auto fields() const { return std::tie(palette, color); }
};

/// Appends a frame without data and makes it active. Not undoable.
struct AddFrame
{
    auto fields() const { return std::tie(); }
};

/// Not undoable.
struct ActivateFrame
{
    CvlInt64 position; ///< from 1
    auto fields() const { return std::tie(position); }
};

/// Deletes the active frame; the one before it, if any, becomes active. Clears the undo history.
struct DeleteFrame
{
    auto fields() const { return std::tie(); }
};

/// Where data come from: files that are opened together, or embedded data.
struct DataOrigin
{
    std::vector<std::string> files; ///< absolute paths
    std::string demo; ///< name of embedded data
    std::int64_t scale = 0; ///< its number of zones or line maps; 0 is its usual size
    std::string table; ///< how text files are read (text_dialect.h); empty: as is detected
    std::string plot3d; ///< layout of Plot3D files (plot3d_layout.h); empty: as is detected
    bool boundaryPatches = false; ///< of CGNS files are read as well
    bool numberedTimes = false; ///< the numbers in the names of files stand for times
    auto fields() const
    {
        return std::tie(files, demo, scale, table, plot3d, boundaryPatches, numberedTimes);
    }
};

/// Gives the active frame (made when there is none) data and a plot type to show them: default
/// style, all maps active. Clears the undo history. Somebody loads `data` before it is done; two of
/// these are equal when their data come from the same place.
struct AttachData
{
    DataOrigin origin;
    std::shared_ptr<DataSet> data = {};
    PlotType_e plotType = PlotType_None;
    CvlInt64 lineMaps = 1; ///< with default style
    auto fields() const { return std::tie(origin); }
};

/// Replaces all of the document by a stored one, and clears the undo history. Somebody reads the
/// file and the data of its frames (none for a frame without) before it is done.
struct LoadDocument
{
    std::string file; ///< absolute path
    std::shared_ptr<const storage::StoredDocument> document = {};
    std::vector<std::shared_ptr<DataSet>> data = {}; ///< of each frame, as they were read
    auto fields() const { return std::tie(file); }
};

/// Gives the active frame and its maps the style of a frame that was stored, and was fitted to its
/// data (storage/fitting.h). Somebody does both before.
struct ApplyStyles
{
    std::string file; ///< absolute path
    std::shared_ptr<const storage::StyleSheet> styles = {};
    auto fields() const { return std::tie(file); }
};

/// Drops the data of the active frame. Clears the undo history.
struct DetachData
{
    auto fields() const { return std::tie(); }
};

/// Appends the zones of other data to those of the active frame (data_joining.h); what is there
/// keeps its numbers and its style. Somebody loads `data` before it is done.
struct AddData
{
    DataOrigin origin;
    std::shared_ptr<DataSet> data = {};
    auto fields() const { return std::tie(origin); }
};

template<class T, class = decltype(std::declval<const T&>().fields())>
bool operator==(const T& one, const T& two)
{
    return one.fields() == two.fields();
}

using Operation =
    std::variant<SetStyle, RenameZone, RenameVariable, RenameLineMaps, CreateLineMaps, CopyLineMaps,
                 MoveLineMaps, DeleteMaps, EnableZones, EnableVariables, SetSolutionTime, SetPicks,
                 SetPaletteColor, AddFrame, ActivateFrame, DeleteFrame, AttachData, DetachData,
                 AddData, LoadDocument, ApplyStyles>;

/// What came of an operation: all of it was done, or nothing.
struct Outcome
{
    /// Why nothing was done, in the terms of a style write: StyleWrite_BadObjects for maps, zones
    /// and frames that are not there, StyleWrite_OutOfRange for other numbers,
    /// StyleWrite_WrongType for texts that are no UTF-8.
    StyleWriteResult_e result = StyleWrite_Ok;
    CvlInt64 firstMap = 0; ///< number of the first map that was created or copied
    bool isDone() const { return result <= StyleWrite_Unchanged; }
};

} // namespace corvala::host
