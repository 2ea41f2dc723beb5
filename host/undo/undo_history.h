// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/events/state_event.h"
#include "sdk/base/types.h"

#include <QString>
#include <QUndoStack>

#include <memory>
#include <vector>

namespace corvala::host {

class Document;

/// One reversible change of the document. Made after the change was applied.
class Change
{
public:
    virtual ~Change() = default;
    virtual void undo(Document& document) = 0;
    virtual void redo(Document& document) = 0;
    virtual QString text() const = 0; ///< such as "Mesh type = Overlay (3 field maps)"
    virtual CvlUniqueId frame() const { return 0; }
    /// Adds what the change touches to the event that announces its undo or redo.
    virtual void describe(StateEvent& event) const = 0;
};

/// The undo list of the document. A change is a step of its own unless a bracket is open, or it
/// belongs to the same gesture of the user as the step before it.
class UndoHistory
{
public:
    explicit UndoHistory(Document& document);
    ~UndoHistory();

    void record(std::unique_ptr<Change> change);
    void clear(); ///< also closes brackets

    /// Brackets nest; the outermost decides.
    void begin(CvlInt64 kind);
    /// `discard` rolls back and forgets what the bracket recorded; `commit` closes it as one step.
    /// Without an open bracket nothing happens.
    void end(bool discard, bool commit);
    bool isBracketOpen() const { return m_depth > 0; }

    /// Changes recorded from now on belong to a new gesture, until endGesture.
    void beginGesture();
    void endGesture() { m_gesture = 0; }
    bool isInGesture() const { return m_gesture != 0; }

    bool undo(); ///< raises StateCode_UndoApplied; false when there is nothing
    bool redo(); ///< raises StateCode_RedoApplied; false when there is nothing
    int stepCount() const; ///< steps that can be undone
    QString undoText() const;

    /// For views and actions (createUndoAction); pushing to it is this class's business.
    const QUndoStack& stack() const { return m_stack; }

private:
    class Step;

    void announce(const Step& step, bool forward);

    Document& m_document;
    QUndoStack m_stack;
    int m_depth = 0;
    std::unique_ptr<Step> m_open;
    std::uint64_t m_gesture = 0;
    std::uint64_t m_lastGesture = 0;
};

} // namespace corvala::host
