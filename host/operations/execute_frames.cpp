// SPDX-License-Identifier: BSD-3-Clause
#include "host/operations/executor.h"

#include <algorithm>

namespace corvala::host {

Outcome Executor::operator()(const AddFrame&)
{
    m_document.m_active = m_frame = m_document.makeFrame();
    announce(StateCode_ActiveFrameChanged);
    announce(StateCode_FrameListChanged);
    return {};
}

Outcome Executor::operator()(const ActivateFrame& operation)
{
    Frame* const wanted = m_document.frameAt(operation.position);
    if (!wanted)
        return {StyleWrite_BadObjects};
    if (wanted == m_frame)
        return {StyleWrite_Unchanged};
    m_document.m_active = m_frame = wanted;
    announce(StateCode_ActiveFrameChanged);
    return {};
}

Outcome Executor::operator()(const DeleteFrame&)
{
    if (!m_frame)
        return {StyleWrite_NoDocument};
    m_document.undo().clear();
    auto& frames = m_document.m_frames;
    const auto found = std::find_if(frames.begin(), frames.end(),
                                    [this](const auto& frame) { return frame.get() == m_frame; });
    const auto next = frames.erase(found);
    m_frame = frames.empty()     ? nullptr
        : next == frames.begin() ? next->get()
                                 : std::prev(next)->get();
    m_document.m_active = m_frame;
    announce(StateCode_ActiveFrameChanged);
    announce(StateCode_FrameListChanged);
    return {};
}

FrameMaps mapsFor(FrameMaps maps, std::shared_ptr<DataSet> data, CvlInt64 lineMaps)
{
    maps.fieldMaps = std::make_shared<FieldMapList>(data ? FieldMapList(*data) : FieldMapList());
    for (MapTable* const table : {&maps.fieldStyle, &maps.lineStyle})
        table->setCount(0); // drops what is there
    maps.fieldStyle.setCount(maps.fieldMaps->count());
    maps.lineStyle.setCount(lineMaps);
    maps.activeFieldMaps = allUpTo(maps.fieldMaps->count());
    maps.activeLineMaps = allUpTo(lineMaps);
    maps.enabledZones = allUpTo(data ? data->zoneCount() : 0);
    maps.enabledVariables = allUpTo(data ? data->variableCount() : 0);
    maps.data = std::move(data);
    return maps;
}

/// Gives the frame the variables that its data propose.
static void proposeVariables(const DataSet& data, ValueList& values)
{
    const Schema& schema = Schema::instance();
    constexpr style::VariableKey kVector[] = {style::globalVector.uVar, style::globalVector.vVar,
                                              style::globalVector.wVar};
    for (std::size_t i = 0; i < 3; ++i)
        values.set(schema.at(kVector[i]), -1, std::int32_t(data.vectorVariables[i]));
    const Attribute& groups = schema.at(style::contourGroups.var);
    const auto& proposed = data.contourVariables;
    for (std::size_t i = 0; i < proposed.size() && i < std::size_t(groups.indexCount); ++i)
        values.set(groups, static_cast<std::int64_t>(i + 1), std::int32_t(proposed[i]));
}

Outcome Executor::operator()(const AttachData& operation)
{
    if (!operation.data)
        return {StyleWrite_NoDocument};
    if (!m_frame)
        (*this)(AddFrame {});
    m_document.undo().clear();
    const Attribute& plotType = Schema::instance().at(style::plotType);
    const bool newPlotType = m_frame->plotType() != operation.plotType;
    maps() = mapsFor(std::move(maps()), operation.data, operation.lineMaps);
    maps().origins = {operation.origin};
    m_frame->m_values = ValueList(Scope::Frame);
    m_frame->m_values.set(plotType, -1, std::int32_t(operation.plotType));
    proposeVariables(*operation.data, m_frame->m_values);
    m_frame->m_picks.clear();
    m_frame->m_views.clear();
    const std::vector<double> times = operation.data->solutionTimes();
    m_frame->m_solutionTime = times.empty() ? 0.0 : times.front();
    if (newPlotType)
        m_events.push_back(styleEvent(m_frame, plotType, {{plotType.id, {}}}));
    announce(StateCode_DataSetAttached);
    return {};
}

Outcome Executor::operator()(const DetachData&)
{
    if (!hasData())
        return {StyleWrite_NoDocument};
    m_document.undo().clear();
    maps() = mapsFor(std::move(maps()), nullptr, 0);
    maps().origins.clear();
    m_frame->m_picks.clear();
    announce(StateCode_DataSetDetached);
    return {};
}

} // namespace corvala::host
