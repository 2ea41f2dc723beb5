// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/undo_texts.h"
#include "host/operations/executor.h"
#include "host/storage/fitting.h"
#include "host/storage/stored_document.h"

#include <QFileInfo>

#include <algorithm>

namespace corvala::host {

using storage::StoredColumn;
using storage::StoredFrame;
using storage::StoredValue;

/// Whether the data are there that belong to the frames.
static bool areComplete(const LoadDocument& load)
{
    if (!load.document || load.data.size() != load.document->frames.size())
        return false;
    for (std::size_t i = 0; i < load.data.size(); ++i) {
        const StoredFrame& frame = load.document->frames[i];
        if (frame.data.empty() != !load.data[i] || (load.data[i] && !suits(frame, *load.data[i])))
            return false;
    }
    return true;
}

/// The data without zones that were deleted, under their new names.
static std::shared_ptr<DataSet> dataOf(const StoredFrame& stored, std::shared_ptr<DataSet> data)
{
    if (!stored.deletedZones.isEmpty()) {
        std::vector<std::int64_t> kept;
        for (const std::uint32_t zone : allUpTo(data->zoneCount()) - stored.deletedZones)
            kept.push_back(zone);
        const std::shared_ptr<DataSet> whole = std::exchange(data, data->withZones(kept));
        data->whole = whole;
    }
    for (const auto& [zone, name] : stored.zoneNames)
        data->renameZone(zone, name);
    for (const auto& [variable, name] : stored.variableNames)
        data->renameVariable(variable, name);
    return data;
}

static void fill(ValueList& values, const std::vector<StoredValue>& stored)
{
    for (const StoredValue& value : stored)
        values.set(Schema::instance().at(value.attribute), value.index, value.value);
}

static void fill(MapTable& table, const std::vector<StoredColumn>& columns)
{
    for (const StoredColumn& column : columns)
        table.fill(Schema::instance().at(column.attribute), column.values);
}

void Executor::restore(Frame& frame, const StoredFrame& stored, std::shared_ptr<DataSet> data)
{
    FrameMaps& maps = frame.m_maps;
    if (data) {
        data = dataOf(stored, std::move(data));
        const std::vector<double> times = data->solutionTimes();
        frame.m_solutionTime = stored.time.value_or(times.empty() ? 0.0 : times.front());
    }
    maps = mapsFor(std::move(maps), std::move(data), stored.lineMapCount);
    maps.origins = stored.data;
    const std::pair<NumberSet&, const std::optional<NumberSet>&> sets[] = {
        {maps.activeFieldMaps, stored.activeFieldMaps},
        {maps.activeLineMaps, stored.activeLineMaps},
        {maps.enabledZones, stored.enabledZones},
        {maps.enabledVariables, stored.enabledVariables}};
    for (const auto& [set, given] : sets)
        set = given.value_or(set);
    fill(frame.m_values, stored.values);
    fill(maps.fieldStyle, stored.fieldStyle);
    fill(maps.lineStyle, stored.lineStyle);
    frame.m_picks = stored.picks;
    frame.m_views = stored.views;
}

Outcome Executor::operator()(const LoadDocument& operation)
{
    if (!areComplete(operation))
        return {StyleWrite_NoDocument};
    const storage::StoredDocument& stored = *operation.document;
    Document& document = m_document;
    document.m_undo.clear();
    document.m_frames.clear();
    document.m_values = ValueList(Scope::Document);
    fill(document.m_values, stored.values);
    document.m_palette = defaultPalette();
    for (const auto& [entry, color] : stored.palette)
        document.m_palette[static_cast<std::size_t>(entry)] = color;
    for (std::size_t i = 0; i < stored.frames.size(); ++i)
        restore(*document.makeFrame(), stored.frames[i], operation.data[i]);
    document.m_active = m_frame = document.frameAt(stored.activeFrame);
    announce(StateCode_ActiveFrameChanged);
    announce(StateCode_FrameListChanged);
    announce(StateCode_DocumentLoaded);
    return {};
}

/// The stored value, or the default one.
static ValueList::Value valueIn(const std::vector<StoredValue>& stored, const ValueList& defaults,
                                const Attribute& attribute, std::int64_t index)
{
    const auto found = std::find_if(stored.begin(), stored.end(), [&](const StoredValue& value) {
        return value.attribute == attribute.id && (value.index == index || value.index < 0);
    });
    return found == stored.end() ? defaults.get(attribute, index) : found->value;
}

void Executor::applyValues(Frame* frame, const std::vector<StoredValue>& stored,
                           const QString& text)
{
    const Scope scope = frame ? Scope::Frame : Scope::Document;
    const ValueList defaults(scope);
    for (const AttributeId id : Schema::instance().inScope(scope)) {
        const Attribute& attribute = Schema::instance().at(id);
        if (attribute.type == ValueType::Numbers || id == style::plotType)
            continue;
        for (std::int64_t index = 1; index <= std::max(1, attribute.indexCount); ++index) {
            const ValueList& values = frame ? frame->m_values : m_document.m_values;
            const ValueList::Value after = valueIn(stored, defaults, attribute, index);
            if (const ValueList::Value& before = values.get(attribute, index); before != after)
                perform(valueChange(frame, attribute, index, before, after, text));
        }
    }
}

/// What of the values is for maps of the set.
static std::vector<MapTable::ValueOfMaps> membersIn(std::vector<MapTable::ValueOfMaps> values,
                                                    const NumberSet& maps)
{
    for (MapTable::ValueOfMaps& entry : values)
        entry.maps &= maps;
    return values;
}

void Executor::applyColumns(MapTable FrameMaps::*table, const std::vector<StoredColumn>& columns,
                            const NumberSet& given, Scope scope, const QString& text)
{
    MapTable after = maps().*table;
    Change change;
    change.frame = m_frame->id();
    change.text = text;
    StyleDelta delta {table, {}};
    for (const AttributeId id : Schema::instance().inScope(scope)) {
        const Attribute& attribute = Schema::instance().at(id);
        const auto column =
            std::find_if(columns.begin(), columns.end(),
                         [id](const StoredColumn& one) { return one.attribute == id; });
        after.reset(attribute, given);
        if (column != columns.end())
            after.fill(attribute, membersIn(column->values, given));
        auto chunks = (maps().*table).changesTo(after, attribute);
        if (chunks.empty())
            continue;
        change.events.push_back(styleEvent(m_frame, attribute, {{id, given}}));
        delta.columns.push_back({id, std::move(chunks)});
    }
    if (delta.columns.empty())
        return;
    change.delta = std::move(delta);
    perform(std::move(change));
}

Outcome Executor::operator()(const ApplyStyles& operation)
{
    if (!operation.styles || !m_frame)
        return {StyleWrite_NoDocument};
    const storage::StyleSheet& sheet = *operation.styles;
    const QString name = QFileInfo(QString::fromStdString(operation.file)).fileName();
    const QString text = undoText(QT_TRANSLATE_NOOP("UndoTexts", "Load styles of %1")).arg(name);
    m_document.undo().begin(0);
    applyValues(nullptr, sheet.values, text);
    std::vector<Rgb> palette = defaultPalette();
    for (const auto& [entry, color] : sheet.palette)
        palette[static_cast<std::size_t>(entry)] = color;
    for (int entry = 0; entry < static_cast<int>(palette.size()); ++entry)
        (*this)(SetPaletteColor {entry, palette[static_cast<std::size_t>(entry)]});
    applyValues(m_frame, sheet.frame.values, text);
    applyColumns(&FrameMaps::fieldStyle, sheet.frame.fieldStyle, sheet.fieldMaps, Scope::FieldMap,
                 text);
    applyColumns(&FrameMaps::lineStyle, sheet.frame.lineStyle, sheet.lineMaps, Scope::LineMap,
                 text);
    m_document.undo().end(UndoHistory::Closing::OneStep);
    return {m_events.empty() ? StyleWrite_Unchanged : StyleWrite_Ok};
}

} // namespace corvala::host
