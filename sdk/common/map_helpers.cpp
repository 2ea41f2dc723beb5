// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/common.h"

#include "host/document/document.h"
#include "host/document/layer_facts.h"
#include "sdk/private/frame_writes.h"
#include "sdk/private/read_count.h"
#include "sdk/private/set_record.h"

#include <algorithm>

namespace corvala::sdk {

using host::Document;
using host::Frame;

bool copyLineMaps(toolbox::Set lineMaps)
{
    return lineMaps.handle()
        && Document::instance().execute(host::CopyLineMaps {lineMaps.handle()->members}).isDone();
}

/// Enabled variables of the frame that are no coordinates, ascending; constants, which show
/// nothing, come last.
static std::vector<int> dataVariables(const Frame& frame)
{
    std::vector<int> numbers;
    for (const std::uint32_t number : frame.enabledVariables())
        if (!frame.data()->variable(number).isCoordinate())
            numbers.push_back(static_cast<int>(number));
    std::stable_partition(numbers.begin(), numbers.end(), [&frame](int number) {
        return !frame.data()->variable(number).isConstant;
    });
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
    if (!frame || readFrameValue(style::globalScatter.var) != 0)
        return false;
    const std::vector<int> candidates = dataVariables(*frame);
    if (candidates.empty())
        return false;
    host::SetStyle write {host::pathOf(style::globalScatter.var), double(candidates.front())};
    write.undoable = false;
    return Document::instance().execute(write).result == StyleWrite_Ok;
}

bool autoAssignAllContourGroupVariables(ContourLevelsInitializationMode_e)
{
    const Frame* const frame = frameWithData();
    if (!frame)
        return false;
    const std::vector<int> candidates = dataVariables(*frame);
    host::UndoHistory& undo = Document::instance().undo();
    undo.begin(UndoKind_StyleGroup);
    for (int group = 1; group <= style::ContourGroups::kCount && !candidates.empty(); ++group) {
        if (readFrameValue(style::contourGroups.var, group) == 0)
            writeFrameValue(style::contourGroups.var,
                            candidates[static_cast<std::size_t>(group - 1) % candidates.size()],
                            group);
    }
    undo.end(host::UndoHistory::Closing::OneStep);
    return readFrameValue(style::contourGroups.var, 1) != 0;
}

toolbox::Set getActiveZones()
{
    return toolbox::StyleValue(style::activeFieldZones)
        .read<toolbox::Set>()
        .value_or(toolbox::Set());
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
    const auto& channels = style::globalRgb;
    for (const style::VariableKey channel :
         {channels.redVar, channels.greenVar, channels.blueVar}) {
        const toolbox::FrameStyleValue variable(frame->id(), channel);
        if (variable.read<int>().value_or(0) == 0)
            return false;
    }
    return true;
}

} // namespace corvala::sdk
