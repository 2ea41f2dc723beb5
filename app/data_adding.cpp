// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_adding.h"

#include "app/first_lines.h"
#include "app/first_look.h"
#include "host/document/document.h"
#include "vocabulary/undo_kinds.h"

#include <algorithm>

namespace corvala::app {

using host::Document;
using host::SetStyle;

/// The number in the joined data; 0 without.
static int joinedVariable(const host::DataSet& joined, const host::DataSet& added, int variable)
{
    if (!added.hasVariable(variable))
        return 0;
    const auto found = std::find_if(
        joined.variables.rbegin(), joined.variables.rend(),
        [&](const host::Variable& some) { return some.name == added.variable(variable).name; });
    return static_cast<int>(joined.variables.rend() - found);
}

static void writeAll(std::vector<SetStyle> values, const host::NumberSet& maps)
{
    for (SetStyle& value : values) {
        if (!value.maps)
            continue; // what the frame shows stays
        value.maps = *value.maps & maps;
        value.undoable = true;
        if (!value.maps->isEmpty())
            Document::instance().execute(value);
    }
}

/// Lines of the added zones, which follow `zonesBefore` others.
static void addLines(const host::DataSet& added, CvlInt64 zonesBefore)
{
    Document& document = Document::instance();
    const host::DataSet& joined = *document.activeFrame()->data();
    std::vector<FirstLine> lines = firstLines(added);
    if (lines.empty())
        return;
    for (FirstLine& line : lines) {
        line.zone += static_cast<int>(zonesBefore);
        for (int* const variable : {&line.x, &line.y, &line.error})
            *variable = joinedVariable(joined, added, *variable);
    }
    const auto count = static_cast<CvlInt64>(lines.size());
    const CvlInt64 first = document.execute(host::CreateLineMaps {count}).firstMap;
    std::vector<SetStyle> values = firstLook(lines);
    for (SetStyle& value : values) { // whose maps begin with 1
        host::NumberSet shifted;
        if (value.maps)
            for (const std::uint32_t map : *value.maps)
                shifted.add(map + static_cast<std::uint32_t>(first) - 1);
        if (value.maps)
            value.maps = shifted;
    }
    writeAll(std::move(values), host::allUpTo(first + count - 1) - host::allUpTo(first - 1));
}

host::Outcome addToFrame(const host::AddData& addition)
{
    Document& document = Document::instance();
    const host::Frame* const frame = document.activeFrame();
    if (!frame || !frame->hasData())
        return document.execute(addition); // which says why not
    const CvlInt64 zones = frame->data()->zoneCount();
    const CvlInt64 maps = frame->fieldMapCount();
    const host::Outcome outcome = document.execute(addition);
    if (!outcome.isDone())
        return outcome;
    document.undo().begin(kUndoMend); // how they look belongs to that step, which names the data
    if (frame->isLinePlot())
        addLines(*addition.data, zones);
    else
        writeAll(firstLook(*frame), host::allUpTo(frame->fieldMapCount()) - host::allUpTo(maps));
    document.undo().end(host::UndoHistory::Closing::OneStep);
    return outcome;
}

} // namespace corvala::app
