// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/common.h"

#include "host/document/document.h"
#include "host/document/layer_facts.h"
#include "sdk/base/read_count.h"
#include "sdk/base/set_record.h"
#include "sdk/common/frame_writes.h"

namespace corvala::sdk {

using host::Document;
using host::Frame;

bool copyLineMaps(toolbox::Set lineMaps)
{
    return lineMaps.handle()
        && Document::instance().execute(host::CopyLineMaps {lineMaps.handle()->members}).isDone();
}

/// Enabled variables of the frame that are no coordinates, ascending.
static std::vector<int> dataVariables(const Frame& frame)
{
    std::vector<int> numbers;
    for (const std::uint32_t number : frame.enabledVariables())
        if (!frame.data()->variable(number).isCoordinate())
            numbers.push_back(static_cast<int>(number));
    return numbers;
}

static const Frame* frameWithData()
{
    const Frame* const frame = Document::instance().activeFrame();
    return frame && frame->hasData() ? frame : nullptr;
}

bool autoAssignScatterVariable()
{
    const Frame* const frame = frameWithData();
    if (!frame || readFrameValue({"GlobalScatter", "Var"}) != 0)
        return false;
    const std::vector<int> candidates = dataVariables(*frame);
    if (candidates.empty())
        return false;
    host::SetStyle write {{"GlobalScatter", "Var"}, double(candidates.front())};
    write.undoable = false;
    return Document::instance().execute(write).result == StyleWrite_Ok;
}

bool autoAssignAllContourGroupVariables(ContourLevelsInitializationMode_e)
{
    constexpr int kGroups = 8;
    const Frame* const frame = frameWithData();
    if (!frame)
        return false;
    const std::vector<int> candidates = dataVariables(*frame);
    host::UndoHistory& undo = Document::instance().undo();
    undo.begin(UndoKind_StyleGroup);
    for (int group = 1; group <= kGroups && !candidates.empty(); ++group) {
        if (readFrameValue({"ContourGroups", "Var"}, group) == 0)
            writeFrameValue({"ContourGroups", "Var"},
                            candidates[static_cast<std::size_t>(group - 1) % candidates.size()],
                            group);
    }
    undo.end(host::UndoHistory::Closing::OneStep);
    return readFrameValue({"ContourGroups", "Var"}, 1) != 0;
}

toolbox::Set getActiveZones()
{
    return toolbox::StyleValue("ActiveFieldZones").read<toolbox::Set>().value_or(toolbox::Set());
}

bool isVolumeZone(CvlInt64 zone)
{
    host_access::countRead();
    const Frame* const frame = frameWithData();
    return frame && frame->data()->hasZone(zone) && frame->data()->zone(zone).isVolume();
}

bool drawsSurfaces(CvlInt64 map, bool orPoints)
{
    host_access::countRead();
    const Frame* const frame = frameWithData();
    return frame && frame->fieldMaps().has(map) && host::drawsSurfaces(*frame, map, orPoints);
}

bool checkRGBChannelVars(const toolbox::StyleValue& globalRGB)
{
    const Frame* const frame = Document::instance().frame(globalRGB.frame());
    if (!frame)
        return false;
    for (const char* channel : {"RedVar", "GreenVar", "BlueVar"}) {
        const toolbox::FrameStyleValue variable(frame->id(), "GlobalRGB", channel);
        if (variable.read<int>().value_or(0) == 0)
            return false;
    }
    return true;
}

} // namespace corvala::sdk
