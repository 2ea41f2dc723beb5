// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/line_map_name.h"
#include "host/document/style_conversion.h"
#include "host/document/undo_texts.h"
#include "host/operations/executor.h"

#include <algorithm>

namespace corvala::host {

bool areExisting(const NumberSet& numbers, CvlInt64 count)
{
    return !numbers.isEmpty() && numbers.minimum() >= 1
        && static_cast<CvlInt64>(numbers.maximum()) <= count;
}

StateEvent styleEvent(const Frame* frame, const Attribute& attribute,
                      std::vector<StyleChange> changes)
{
    StateEvent event;
    event.code = StateCode_Style;
    event.frame = frame ? frame->id() : 0;
    event.parameters = attribute.names;
    event.styleChanges = std::move(changes);
    return event;
}

namespace {

/// An attribute that follows another one, and the value that it takes.
struct Follower
{
    AttributeId attribute = kNoAttribute;
    std::int32_t value = 0;
};

/// A symbol is a shape or a character, whichever was chosen last: "IsASCII" follows both choices.
/// Choosing one of the extended fits makes the curve one.
Follower followerOf(const Attribute& attribute, const ValueList::Value& value)
{
    for (const style::SymbolShape* symbol :
         {&style::fieldMap.scatter.symbolShape, &style::lineMap.symbols.symbolShape}) {
        if (attribute.id == symbol->geomShape)
            return {symbol->isAscii, std::get<std::int32_t>(value) == GeomShape_Character};
        if (attribute.id == symbol->asciiShape.asciiChar)
            return {symbol->isAscii, true};
    }
    if (attribute.id == style::lineMap.curves.extendedFit)
        return {style::lineMap.curves.curveType, CurveType_Extended};
    return {};
}

void addColumn(StyleDelta& delta, const MapTable& table, const Attribute& attribute,
               const NumberSet& maps, const ValueList::Value& value)
{
    auto chunks = std::visit([&](const auto& v) { return table.plan(attribute, maps, v); }, value);
    if (!chunks.empty())
        delta.columns.push_back({attribute.id, std::move(chunks)});
}

} // namespace

Outcome Executor::operator()(const SetStyle& operation)
{
    const AttributeId id = Schema::instance().find(operation.path);
    if (id == kNoAttribute)
        return {StyleWrite_UnknownPath};
    if (id == kGroupAttribute)
        return {StyleWrite_NotALeaf};
    const Attribute& attribute = Schema::instance().at(id);
    if (attribute.scope == Scope::Document)
        return writeValue(nullptr, attribute, operation);
    const bool needsData = attribute.scope != Scope::Frame || attribute.type == ValueType::Numbers
        || attribute.type == ValueType::Variable;
    if (!m_frame || (needsData && !hasData()))
        return {StyleWrite_NoDocument};
    if (attribute.type == ValueType::Numbers)
        return writeSet(attribute, operation);
    if (attribute.scope == Scope::Frame)
        return writeValue(m_frame, attribute, operation);
    return writeMaps(attribute, operation);
}

Outcome Executor::writeMaps(const Attribute& attribute, const SetStyle& operation,
                            std::optional<StateEvent> event)
{
    MapTable FrameMaps::*const table =
        attribute.scope == Scope::FieldMap ? &FrameMaps::fieldStyle : &FrameMaps::lineStyle;
    const MapTable& style = maps().*table;
    if (operation.op != AssignOp_None)
        return {StyleWrite_BadOperator};
    if (!operation.maps || !areExisting(*operation.maps, style.count()))
        return {StyleWrite_BadObjects};
    ValueList::Value value;
    if (const auto wrong = convertValue(attribute, operation.value, m_frame, value))
        return {wrong};
    StyleDelta delta {table, {}};
    addColumn(delta, style, attribute, *operation.maps, value);
    if (const Follower follower = followerOf(attribute, value); follower.attribute >= 0)
        addColumn(delta, style, Schema::instance().at(follower.attribute), *operation.maps,
                  std::int32_t(follower.value));
    if (delta.columns.empty())
        return {StyleWrite_Unchanged};

    if (!event) {
        event = styleEvent(m_frame, attribute, {});
        for (const StyleDelta::Column& column : delta.columns)
            event->styleChanges.push_back({column.attribute, *operation.maps});
    }
    Change change;
    change.frame = m_frame->id();
    change.text = assignmentText(attribute, operation.value, operation.maps->cardinality());
    change.events = {std::move(*event)};
    change.delta = std::move(delta);
    return perform(std::move(change), operation.undoable);
}

Outcome Executor::writeValue(Frame* frame, const Attribute& attribute, const SetStyle& operation)
{
    if (operation.op != AssignOp_None)
        return {StyleWrite_BadOperator};
    if (operation.maps && !operation.maps->isEmpty())
        return {StyleWrite_BadObjects};
    if (attribute.indexCount > 0 && (operation.index < 1 || operation.index > attribute.indexCount))
        return {StyleWrite_OutOfRange};
    ValueList::Value value;
    if (const auto wrong = convertValue(attribute, operation.value, frame, value))
        return {wrong};
    const ValueList& values = frame ? frame->values() : m_document.documentValues();
    const ValueList::Value& before = values.get(attribute, operation.index);
    if (before == value)
        return {StyleWrite_Unchanged};

    return perform(valueChange(frame, attribute, operation.index, before, value,
                               assignmentText(attribute, operation.value)),
                   operation.undoable);
}

Change Executor::valueChange(const Frame* frame, const Attribute& attribute, std::int64_t index,
                             const ValueList::Value& before, const ValueList::Value& after,
                             const QString& text) const
{
    Change change;
    change.frame = frame ? frame->id() : 0;
    change.text = text;
    change.events = {styleEvent(frame, attribute, {{attribute.id, {}}})};
    if (attribute.id == style::contourGroups.var)
        change.events.push_back(eventOf(StateCode_ContourGroupChanged));
    change.delta = ValueDelta {attribute.id, index, before, after};
    return change;
}

/// The maps that an operand names: itself, or the maps of its zones.
static NumberSet mapsOf(const FieldMapList& fieldMaps, const NumberSet& operand, bool areZones)
{
    if (!areZones)
        return operand;
    NumberSet maps;
    for (const std::uint32_t zone : operand)
        maps.add(static_cast<std::uint32_t>(fieldMaps.mapOfZone(zone)));
    return maps;
}

/// One by its name, more by their number.
static QString mapsText(const Frame& frame, const NumberSet& maps, bool areLines)
{
    if (maps.cardinality() == 1) {
        const CvlInt64 map = maps.minimum();
        const CvlInt64 zone = areLines ? 0 : frame.candidateZone(map);
        if (areLines || zone > 0)
            return QString::fromStdString(areLines ? shownLineMapName(frame, map)
                                                   : frame.data()->zone(zone).name);
    }
    return mapCountText(areLines ? Scope::LineMap : Scope::FieldMap, maps.cardinality());
}

Outcome Executor::writeSet(const Attribute& attribute, const SetStyle& operation)
{
    const auto* const given = std::get_if<NumberSet>(&operation.value);
    if (!given)
        return {StyleWrite_WrongType};
    const bool areZones = attribute.id == style::activeFieldZones;
    const bool areLines = attribute.id == style::activeLineMaps;
    const CvlInt64 count = areZones ? m_frame->data()->zoneCount()
        : areLines                  ? m_frame->lineMapCount()
                                    : m_frame->fieldMapCount();
    const AssignOp_e op = operation.op;
    if (op != AssignOp_None && op != AssignOp_Add && op != AssignOp_Remove)
        return {StyleWrite_BadOperator};
    if (!areExisting(*given, count) && !(op == AssignOp_None && given->isEmpty()))
        return {StyleWrite_BadObjects};
    NumberSet FrameMaps::*const set =
        areLines ? &FrameMaps::activeLineMaps : &FrameMaps::activeFieldMaps;
    const NumberSet operand = mapsOf(m_frame->fieldMaps(), *given, areZones);
    const NumberSet& before = maps().*set;
    const NumberSet after = op == AssignOp_None ? operand
        : op == AssignOp_Add                    ? before | operand
                                                : before - operand;
    if (after == before)
        return {StyleWrite_Unchanged};

    Change change;
    change.frame = m_frame->id();
    change.text = activationText(op, mapsText(*m_frame, operand, areLines));
    change.events = {styleEvent(m_frame, attribute, {{attribute.id, before ^ after}})};
    change.delta = SetDelta {set, before, after};
    return perform(std::move(change), operation.undoable);
}

} // namespace corvala::host
