// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"
#include "host/storage/stored_document.h"

#include <vector>

namespace corvala::host {

/// Does one operation: checks all of it, then changes the document and records the way back.
class Executor
{
public:
    explicit Executor(Document& document);

    Outcome operator()(const SetStyle& operation);
    Outcome operator()(const RenameZone& operation);
    Outcome operator()(const RenameVariable& operation);
    Outcome operator()(const RenameLineMaps& operation);
    Outcome operator()(const CreateLineMaps& operation);
    Outcome operator()(const CopyLineMaps& operation);
    Outcome operator()(const MoveLineMaps& operation);
    Outcome operator()(const DeleteMaps& operation);
    Outcome operator()(const EnableZones& operation);
    Outcome operator()(const EnableVariables& operation);
    Outcome operator()(const SetSolutionTime& operation);
    Outcome operator()(const SetPicks& operation);
    Outcome operator()(const SetPaletteColor& operation);
    Outcome operator()(const AddFrame& operation);
    Outcome operator()(const ActivateFrame& operation);
    Outcome operator()(const DeleteFrame& operation);
    Outcome operator()(const AttachData& operation);
    Outcome operator()(const DetachData& operation);
    Outcome operator()(const LoadDocument& operation);
    Outcome operator()(const ApplyStyles& operation);
    Outcome operator()(const AddData& operation);

    /// What is to be announced when everything else has been done.
    const std::vector<StateEvent>& events() const { return m_events; }

private:
    bool hasData() const { return m_frame && m_frame->hasData(); }
    FrameMaps& maps() { return m_frame->m_maps; }
    StateEvent eventOf(StateCode_e code) const; ///< of the active frame
    void announce(StateCode_e code) { m_events.push_back(eventOf(code)); }
    Outcome perform(Change change, bool undoable = true);

    /// Raises the style event unless another one is given.
    Outcome writeMaps(const Attribute& attribute, const SetStyle& operation,
                      std::optional<StateEvent> event = {});
    Outcome writeValue(Frame* frame, const Attribute& attribute, const SetStyle& operation);
    Change valueChange(const Frame* frame, const Attribute& attribute, std::int64_t index,
                       const ValueList::Value& before, const ValueList::Value& after,
                       const QString& text) const;
    Outcome writeSet(const Attribute& attribute, const SetStyle& operation);

    /// Makes an empty frame what was stored.
    static void restore(Frame& frame, const storage::StoredFrame& stored,
                        std::shared_ptr<DataSet> data);
    void applyValues(Frame* frame, const std::vector<storage::StoredValue>& stored,
                     const QString& text);
    void applyColumns(MapTable FrameMaps::*table, const std::vector<storage::StoredColumn>& columns,
                      const NumberSet& given, Scope scope, const QString& text);

    Outcome rename(bool isZone, CvlInt64 number, const std::string& name);
    Outcome enable(NumberSet FrameMaps::*set, const NumberSet& members, CvlInt64 count,
                   StateCode_e code, const char* text);
    Outcome deleteFieldMaps(const NumberSet& deleted);
    Outcome deleteLineMaps(const NumberSet& deleted);
    Outcome rearrangeLineMaps(const std::vector<std::int64_t>& newToOld, const QString& text);
    Outcome replaceMaps(FrameMaps after, const QString& text, std::vector<StateEvent> events);

    Document& m_document;
    Frame* m_frame; ///< the active one; null without frames
    std::vector<StateEvent> m_events;
};

/// Whether the set is not empty and holds numbers from 1 to `count` only.
bool areExisting(const NumberSet& numbers, CvlInt64 count);

/// Maps with default style for data (null for none), all active; `maps` is what they replace.
FrameMaps mapsFor(FrameMaps maps, std::shared_ptr<DataSet> data, CvlInt64 lineMaps);

/// Event of one style value of a frame (null: of the document).
StateEvent styleEvent(const Frame* frame, const Attribute& attribute,
                      std::vector<StyleChange> changes);

} // namespace corvala::host
