// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "host/document/style_conversion.h"
#include "host/document/undo_texts.h"

#include <algorithm>

namespace corvala::host {

namespace {

/// An attribute that follows another one, and the value that it takes.
struct Follower
{
    AttributeId attribute = kNoAttribute;
    bool value = false;
};

/// A symbol is a shape or a character, whichever was chosen last: "IsASCII" follows both choices.
Follower followerOf(const Attribute& attribute, const ValueList::Value& value)
{
    const std::string& name = attribute.names.back();
    const bool isShape = name == "GeomShape";
    if (!isShape && name != "ASCIIChar")
        return {};
    return {
        Schema::instance().find({attribute.names[0], attribute.names[1], "SymbolShape", "IsASCII"}),
        !isShape || std::get<std::int32_t>(value) == GeomShape_Character};
}

/// Chunks of one attribute that a write replaces.
struct ColumnChange
{
    AttributeId attribute;
    std::vector<MapTable::ChunkChange> chunks;
};

ColumnChange planColumn(const MapTable& table, const Attribute& attribute, const NumberSet& maps,
                        const ValueList::Value& value)
{
    return {attribute.id,
            std::visit([&](const auto& v) { return table.plan(attribute, maps, v); }, value)};
}

bool areExisting(const NumberSet& numbers, CvlInt64 count)
{
    return !numbers.isEmpty() && numbers.minimum() >= 1
        && static_cast<CvlInt64>(numbers.maximum()) <= count;
}

} // namespace

StyleWriteResult_e Document::write(const StyleWrite& request)
{
    constexpr std::size_t kKept = 1000;
    const StyleWriteResult_e result = writeNow(request);
    m_writeRecords.push_back({request.path, request.objects ? *request.objects : NumberSet(),
                              request.offset1, request.offset2, request.op, request.value, result});
    if (m_writeRecords.size() > kKept)
        m_writeRecords.pop_front();
    return result;
}

StyleWriteResult_e Document::writeNow(const StyleWrite& request)
{
    const AttributeId id = Schema::instance().find(request.path);
    if (id == kNoAttribute)
        return StyleWrite_UnknownPath;
    if (id == kGroupAttribute)
        return StyleWrite_NotALeaf;
    const Attribute& attribute = Schema::instance().at(id);
    if (attribute.scope == Scope::Document)
        return writeToList(nullptr, attribute, request);
    if (!m_active)
        return StyleWrite_NoDocument;
    const bool needsData = attribute.scope != Scope::Frame || attribute.type == ValueType::Maps
        || attribute.type == ValueType::Variable;
    if (needsData && !m_active->hasData())
        return StyleWrite_NoDocument;
    if (attribute.type == ValueType::Maps)
        return writeSet(*m_active, attribute, request);
    if (attribute.scope == Scope::Frame)
        return writeToList(m_active, attribute, request);
    return writeToMaps(*m_active, attribute, request);
}

StateEvent Document::styleEvent(const Frame* frame, const Attribute& attribute,
                                std::vector<StyleChange> changes)
{
    StateEvent event;
    event.code = StateCode_Style;
    event.frame = frame ? frame->id() : 0;
    event.parameters = attribute.names;
    event.styleChanges = std::move(changes);
    return event;
}

StyleWriteResult_e Document::writeToMaps(Frame& frame, const Attribute& attribute,
                                         const StyleWrite& request)
{
    MapTable& table = attribute.scope == Scope::FieldMap ? frame.m_fieldStyle : frame.m_lineStyle;
    if (request.op != static_cast<int>(AssignOp::None))
        return StyleWrite_BadOperator;
    if (!request.objects || !areExisting(*request.objects, table.count()))
        return StyleWrite_BadObjects;
    ValueList::Value value;
    if (const auto result = convertValue(attribute, request.value, &frame, value);
        result != StyleWrite_Ok)
        return result;

    const NumberSet& maps = *request.objects;
    std::vector<ColumnChange> columns {planColumn(table, attribute, maps, value)};
    if (const Follower follower = followerOf(attribute, value); follower.attribute >= 0)
        columns.push_back(planColumn(table, Schema::instance().at(follower.attribute), maps,
                                     std::int32_t(follower.value)));
    columns.erase(std::remove_if(columns.begin(), columns.end(),
                                 [](const ColumnChange& column) { return column.chunks.empty(); }),
                  columns.end());
    if (columns.empty())
        return StyleWrite_Unchanged;

    Change change;
    change.frame = frame.id();
    change.text = assignmentText(attribute, request.value, maps.cardinality());
    std::vector<StyleChange> styleChanges;
    for (const ColumnChange& column : columns)
        styleChanges.push_back({column.attribute, maps});
    change.events = {styleEvent(&frame, attribute, std::move(styleChanges))};
    change.apply = [&table, columns = std::move(columns)](bool forward) {
        for (const ColumnChange& column : columns)
            table.apply(Schema::instance().at(column.attribute), column.chunks, forward);
    };
    perform(std::move(change));
    return StyleWrite_Ok;
}

StyleWriteResult_e Document::writeToList(Frame* frame, const Attribute& attribute,
                                         const StyleWrite& request)
{
    if (request.op != static_cast<int>(AssignOp::None))
        return StyleWrite_BadOperator;
    if (request.objects && !request.objects->isEmpty())
        return StyleWrite_BadObjects;
    if (attribute.indexCount > 0 && (request.offset1 < 1 || request.offset1 > attribute.indexCount))
        return StyleWrite_OutOfRange;
    ValueList::Value value;
    if (const auto result = convertValue(attribute, request.value, frame, value);
        result != StyleWrite_Ok)
        return result;
    ValueList& list = frame ? frame->m_values : m_values;
    const ValueList::Value before = list.get(attribute, request.offset1);
    if (before == value)
        return StyleWrite_Unchanged;

    const bool isPlotType = attribute.names.front() == "PlotType";
    Change change;
    change.frame = frame ? frame->id() : 0;
    change.text = assignmentText(attribute, request.value);
    change.events = {styleEvent(frame, attribute, {{attribute.id, {}}})};
    if (attribute.names.front() == "ContourGroups")
        change.events.push_back(eventOf(StateCode_ContourGroupChanged));
    change.apply = [&list, &attribute, frame, isPlotType, index = request.offset1, before,
                    value](bool forward) {
        list.set(attribute, index, forward ? value : before);
        if (isPlotType)
            frame->m_picks.clear(); // picks of zones mean nothing on a line plot, and vice versa
    };
    perform(std::move(change), request.undoable);
    return StyleWrite_Ok;
}

StyleWriteResult_e Document::writeSet(Frame& frame, const Attribute& attribute,
                                      const StyleWrite& request)
{
    const auto* const given = std::get_if<NumberSet>(&request.value);
    if (!given)
        return StyleWrite_WrongType;
    const bool isZones = attribute.names.front() == "ActiveFieldZones";
    const bool isLines = attribute.names.front() == "ActiveLineMaps";
    const CvlInt64 count = isZones ? frame.data()->zoneCount()
        : isLines                  ? frame.lineMapCount()
                                   : frame.fieldMapCount();
    const bool assigns = request.op == static_cast<int>(AssignOp::None);
    if (!assigns && request.op != static_cast<int>(AssignOp::Add)
        && request.op != static_cast<int>(AssignOp::Remove))
        return StyleWrite_BadOperator;
    if (!areExisting(*given, count) && !(assigns && given->isEmpty()))
        return StyleWrite_BadObjects;

    NumberSet operand = *given;
    if (isZones) {
        operand = NumberSet();
        for (const std::uint32_t zone : *given)
            operand.add(static_cast<std::uint32_t>(frame.fieldMaps().mapOfZone(zone)));
    }
    NumberSet& active = isLines ? frame.m_activeLineMaps : frame.m_activeFieldMaps;
    const NumberSet before = active;
    const NumberSet after = assigns                     ? operand
        : request.op == static_cast<int>(AssignOp::Add) ? before | operand
                                                        : before - operand;
    if (after == before)
        return StyleWrite_Unchanged;

    Change change;
    change.frame = frame.id();
    change.text = activationText(isLines ? Scope::LineMap : Scope::FieldMap, request.op,
                                 operand.cardinality());
    change.events = {styleEvent(&frame, attribute, {{attribute.id, before ^ after}})};
    change.apply = [&active, before, after](bool forward) { active = forward ? after : before; };
    perform(std::move(change));
    return StyleWrite_Ok;
}

} // namespace corvala::host
