// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/change.h"
#include "host/document/frame.h"
#include "host/events/state_event.h"
#include "host/operations/operation.h"
#include "host/undo/undo_history.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace corvala::host {

/// The colours of a new document.
std::vector<Rgb> defaultPalette();

/// Tells what was done, before its events are raised: operations that listeners do in answer come
/// after it.
using OperationSignal = boost::signals2::signal<void(const Operation&, const Outcome&)>;

/// The document: frames in order, the active frame, styles, undo, events. One per process, used on
/// one thread.
class Document
{
public:
    static Document& instance();

    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    /// Does the operation, or nothing; then raises its events.
    Outcome execute(const Operation& operation);

    StateEventSignal& events() { return m_events; }
    OperationSignal& executed() { return m_executed; } ///< also what was refused
    UndoHistory& undo() { return m_undo; }
    void raise(const StateEvent& event) { m_events(event); }

    /// One frame without data, default styles, no undo history.
    void clear();

    int frameCount() const { return static_cast<int>(m_frames.size()); }
    Frame* activeFrame() { return m_active; } ///< null without frames
    const Frame* activeFrame() const { return m_active; }
    CvlUniqueId activeFrameId() const { return m_active ? m_active->id() : 0; }
    Frame* frame(CvlUniqueId id) const; ///< null for an ID that is no longer a frame
    Frame* frameAt(CvlInt64 position) const; ///< from 1; null outside

    /// A style value: of a map (from 1), or of the frame or document, where an indexed one has an
    /// index from 1. Empty when path, frame, map or index do not exist. Reading a number allocates
    /// nothing.
    std::optional<StyleOutput> read(CvlUniqueId frame, AttributeId attribute, CvlInt64 map = 0,
                                    CvlInt64 index = -1) const;
    /// The same of the active frame.
    std::optional<StyleOutput> read(const std::vector<std::string>& path, CvlInt64 map = 0,
                                    CvlInt64 index = -1) const;

    /// Before the views of frames are stored: who has them keeps them (keepView).
    boost::signals2::signal<void()>& viewsWanted() { return m_viewsWanted; }
    /// Keeps what is seen of a frame as a plot type for files; nothing for an ID of no frame. A
    /// view is no part of what operations change.
    void keepView(CvlUniqueId frame, int plotType, const std::string& view);

    const ValueList& documentValues() const { return m_values; }
    Rgb color(int palette) const; ///< entry 0 to 63 of the palette, else black

    // Recursive lock of the application.
    void lock() { ++m_lockDepth; }
    void unlock() { --m_lockDepth; }
    bool isLocked() const { return m_lockDepth > 0; }

private:
    friend class Executor;
    friend class UndoHistory;

    Document();
    ~Document();

    Frame* makeFrame();
    void activate(CvlUniqueId frame); ///< with its event
    void apply(const Change& change, bool forward);

    StateEventSignal m_events;
    OperationSignal m_executed;
    boost::signals2::signal<void()> m_viewsWanted;
    std::vector<std::unique_ptr<Frame>> m_frames;
    Frame* m_active = nullptr;
    CvlUniqueId m_nextId = 1;
    ValueList m_values;
    std::vector<Rgb> m_palette;
    int m_lockDepth = 0;
    UndoHistory m_undo;
};

} // namespace corvala::host
