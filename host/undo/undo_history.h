// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/events/state_event.h"
#include "vocabulary/types.h"

#include <QString>
#include <QUndoStack>

#include <memory>
#include <vector>

namespace corvala::host {

struct Change;
class Document;

/// The undo list of the document. A change is a step of its own unless a bracket is open, or it
/// belongs to the same gesture of the user as the step before it.
class UndoHistory
{
public:
    explicit UndoHistory(Document& document);
    ~UndoHistory();

    void record(Change change);
    void clear(); ///< also closes brackets

    /// Brackets nest; the outermost decides.
    void begin(CvlInt64 kind);
    enum class Closing {
        OneStep,
        SeparateSteps, ///< as if there had been no bracket
        Discard ///< takes back and forgets what was recorded
    };
    /// Closes the bracket; without an open one nothing happens.
    void end(Closing closing);
    bool isBracketOpen() const { return m_depth > 0; }

    /// Changes recorded from now on belong to a new gesture, until endGesture.
    void beginGesture();
    void endGesture() { m_gesture = 0; }
    bool isInGesture() const { return m_gesture != 0; }

    /// Raise what the changes of the step raised when they were made, one event per kind, then
    /// StateCode_UndoApplied or StateCode_RedoApplied. False when there is nothing.
    bool undo();
    bool redo();
    int stepCount() const; ///< steps that can be undone
    /// Of the last step: its first few different changes. The stack's own text is a short one, for
    /// commands.
    QString undoText() const;

    /// The present state is what a file has; the stack is clean while it is there (isClean).
    void markSaved() { m_stack.setClean(); }

    /// For views and actions (createUndoAction); pushing to it is this class's business.
    const QUndoStack& stack() const { return m_stack; }

private:
    class Step;

    bool step(bool forward);
    void announce(const Step& step, bool forward);

    Document& m_document;
    QUndoStack m_stack;
    int m_depth = 0;
    std::unique_ptr<Step> m_open;
    std::uint64_t m_gesture = 0;
    std::uint64_t m_lastGesture = 0;
};

} // namespace corvala::host
