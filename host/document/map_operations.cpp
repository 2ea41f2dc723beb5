// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "host/document/style_conversion.h"
#include "host/document/undo_texts.h"

#include <algorithm>

namespace corvala::host {

bool Document::areLineMaps(const NumberSet& maps) const
{
    return m_active && !maps.isEmpty() && maps.minimum() >= 1
        && static_cast<CvlInt64>(maps.maximum()) <= m_active->lineMapCount();
}

static const Attribute& activeLineMapsAttribute()
{
    static const Attribute& attribute = Schema::instance().leaf({"ActiveLineMaps"});
    return attribute;
}

void Document::rearrangeLineMaps(const std::vector<std::int64_t>& newToOld, NumberSet active,
                                 const QString& text)
{
    Frame& frame = *m_active;
    MapTable table = frame.m_lineStyle;
    table.rearrange(newToOld);

    struct State
    {
        MapTable::Columns columns;
        CvlInt64 count;
        NumberSet active;
    };
    const State before {frame.m_lineStyle.columns(), frame.lineMapCount(), frame.m_activeLineMaps};
    const State after {table.columns(), table.count(), std::move(active)};
    Change change;
    change.frame = frame.id();
    change.text = text;
    const Attribute& activeAttribute = activeLineMapsAttribute();
    if (!(before.active == after.active))
        change.events = {styleEvent(&frame, activeAttribute, {{activeAttribute.id, {}}})};
    change.events.push_back(eventOf(StateCode_LineMapListChanged));
    change.apply = [&frame, before, after](bool forward) {
        const State& state = forward ? after : before;
        frame.m_lineStyle.restore(state.columns, state.count);
        frame.m_activeLineMaps = state.active;
        frame.m_picks.clear();
    };
    perform(std::move(change));
}

/// The set after the maps moved: map n is what newToOld[n - 1] was.
static NumberSet renumbered(const NumberSet& set, const std::vector<std::int64_t>& newToOld)
{
    NumberSet result;
    for (std::size_t i = 0; i < newToOld.size(); ++i)
        if (newToOld[i] > 0 && set.contains(static_cast<std::uint32_t>(newToOld[i])))
            result.add(static_cast<std::uint32_t>(i + 1));
    return result;
}

static std::vector<std::int64_t> membersOf(const NumberSet& set)
{
    std::vector<std::int64_t> members;
    members.reserve(static_cast<std::size_t>(set.cardinality()));
    for (const std::uint32_t member : set)
        members.push_back(member);
    return members;
}

static std::vector<std::int64_t> numbersUpTo(CvlInt64 count)
{
    std::vector<std::int64_t> numbers(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = static_cast<std::int64_t>(i + 1);
    return numbers;
}

static QString countedText(const char* text, const NumberSet& maps, Scope scope = Scope::LineMap)
{
    return undoText(text).arg(mapCountText(scope, maps.cardinality()));
}

/// Whether the frame may have that many more line maps.
static bool hasRoomFor(const Frame& frame, CvlInt64 count)
{
    constexpr CvlInt64 kMost = 1000000;
    return count <= kMost - frame.lineMapCount();
}

CvlInt64 Document::createLineMaps(CvlInt64 count)
{
    if (!m_active || !m_active->hasData() || count < 1 || !hasRoomFor(*m_active, count))
        return 0;
    const CvlInt64 first = m_active->lineMapCount() + 1;
    std::vector<std::int64_t> newToOld = numbersUpTo(first - 1);
    newToOld.resize(newToOld.size() + static_cast<std::size_t>(count), 0);
    NumberSet created;
    created.addRange(static_cast<std::uint64_t>(first), static_cast<std::uint64_t>(first + count));
    rearrangeLineMaps(newToOld, m_active->m_activeLineMaps | created,
                      countedText(QT_TRANSLATE_NOOP("UndoTexts", "Create %1"), created));
    return first;
}

bool Document::copyLineMaps(const NumberSet& maps)
{
    if (!areLineMaps(maps) || !hasRoomFor(*m_active, static_cast<CvlInt64>(maps.cardinality())))
        return false;
    std::vector<std::int64_t> newToOld = numbersUpTo(m_active->lineMapCount());
    for (const std::uint32_t map : maps)
        newToOld.push_back(map);
    rearrangeLineMaps(newToOld, renumbered(m_active->m_activeLineMaps, newToOld),
                      countedText(QT_TRANSLATE_NOOP("UndoTexts", "Copy %1"), maps));
    return true;
}

bool Document::deleteLineMaps(const NumberSet& maps)
{
    if (!areLineMaps(maps))
        return false;
    const NumberSet kept = allUpTo(m_active->lineMapCount()) - maps;
    const std::vector<std::int64_t> newToOld = membersOf(kept);
    rearrangeLineMaps(newToOld, renumbered(m_active->m_activeLineMaps, newToOld),
                      countedText(QT_TRANSLATE_NOOP("UndoTexts", "Delete %1"), maps));
    return true;
}

bool Document::shiftLineMaps(const NumberSet& maps, bool toTop)
{
    if (!areLineMaps(maps))
        return false;
    std::vector<std::int64_t> newToOld = numbersUpTo(m_active->lineMapCount());
    const std::vector<std::int64_t> before = newToOld;
    std::stable_partition(newToOld.begin(), newToOld.end(), [&](std::int64_t map) {
        return maps.contains(static_cast<std::uint32_t>(map)) == toTop;
    });
    if (newToOld == before)
        return true;
    rearrangeLineMaps(newToOld, renumbered(m_active->m_activeLineMaps, newToOld),
                      countedText(toTop ? QT_TRANSLATE_NOOP("UndoTexts", "Move %1 to the top")
                                        : QT_TRANSLATE_NOOP("UndoTexts", "Move %1 to the bottom"),
                                  maps));
    return true;
}

/// The zones, ascending, whose field maps are in the set.
static std::vector<std::int64_t> zonesOf(const FieldMapList& fieldMaps, std::int64_t zoneCount,
                                         const NumberSet& maps)
{
    std::vector<std::int64_t> zones;
    for (std::int64_t zone = 1; zone <= zoneCount; ++zone)
        if (maps.contains(static_cast<std::uint32_t>(fieldMaps.mapOfZone(zone))))
            zones.push_back(zone);
    return zones;
}

static std::shared_ptr<DataSet> withZones(const DataSet& data,
                                          const std::vector<std::int64_t>& zones)
{
    auto reduced = std::make_shared<DataSet>(data);
    reduced->zones.clear();
    for (const std::int64_t zone : zones)
        reduced->zones.push_back(data.zone(zone));
    return reduced;
}

/// Line maps go on drawing their zones, under the new numbers; one whose zone is gone gets the
/// first.
static MapTable::Columns withZoneNumbers(MapTable lineStyle,
                                         const std::vector<std::int64_t>& keptZones)
{
    const Attribute& zone = Schema::instance().leaf({"LineMap", "Assign", "Zone"});
    lineStyle.transform(zone, [&](std::int32_t before) {
        const auto kept = std::lower_bound(keptZones.begin(), keptZones.end(), before);
        return kept != keptZones.end() && *kept == before
            ? static_cast<std::int32_t>(kept - keptZones.begin() + 1)
            : std::int32_t {1};
    });
    return lineStyle.columns();
}

bool Document::deleteFieldMaps(const NumberSet& maps)
{
    if (!m_active || !m_active->hasData() || maps.isEmpty() || maps.minimum() < 1
        || static_cast<CvlInt64>(maps.maximum()) > m_active->fieldMapCount())
        return false;
    Frame& frame = *m_active;
    const NumberSet kept = allUpTo(frame.fieldMapCount()) - maps;
    const std::vector<std::int64_t> newToOld = membersOf(kept);
    const std::vector<std::int64_t> keptZones =
        zonesOf(frame.m_fieldMaps, frame.m_data->zoneCount(), kept);
    const std::shared_ptr<DataSet> data = withZones(*frame.m_data, keptZones);
    MapTable table = frame.m_fieldStyle;
    table.rearrange(newToOld);

    struct State
    {
        std::shared_ptr<DataSet> data;
        FieldMapList fieldMaps;
        MapTable::Columns columns;
        MapTable::Columns lineColumns;
        NumberSet active;
        NumberSet enabledZones;
    };
    const auto before = std::make_shared<const State>(
        State {frame.m_data, frame.m_fieldMaps, frame.m_fieldStyle.columns(),
               frame.m_lineStyle.columns(), frame.m_activeFieldMaps, frame.m_enabledZones});
    const auto after = std::make_shared<const State>(State {
        data, FieldMapList(*data), table.columns(), withZoneNumbers(frame.m_lineStyle, keptZones),
        renumbered(frame.m_activeFieldMaps, newToOld),
        renumbered(frame.m_enabledZones, keptZones)});
    Change change;
    change.frame = frame.id();
    change.text = countedText(QT_TRANSLATE_NOOP("UndoTexts", "Delete %1"), maps, Scope::FieldMap);
    change.events = {eventOf(StateCode_FieldMapListChanged), eventOf(StateCode_ZonesRemoved)};
    change.apply = [&frame, before, after](bool forward) {
        const State& state = forward ? *after : *before;
        frame.m_data = state.data;
        frame.m_fieldMaps = state.fieldMaps;
        frame.m_fieldStyle.restore(state.columns, state.fieldMaps.count());
        frame.m_lineStyle.restore(state.lineColumns, frame.lineMapCount());
        frame.m_activeFieldMaps = state.active;
        frame.m_enabledZones = state.enabledZones;
        frame.m_picks.clear();
    };
    perform(std::move(change));
    return true;
}

/// Whether the text is UTF-8.
static bool isText(const std::string& text)
{
    static const Attribute& nameAttribute = Schema::instance().leaf({"LineMap", "Name"});
    ValueList::Value ignored;
    return convertValue(nameAttribute, text, nullptr, ignored) == StyleWrite_Ok;
}

/// A change of a text in the data set. The data set is shared by the states of deleted maps, where
/// the name belongs to the same zone, so it is changed in place.
static Change renaming(StateEvent event, std::string& name, const std::string& newName)
{
    Change change;
    change.frame = event.frame;
    change.events = {std::move(event)};
    change.text = undoText(QT_TRANSLATE_NOOP("UndoTexts", "Rename \"%1\" to \"%2\""))
                      .arg(QString::fromStdString(name), QString::fromStdString(newName));
    change.apply = [&name, before = name, newName](bool forward) {
        name = forward ? newName : before;
    };
    return change;
}

bool Document::renameZone(CvlInt64 zone, const std::string& name)
{
    if (!m_active || !m_active->hasData() || !m_active->data()->hasZone(zone) || !isText(name))
        return false;
    std::string& current = m_active->m_data->zones[static_cast<std::size_t>(zone - 1)].name;
    if (current == name)
        return true;
    perform(renaming(eventOf(StateCode_ZoneRenamed), current, name));
    return true;
}

bool Document::renameVariable(CvlInt64 variable, const std::string& name)
{
    if (!m_active || !m_active->hasData() || !m_active->data()->hasVariable(variable)
        || !isText(name))
        return false;
    std::string& current = m_active->m_data->variables[static_cast<std::size_t>(variable - 1)].name;
    if (current == name)
        return true;
    perform(renaming(eventOf(StateCode_VariableRenamed), current, name));
    return true;
}

bool Document::setLineMapName(const NumberSet& maps, const std::string& name)
{
    if (!areLineMaps(maps) || !isText(name))
        return false;
    Frame& frame = *m_active;
    const Attribute& attribute = Schema::instance().leaf({"LineMap", "Name"});
    auto chunks = frame.m_lineStyle.plan(attribute, maps, name);
    if (chunks.empty())
        return true;
    Change change;
    change.frame = frame.id();
    change.text = assignmentText(attribute, name, maps.cardinality());
    change.events = {eventOf(StateCode_LineMapRenamed)};
    change.apply = [&frame, &attribute, chunks = std::move(chunks)](bool forward) {
        frame.m_lineStyle.apply(attribute, chunks, forward);
    };
    perform(std::move(change));
    return true;
}

} // namespace corvala::host
