// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/frame.h"
#include "host/events/state_event.h"

#include <QString>

#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace corvala::host {

// What changed, with what was there before: enough to do it again or take it back.

/// Style of maps.
struct StyleDelta
{
    struct Column
    {
        AttributeId attribute;
        std::vector<MapTable::ChunkChange> chunks;
    };
    MapTable FrameMaps::*table;
    std::vector<Column> columns;
};

/// A value of the frame or the document.
struct ValueDelta
{
    AttributeId attribute;
    std::int64_t index;
    ValueList::Value before;
    ValueList::Value after;
};

/// A set of maps, zones or variables.
struct SetDelta
{
    NumberSet FrameMaps::*set;
    NumberSet before;
    NumberSet after;
};

/// The maps as a whole: other numbers, other maps.
struct MapsDelta
{
    std::shared_ptr<const FrameMaps> before;
    std::shared_ptr<const FrameMaps> after;
};

/// The name of a zone or a variable.
struct NameDelta
{
    bool isZone;
    CvlInt64 number;
    std::string before;
    std::string after;
};

struct PaletteDelta
{
    int palette;
    Rgb before;
    Rgb after;
};

/// One reversible change of the document.
struct Change
{
    CvlUniqueId frame = 0; ///< frame that it changes; 0 for the document
    QString text; ///< such as "Mesh type = Overlay (3 field maps)"
    std::vector<StateEvent> events; ///< that announce it, done or taken back
    std::variant<StyleDelta, ValueDelta, SetDelta, MapsDelta, NameDelta, PaletteDelta> delta;
};

} // namespace corvala::host
