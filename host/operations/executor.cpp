// SPDX-License-Identifier: BSD-3-Clause
#include "host/operations/executor.h"

#include "host/document/style_conversion.h"
#include "host/document/undo_texts.h"

#include <algorithm>
#include <cmath>

namespace corvala::host {

Executor::Executor(Document& document)
    : m_document(document)
    , m_frame(document.activeFrame())
{
}

StateEvent Executor::eventOf(StateCode_e code) const
{
    StateEvent event;
    event.code = code;
    event.frame = m_document.activeFrameId();
    return event;
}

Outcome Executor::perform(Change change, bool undoable)
{
    m_document.apply(change, true);
    m_events.insert(m_events.end(), change.events.begin(), change.events.end());
    if (undoable)
        m_document.undo().record(std::move(change));
    return {};
}

/// Whether the text is UTF-8.
static bool isText(const std::string& text)
{
    static const Attribute& nameAttribute = Schema::instance().at(style::lineMap.name);
    ValueList::Value ignored;
    return convertValue(nameAttribute, text, nullptr, ignored) == StyleWrite_Ok;
}

Outcome Executor::rename(bool isZone, CvlInt64 number, const std::string& name)
{
    if (!hasData())
        return {StyleWrite_NoDocument};
    const DataSet& data = *m_frame->data();
    if (isZone ? !data.hasZone(number) : !data.hasVariable(number))
        return {StyleWrite_BadObjects};
    if (!isText(name))
        return {StyleWrite_WrongType};
    const std::string& before = isZone ? data.zone(number).name : data.variable(number).name;
    if (before == name)
        return {StyleWrite_Unchanged};
    Change change;
    change.frame = m_frame->id();
    change.text = undoText(QT_TRANSLATE_NOOP("UndoTexts", "Rename \"%1\" to \"%2\""))
                      .arg(QString::fromStdString(before), QString::fromStdString(name));
    change.events = {eventOf(isZone ? StateCode_ZoneRenamed : StateCode_VariableRenamed)};
    change.delta = NameDelta {isZone, number, before, name};
    return perform(std::move(change));
}

Outcome Executor::operator()(const RenameZone& operation)
{
    return rename(true, operation.zone, operation.name);
}

Outcome Executor::operator()(const RenameVariable& operation)
{
    return rename(false, operation.variable, operation.name);
}

Outcome Executor::enable(NumberSet FrameMaps::*set, const NumberSet& members, CvlInt64 count,
                         StateCode_e code, const char* text)
{
    if (!members.isEmpty()
        && (members.contains(0) || static_cast<CvlInt64>(members.maximum()) > count))
        return {StyleWrite_BadObjects};
    const NumberSet& before = maps().*set;
    if (before == members)
        return {StyleWrite_Unchanged};
    Change change;
    change.frame = m_frame->id();
    change.text = undoText(text).arg(members.cardinality());
    change.events = {eventOf(code)};
    change.delta = SetDelta {set, before, members};
    return perform(std::move(change));
}

Outcome Executor::operator()(const EnableZones& operation)
{
    if (!hasData())
        return {StyleWrite_NoDocument};
    return enable(&FrameMaps::enabledZones, operation.zones, m_frame->data()->zoneCount(),
                  StateCode_ZonesRemoved, QT_TRANSLATE_NOOP("UndoTexts", "Enable %1 zones"));
}

Outcome Executor::operator()(const EnableVariables& operation)
{
    if (!hasData())
        return {StyleWrite_NoDocument};
    return enable(&FrameMaps::enabledVariables, operation.variables,
                  m_frame->data()->variableCount(), StateCode_VariableListChanged,
                  QT_TRANSLATE_NOOP("UndoTexts", "Enable %1 variables"));
}

Outcome Executor::operator()(const SetSolutionTime& operation)
{
    if (!hasData())
        return {StyleWrite_NoDocument};
    if (!std::isfinite(operation.time))
        return {StyleWrite_OutOfRange};
    if (m_frame->m_solutionTime == operation.time)
        return {StyleWrite_Unchanged};
    m_frame->m_solutionTime = operation.time;
    announce(StateCode_SolutionTimeChanged);
    return {};
}

Outcome Executor::operator()(const SetPicks& operation)
{
    if (!m_frame)
        return {StyleWrite_NoDocument};
    m_frame->m_picks = operation.picks;
    announce(StateCode_PickList);
    return {};
}

Outcome Executor::operator()(const SetPaletteColor& operation)
{
    if (operation.palette < 0 || operation.palette >= static_cast<int>(m_document.m_palette.size()))
        return {StyleWrite_OutOfRange};
    const Rgb before = m_document.color(operation.palette);
    if (before == operation.color)
        return {StyleWrite_Unchanged};
    Change change;
    change.text = undoText(QT_TRANSLATE_NOOP("UndoTexts", "Color %1")).arg(operation.palette);
    change.events = {eventOf(StateCode_ColorTableChanged)};
    change.delta = PaletteDelta {operation.palette, before, operation.color};
    return perform(std::move(change));
}

} // namespace corvala::host
