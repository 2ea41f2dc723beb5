// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/operations/operation.h"
#include "host/storage/name_list.h"
#include "host/style/map_table.h"
#include "host/style/value_list.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Documents as values, apart from the open one and from files: taken from a document
/// (taking.h), written as text and read back (document_text.h), kept in files (document_file.h),
/// fitted to data (fitting.h), and put into the document by the operations LoadDocument and
/// ApplyStyles.
namespace corvala::host::storage {

/// A value of the frame or the document.
struct StoredValue
{
    AttributeId attribute = kNoAttribute;
    std::int64_t index = -1; ///< from 1, of a value that has several; else -1
    ValueList::Value value;
};

/// Values of one attribute of maps that are not the default ones, each once.
struct StoredColumn
{
    AttributeId attribute = kNoAttribute;
    std::vector<MapTable::ValueOfMaps> values;
};

/// Zones of a transient strand.
struct StoredStrand
{
    NumberSet zones; ///< as numbered in the data as they were read
    int strand = 0;
    bool operator==(const StoredStrand& other) const
    {
        return strand == other.strand && zones == other.zones;
    }
};

/// A frame. Zones and maps have their numbers in the frame, where some may have been deleted,
/// unless stated.
struct StoredFrame
{
    std::vector<DataOrigin> data; ///< none: the frame has no data
    // The data as they were read: what finds zones and variables again in data that changed.
    NameList zones;
    std::vector<StoredStrand> strands;
    NameList variables;

    NumberSet deletedZones; ///< as numbered in the data as they were read
    std::map<std::int64_t, std::string> zoneNames; ///< of those that were renamed
    std::map<std::int64_t, std::string> variableNames;
    std::optional<double> time; ///< none: that with which the data open
    std::int64_t lineMapCount = 0;
    std::optional<NumberSet> activeFieldMaps; ///< none: all, as with the other sets
    std::optional<NumberSet> activeLineMaps;
    std::optional<NumberSet> enabledZones;
    std::optional<NumberSet> enabledVariables;
    std::vector<StoredValue> values;
    std::vector<StoredColumn> fieldStyle;
    std::vector<StoredColumn> lineStyle;
    std::vector<Pick> picks;
    std::map<int, std::string> views; ///< as Frame::views
};

std::int64_t zoneCount(const StoredFrame& frame);
std::int64_t fieldMapCount(const StoredFrame& frame);

struct StoredDocument
{
    std::int64_t activeFrame = 0; ///< its position, from 1; 0 without frames
    std::vector<StoredValue> values;
    std::map<int, Rgb> palette; ///< entries that are not the usual ones
    std::vector<StoredFrame> frames;
};

/// Styles for the maps of a frame: those of the sets get the values of `frame`, or defaults. Of
/// the frame, values and styles count.
struct StyleSheet
{
    std::vector<StoredValue> values; ///< of the document
    std::map<int, Rgb> palette;
    StoredFrame frame;
    NumberSet fieldMaps;
    NumberSet lineMaps;
};

} // namespace corvala::host::storage
