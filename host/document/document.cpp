// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"

#include "host/operations/executor.h"

#include <algorithm>
#include <cmath>

namespace corvala::host {

/// Eight named colours, then hues in four brightnesses.
std::vector<Rgb> defaultPalette()
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

Outcome Document::execute(const Operation& operation)
{
    Executor executor(*this);
    const Outcome outcome = std::visit(executor, operation);
    m_executed(operation, outcome);
    for (const StateEvent& event : executor.events())
        raise(event);
    return outcome;
}

void Document::clear()
{
    m_undo.clear();
    m_frames.clear();
    m_values = ValueList(Scope::Document);
    m_palette = defaultPalette();
    m_active = makeFrame();
    for (const StateCode_e code : {StateCode_ActiveFrameChanged, StateCode_DocumentCleared}) {
        StateEvent event;
        event.code = code;
        event.frame = m_active->id();
        raise(event);
    }
}

Frame* Document::frame(CvlUniqueId id) const
{
    const auto found = std::find_if(m_frames.begin(), m_frames.end(),
                                    [id](const auto& frame) { return frame->id() == id; });
    return found == m_frames.end() ? nullptr : found->get();
}

Frame* Document::frameAt(CvlInt64 position) const
{
    return position >= 1 && position <= frameCount()
        ? m_frames[static_cast<std::size_t>(position - 1)].get()
        : nullptr;
}

void Document::keepView(CvlUniqueId id, int plotType, const std::string& view)
{
    Frame* const seen = frame(id);
    if (seen && view.empty())
        seen->m_views.erase(plotType);
    else if (seen)
        seen->m_views[plotType] = view;
}

void Document::activate(CvlUniqueId id)
{
    Frame* const wanted = frame(id);
    if (!wanted || wanted == m_active)
        return;
    m_active = wanted;
    StateEvent event;
    event.code = StateCode_ActiveFrameChanged;
    event.frame = id;
    raise(event);
}

namespace {

template<class... Functions>
struct Overloaded : Functions...
{
    using Functions::operator()...;
};
template<class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace

void Document::apply(const Change& change, bool forward)
{
    Frame* const changed = frame(change.frame);
    const auto result = [forward](const auto& delta) -> const auto&
    {
        return forward ? delta.after : delta.before;
    };
    const Overloaded applied {
        [&](const StyleDelta& delta) {
            for (const StyleDelta::Column& column : delta.columns)
                (changed->m_maps.*delta.table)
                    .apply(Schema::instance().at(column.attribute), column.chunks, forward);
        },
        [&](const ValueDelta& delta) {
            const Attribute& attribute = Schema::instance().at(delta.attribute);
            (changed ? changed->m_values : m_values).set(attribute, delta.index, result(delta));
            if (changed && attribute.id == style::plotType)
                changed->m_picks.clear(); // zones mean nothing on a line plot, and vice versa
        },
        [&](const SetDelta& delta) { changed->m_maps.*delta.set = result(delta); },
        [&](const MapsDelta& delta) {
            changed->m_maps = *result(delta);
            changed->m_picks.clear();
        },
        // Changed in place: states of the maps share the data, and there the name is the same.
        [&](const NameDelta& delta) {
            DataSet& data = *changed->m_maps.data;
            if (delta.isZone)
                data.renameZone(delta.number, result(delta));
            else
                data.renameVariable(delta.number, result(delta));
        },
        [&](const PaletteDelta& delta) {
            m_palette[static_cast<std::size_t>(delta.palette)] = result(delta);
        }};
    std::visit(applied, change.delta);
}

Rgb Document::color(int palette) const
{
    return palette >= 0 && palette < static_cast<int>(m_palette.size())
        ? m_palette[static_cast<std::size_t>(palette)]
        : Rgb {0, 0, 0};
}

} // namespace corvala::host
