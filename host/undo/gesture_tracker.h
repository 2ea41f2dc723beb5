// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPointer>

namespace corvala::host {

class UndoHistory;

/// Makes one undo step of all changes that one gesture of the user (a click, a key) brings about,
/// also through the menus and prompts that it opens: a gesture lasts until control is back in the
/// event loop that delivered it.
class GestureTracker : public QObject
{
    Q_OBJECT

public:
    /// Watches the application; the history must outlive the tracker, which ends its last gesture.
    explicit GestureTracker(UndoHistory& history, QObject* parent = nullptr);
    ~GestureTracker() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isNewGesture(const QObject& watched) const;

    UndoHistory& m_history;
    int m_loopLevel = 0; ///< of the event loop that delivered the gesture
    QPointer<QObject> m_end; ///< ends the gesture when it is deleted; deletes itself
};

} // namespace corvala::host
