// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"

#include "host/document/undo_texts.h"

#include <algorithm>
#include <cmath>

namespace corvala::host {

/// Eight named colours, then hues in four brightnesses.
static std::vector<Rgb> defaultPalette()
{
    std::vector<Rgb> colors = {
        {0, 0, 0},     {255, 255, 255}, {214, 39, 40},  {44, 130, 44},
        {31, 95, 200}, {23, 160, 180},  {150, 60, 170}, {225, 130, 10},
    };
    constexpr int kHues = 14;
    static constexpr struct
    {
        double low, high;
    } kShades[] = {{0.0, 1.0}, {0.0, 0.6}, {0.5, 1.0}, {0.25, 0.8}};
    for (const auto& shade : kShades) {
        for (int hue = 0; hue < kHues; ++hue) {
            const auto channel = [&](double phase) {
                const double turn =
                    std::abs(std::remainder(double(hue) / kHues - phase, 1.0)) * 6.0;
                const double full = std::clamp(2.0 - turn, 0.0, 1.0);
                return static_cast<std::uint8_t>(
                    std::lround(255.0 * (shade.low + (shade.high - shade.low) * full)));
            };
            colors.push_back({channel(0.0), channel(1.0 / 3.0), channel(2.0 / 3.0)});
        }
    }
    return colors;
}

Document& Document::instance()
{
    static Document document;
    return document;
}

Document::Document()
    : m_values(Scope::Document)
    , m_palette(defaultPalette())
    , m_undo(*this)
{
    m_active = makeFrame();
}

Document::~Document() = default;

Frame* Document::makeFrame()
{
    m_frames.push_back(std::make_unique<Frame>(m_nextId++));
    return m_frames.back().get();
}

void Document::raise(const StateEvent& event)
{
    m_events(event);
}

StateEvent Document::eventOf(StateCode_e code) const
{
    StateEvent event;
    event.code = code;
    event.frame = activeFrameId();
    return event;
}

void Document::clear()
{
    m_undo.clear();
    m_frames.clear();
    m_values = ValueList(Scope::Document);
    m_palette = defaultPalette();
    m_writeRecords.clear();
    m_active = makeFrame();
    raiseCode(StateCode_ActiveFrameChanged);
    raiseCode(StateCode_DocumentCleared);
}

Frame* Document::frame(CvlUniqueId id)
{
    const auto found = std::find_if(m_frames.begin(), m_frames.end(),
                                    [id](const auto& frame) { return frame->id() == id; });
    return found == m_frames.end() ? nullptr : found->get();
}

Frame* Document::frameAt(int position)
{
    return position >= 0 && position < frameCount()
        ? m_frames[static_cast<std::size_t>(position)].get()
        : nullptr;
}

CvlUniqueId Document::addFrame()
{
    m_active = makeFrame();
    raiseCode(StateCode_ActiveFrameChanged);
    raiseCode(StateCode_FrameListChanged);
    return m_active->id();
}

bool Document::activateFrame(CvlUniqueId id)
{
    Frame* const wanted = frame(id);
    if (!wanted || wanted == m_active)
        return wanted != nullptr;
    m_active = wanted;
    raiseCode(StateCode_ActiveFrameChanged);
    return true;
}

bool Document::deleteFrame(CvlUniqueId id)
{
    const auto found = std::find_if(m_frames.begin(), m_frames.end(),
                                    [id](const auto& frame) { return frame->id() == id; });
    if (found == m_frames.end())
        return false;
    m_undo.clear();
    const bool wasActive = found->get() == m_active;
    const auto position = static_cast<int>(found - m_frames.begin());
    m_frames.erase(found);
    if (wasActive) {
        m_active = frameAt(std::max(0, position - 1));
        raiseCode(StateCode_ActiveFrameChanged);
    }
    raiseCode(StateCode_FrameListChanged);
    return true;
}

void Document::attachDataSet(std::shared_ptr<DataSet> data, PlotType_e plotType, CvlInt64 lineMaps)
{
    if (!m_active)
        addFrame();
    m_undo.clear();
    Frame& frame = *m_active;
    const Attribute& plotTypeAttribute = Schema::instance().leaf({"PlotType"});
    const bool newPlotType = frame.plotType() != plotType;

    frame.m_data = std::move(data);
    frame.m_fieldMaps = FieldMapList(*frame.m_data);
    for (MapTable* table : {&frame.m_fieldStyle, &frame.m_lineStyle})
        table->setCount(0);
    frame.m_fieldStyle.setCount(frame.m_fieldMaps.count());
    frame.m_lineStyle.setCount(lineMaps);
    frame.m_values = ValueList(Scope::Frame);
    frame.m_activeFieldMaps = allUpTo(frame.fieldMapCount());
    frame.m_activeLineMaps = allUpTo(lineMaps);
    frame.m_enabledZones = allUpTo(frame.m_data->zoneCount());
    frame.m_enabledVariables = allUpTo(frame.m_data->variableCount());
    frame.m_picks.clear();
    const std::vector<double> times = frame.m_data->solutionTimes();
    frame.m_solutionTime = times.empty() ? 0.0 : times.front();
    frame.m_values.set(plotTypeAttribute, -1, std::int32_t(plotType));
    proposeVariables(frame);

    if (newPlotType)
        raise(styleEvent(&frame, plotTypeAttribute, {{plotTypeAttribute.id, {}}}));
    raiseCode(StateCode_DataSetAttached);
}

void Document::proposeVariables(Frame& frame)
{
    const Schema& schema = Schema::instance();
    static constexpr const char* kVectorNames[] = {"UVar", "VVar", "WVar"};
    for (std::size_t i = 0; i < 3; ++i)
        frame.m_values.set(schema.leaf({"GlobalVector", kVectorNames[i]}), -1,
                           std::int32_t(frame.m_data->vectorVariables[i]));
    const Attribute& groups = schema.leaf({"ContourGroups", "Var"});
    const auto& proposed = frame.m_data->contourVariables;
    for (std::size_t i = 0; i < proposed.size() && i < std::size_t(groups.indexCount); ++i)
        frame.m_values.set(groups, static_cast<std::int64_t>(i + 1), std::int32_t(proposed[i]));
}

bool Document::detachDataSet()
{
    if (!m_active || !m_active->hasData())
        return false;
    m_undo.clear();
    Frame& frame = *m_active;
    frame.m_data.reset();
    frame.m_fieldMaps = FieldMapList();
    frame.m_fieldStyle.setCount(0);
    frame.m_lineStyle.setCount(0);
    frame.m_activeFieldMaps = NumberSet();
    frame.m_activeLineMaps = NumberSet();
    frame.m_enabledZones = NumberSet();
    frame.m_enabledVariables = NumberSet();
    frame.m_picks.clear();
    raiseCode(StateCode_DataSetDetached);
    return true;
}

void Document::perform(Change change, bool undoable)
{
    change.apply(true);
    const std::vector<StateEvent> events = change.events;
    if (undoable)
        m_undo.record(std::move(change));
    for (const StateEvent& event : events)
        raise(event);
}

bool Document::enableZones(const NumberSet& zones)
{
    if (!m_active || !m_active->hasData()
        || (!zones.isEmpty() && !m_active->data()->hasZone(zones.maximum())) || zones.contains(0))
        return false;
    m_active->m_enabledZones = zones;
    raiseCode(StateCode_ZonesRemoved);
    return true;
}

bool Document::enableVariables(const NumberSet& variables)
{
    if (!m_active || !m_active->hasData()
        || (!variables.isEmpty() && !m_active->data()->hasVariable(variables.maximum()))
        || variables.contains(0))
        return false;
    m_active->m_enabledVariables = variables;
    raiseCode(StateCode_VariableListChanged);
    return true;
}

bool Document::setSolutionTime(double time)
{
    if (!m_active || !m_active->hasData() || !std::isfinite(time))
        return false;
    if (m_active->m_solutionTime != time) {
        m_active->m_solutionTime = time;
        raiseCode(StateCode_SolutionTimeChanged);
    }
    return true;
}

void Document::setPicks(std::vector<Pick> picks)
{
    if (!m_active)
        return;
    m_active->m_picks = std::move(picks);
    raiseCode(StateCode_PickList);
}

Rgb Document::color(int palette) const
{
    return palette >= 0 && palette < static_cast<int>(m_palette.size())
        ? m_palette[static_cast<std::size_t>(palette)]
        : Rgb {0, 0, 0};
}

bool Document::setPaletteColor(int palette, Rgb color)
{
    if (palette < 0 || palette >= static_cast<int>(m_palette.size()))
        return false;
    m_palette[static_cast<std::size_t>(palette)] = color;
    raiseCode(StateCode_ColorTableChanged);
    return true;
}

} // namespace corvala::host
