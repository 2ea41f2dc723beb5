// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/gesture_tracker.h"

#include "host/undo/undo_history.h"

#include <QCoreApplication>
#include <QEvent>

namespace corvala::app {

GestureTracker::GestureTracker(host::UndoHistory& history, QObject* parent)
    : QObject(parent)
    , m_history(history)
{
    qApp->installEventFilter(this);
}

GestureTracker::~GestureTracker()
{
    qApp->removeEventFilter(this);
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

bool GestureTracker::eventFilter(QObject*, QEvent* event)
{
    if (isGesture(event->type()) && !m_history.isInGesture()) {
        m_history.beginGesture();
        // Qt deletes it when control is back in the loop that runs now, not in a nested one: the
        // only notice of that moment that there is.
        auto* end = new QObject;
        connect(end, &QObject::destroyed, this, [this] { m_history.endGesture(); });
        end->deleteLater();
    }
    return false;
}

} // namespace corvala::app
