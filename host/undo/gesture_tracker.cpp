// SPDX-License-Identifier: BSD-3-Clause
#include "host/undo/gesture_tracker.h"

#include "host/undo/undo_history.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace corvala::host {

GestureTracker::GestureTracker(UndoHistory& history, QObject* parent)
    : QObject(parent)
    , m_history(history)
{
    qApp->installEventFilter(this);
}

GestureTracker::~GestureTracker()
{
    qApp->removeEventFilter(this);
    delete m_end;
}

static bool isGesture(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::Drop: return true;
    default: return false;
    }
}

/// Input comes to a window first. While a gesture lasts, input that comes to a window in a nested
/// event loop belongs to it; in the loop of the gesture itself it begins the next one.
bool GestureTracker::isNewGesture(const QObject& watched) const
{
    return !m_history.isInGesture()
        || (watched.isWindowType() && QThread::currentThread()->loopLevel() <= m_loopLevel);
}

bool GestureTracker::eventFilter(QObject* watched, QEvent* event)
{
    if (!isGesture(event->type()) || !isNewGesture(*watched))
        return false;
    delete m_end;
    m_history.beginGesture();
    m_loopLevel = QThread::currentThread()->loopLevel();
    // Qt deletes it when control is back in the loop that runs now, not in a nested one.
    m_end = new QObject;
    connect(m_end, &QObject::destroyed, this, [this] { m_history.endGesture(); });
    m_end->deleteLater();
    return false;
}

} // namespace corvala::host
