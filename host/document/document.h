// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/frame.h"
#include "host/events/state_event.h"
#include "host/style/style_request.h"
#include "host/undo/undo_history.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace corvala::host {

/// An RGB colour, 0 to 255 each.
struct Rgb
{
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
};

/// The document: frames in order, the active frame, styles, undo, events. One per process, used on
/// one thread. Operations that change it answer whether they did, raise their events after the
/// change is visible, and are undoable unless their comment says otherwise.
class Document
{
public:
    static Document& instance();

    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    StateEventSignal& events() { return m_events; }
    UndoHistory& undo() { return m_undo; }

    /// One frame without data, default styles, no undo history, no write records.
    void clear();

    // Frames. Operations on frames keep the undo history; deleting a frame is not undoable and
    // clears it.
    int frameCount() const { return static_cast<int>(m_frames.size()); }
    Frame* activeFrame() { return m_active; } ///< null without frames
    const Frame* activeFrame() const { return m_active; }
    Frame* frame(CvlUniqueId id); ///< null for an ID that is no longer a frame
    Frame* frameAt(int position); ///< from 0; null outside
    CvlUniqueId activeFrameId() const { return m_active ? m_active->id() : 0; }
    CvlUniqueId addFrame(); ///< appended and made active
    bool activateFrame(CvlUniqueId id);
    bool deleteFrame(CvlUniqueId id); ///< the frame before it, if any, becomes active

    // Data. These clear the undo history.
    /// Gives the active frame (made when there is none) the data set and a plot type to show it:
    /// default style, all maps active, `lineMaps` line maps with default style.
    void attachDataSet(std::shared_ptr<DataSet> data, PlotType_e plotType, CvlInt64 lineMaps);
    bool detachDataSet();

    // Style. See StyleWriteResult_e for the answers; a write is all or nothing.
    StyleWriteResult_e write(const StyleWrite& request);
    const std::deque<StyleWriteRecord>& writeRecords() const { return m_writeRecords; }
    void clearWriteRecords() { m_writeRecords.clear(); }
    const ValueList& documentValues() const { return m_values; }

    // Active frame. Answer false for bad numbers and without a frame.
    bool renameZone(CvlInt64 zone, const std::string& name);
    bool renameVariable(CvlInt64 variable, const std::string& name);
    bool setLineMapName(const NumberSet& maps, const std::string& name);
    bool enableZones(const NumberSet& zones); ///< the set of enabled zones; not undoable
    bool enableVariables(const NumberSet& variables); ///< not undoable
    bool setSolutionTime(double time); ///< not undoable
    void setPicks(std::vector<Pick> picks); ///< not undoable

    // Maps of the active frame. `maps` must be existing maps and not empty.
    CvlInt64 createLineMaps(
        CvlInt64 count); ///< appended, active, default style; number of the first, 0 on failure
    bool copyLineMaps(const NumberSet& maps);
    bool deleteLineMaps(const NumberSet& maps);
    bool shiftLineMaps(const NumberSet& maps, bool toTop);
    bool deleteFieldMaps(const NumberSet& maps); ///< with their zones

    Rgb color(int palette) const; ///< fixed palette, 0 to 63
    bool setPaletteColor(int palette, Rgb color); ///< not undoable

    // Recursive lock of the application.
    void lock() { ++m_lockDepth; }
    void unlock() { --m_lockDepth; }
    bool isLocked() const { return m_lockDepth > 0; }

    void raise(const StateEvent& event);

private:
    Document();
    ~Document();

    Frame* makeFrame();
    void proposeVariables(Frame& frame);
    StateEvent eventOf(StateCode_e code) const; ///< of the active frame
    static StateEvent styleEvent(const Frame* frame, const Attribute& attribute,
                                 std::vector<StyleChange> changes);
    void raiseCode(StateCode_e code) { raise(eventOf(code)); }
    /// Applies the change, records it for undo and raises its events.
    void perform(Change change, bool undoable = true);
    StyleWriteResult_e writeNow(const StyleWrite& request);
    StyleWriteResult_e writeToMaps(Frame& frame, const Attribute& attribute,
                                   const StyleWrite& request);
    StyleWriteResult_e writeToList(Frame* frame, const Attribute& attribute,
                                   const StyleWrite& request);
    StyleWriteResult_e writeSet(Frame& frame, const Attribute& attribute,
                                const StyleWrite& request);
    bool areLineMaps(const NumberSet& maps) const;
    void rearrangeLineMaps(const std::vector<std::int64_t>& newToOld, NumberSet active,
                           const QString& text);

    StateEventSignal m_events;
    std::vector<std::unique_ptr<Frame>> m_frames;
    Frame* m_active = nullptr;
    CvlUniqueId m_nextId = 1;
    ValueList m_values;
    std::vector<Rgb> m_palette;
    std::deque<StyleWriteRecord> m_writeRecords;
    int m_lockDepth = 0;
    UndoHistory m_undo;
};

} // namespace corvala::host
