// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/undo_texts.h"
#include "host/operations/executor.h"

#include <algorithm>
#include <numeric>

namespace corvala::host {

/// Map n becomes what map newToOld[n - 1] is now; 0 stands for a new map.
using NewToOld = std::vector<std::int64_t>;

static void append(NewToOld& numbers, const NumberSet& set)
{
    for (const std::uint32_t number : set)
        numbers.push_back(number);
}

static NewToOld membersOf(const NumberSet& set)
{
    NewToOld members;
    append(members, set);
    return members;
}

static NewToOld numbersUpTo(CvlInt64 count)
{
    NewToOld numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

/// The set under the new numbers; new maps belong to it.
static NumberSet renumbered(const NumberSet& set, const NewToOld& newToOld)
{
    NumberSet result;
    for (std::size_t i = 0; i < newToOld.size(); ++i)
        if (newToOld[i] == 0 || set.contains(static_cast<std::uint32_t>(newToOld[i])))
            result.add(static_cast<std::uint32_t>(i + 1));
    return result;
}

static QString countedText(const char* text, std::uint64_t maps, Scope scope = Scope::LineMap)
{
    return undoText(text).arg(mapCountText(scope, maps));
}

Outcome Executor::replaceMaps(FrameMaps after, const QString& text, std::vector<StateEvent> events)
{
    Change change;
    change.frame = m_frame->id();
    change.text = text;
    change.events = std::move(events);
    change.delta = MapsDelta {std::make_shared<const FrameMaps>(maps()),
                              std::make_shared<const FrameMaps>(std::move(after))};
    return perform(std::move(change));
}

Outcome Executor::rearrangeLineMaps(const NewToOld& newToOld, const QString& text)
{
    static const Attribute& active = Schema::instance().at(style::activeLineMaps);
    FrameMaps after = maps();
    after.lineStyle.rearrange(newToOld);
    after.activeLineMaps = renumbered(maps().activeLineMaps, newToOld);
    std::vector<StateEvent> events;
    if (!(after.activeLineMaps == maps().activeLineMaps))
        events.push_back(styleEvent(m_frame, active, {{active.id, {}}}));
    events.push_back(eventOf(StateCode_LineMapListChanged));
    return replaceMaps(std::move(after), text, std::move(events));
}

/// What is wrong with a number of new line maps, if anything.
static StyleWriteResult_e checkRoom(const Frame* frame, CvlInt64 count)
{
    constexpr CvlInt64 kMost = 1000000;
    if (!frame || !frame->hasData())
        return StyleWrite_NoDocument;
    return count >= 1 && count <= kMost - frame->lineMapCount() ? StyleWrite_Ok
                                                                : StyleWrite_OutOfRange;
}

/// What is wrong with a set of line maps, if anything.
static StyleWriteResult_e checkLineMaps(const Frame* frame, const NumberSet& maps)
{
    if (!frame)
        return StyleWrite_NoDocument;
    return areExisting(maps, frame->lineMapCount()) ? StyleWrite_Ok : StyleWrite_BadObjects;
}

Outcome Executor::operator()(const CreateLineMaps& operation)
{
    if (const auto wrong = checkRoom(m_frame, operation.count))
        return {wrong};
    NewToOld newToOld = numbersUpTo(m_frame->lineMapCount());
    const auto first = static_cast<CvlInt64>(newToOld.size() + 1);
    newToOld.resize(newToOld.size() + static_cast<std::size_t>(operation.count), 0);
    rearrangeLineMaps(newToOld,
                      countedText(QT_TRANSLATE_NOOP("UndoTexts", "Create %1"),
                                  static_cast<std::uint64_t>(operation.count)));
    return {StyleWrite_Ok, first};
}

Outcome Executor::operator()(const CopyLineMaps& operation)
{
    const std::uint64_t count = operation.maps.cardinality();
    if (const auto wrong = checkLineMaps(m_frame, operation.maps))
        return {wrong};
    if (const auto wrong = checkRoom(m_frame, static_cast<CvlInt64>(count)))
        return {wrong};
    NewToOld newToOld = numbersUpTo(m_frame->lineMapCount());
    const auto first = static_cast<CvlInt64>(newToOld.size() + 1);
    append(newToOld, operation.maps);
    rearrangeLineMaps(newToOld, countedText(QT_TRANSLATE_NOOP("UndoTexts", "Copy %1"), count));
    return {StyleWrite_Ok, first};
}

Outcome Executor::operator()(const MoveLineMaps& operation)
{
    if (const auto wrong = checkLineMaps(m_frame, operation.maps))
        return {wrong};
    const NewToOld before = numbersUpTo(m_frame->lineMapCount());
    NewToOld newToOld = before;
    std::stable_partition(newToOld.begin(), newToOld.end(), [&](std::int64_t map) {
        return operation.maps.contains(static_cast<std::uint32_t>(map)) == operation.toTop;
    });
    if (newToOld == before)
        return {StyleWrite_Unchanged};
    return rearrangeLineMaps(
        newToOld,
        countedText(operation.toTop ? QT_TRANSLATE_NOOP("UndoTexts", "Move %1 to the top")
                                    : QT_TRANSLATE_NOOP("UndoTexts", "Move %1 to the bottom"),
                    operation.maps.cardinality()));
}

Outcome Executor::operator()(const DeleteMaps& operation)
{
    if (!hasData())
        return {StyleWrite_NoDocument};
    const bool areLineMaps = operation.kind == MapKind::Line
        || (operation.kind == MapKind::Shown && m_frame->isLinePlot());
    if (!areExisting(operation.maps,
                     areLineMaps ? m_frame->lineMapCount() : m_frame->fieldMapCount()))
        return {StyleWrite_BadObjects};
    return areLineMaps ? deleteLineMaps(operation.maps) : deleteFieldMaps(operation.maps);
}

Outcome Executor::deleteLineMaps(const NumberSet& deleted)
{
    return rearrangeLineMaps(
        membersOf(allUpTo(m_frame->lineMapCount()) - deleted),
        countedText(QT_TRANSLATE_NOOP("UndoTexts", "Delete %1"), deleted.cardinality()));
}

/// The zones, ascending, whose field maps are in the set.
static NewToOld zonesOf(const FrameMaps& frame, const NumberSet& maps)
{
    NewToOld zones;
    for (std::int64_t zone = 1; zone <= frame.data->zoneCount(); ++zone)
        if (maps.contains(static_cast<std::uint32_t>(frame.fieldMaps->mapOfZone(zone))))
            zones.push_back(zone);
    return zones;
}

/// Line maps go on drawing their zones, under the new numbers; one whose zone is gone gets the
/// first.
static void renumberZones(MapTable& lineStyle, const NewToOld& keptZones)
{
    lineStyle.transform(
        Schema::instance().at(style::lineMap.assign.zone), [&](std::int32_t before) {
            const auto kept = std::lower_bound(keptZones.begin(), keptZones.end(), before);
            return kept != keptZones.end() && *kept == before
                ? static_cast<std::int32_t>(kept - keptZones.begin() + 1)
                : std::int32_t {1};
        });
}

Outcome Executor::deleteFieldMaps(const NumberSet& deleted)
{
    const NumberSet kept = allUpTo(m_frame->fieldMapCount()) - deleted;
    const NewToOld newToOld = membersOf(kept);
    const NewToOld keptZones = zonesOf(maps(), kept);
    FrameMaps after = maps();
    after.data = maps().data->withZones(keptZones);
    if (!after.data->whole)
        after.data->whole = maps().data;
    after.fieldMaps = std::make_shared<FieldMapList>(*after.data);
    after.fieldStyle.rearrange(newToOld);
    renumberZones(after.lineStyle, keptZones);
    after.activeFieldMaps = renumbered(maps().activeFieldMaps, newToOld);
    after.enabledZones = renumbered(maps().enabledZones, keptZones);
    return replaceMaps(std::move(after),
                       countedText(QT_TRANSLATE_NOOP("UndoTexts", "Delete %1"),
                                   deleted.cardinality(), Scope::FieldMap),
                       {eventOf(StateCode_FieldMapListChanged), eventOf(StateCode_ZonesRemoved)});
}

Outcome Executor::operator()(const RenameLineMaps& operation)
{
    if (const auto wrong = checkLineMaps(m_frame, operation.maps))
        return {wrong};
    static const Attribute& name = Schema::instance().at(style::lineMap.name);
    return writeMaps(name, {name.names, operation.name, operation.maps},
                     eventOf(StateCode_LineMapRenamed));
}

} // namespace corvala::host
