// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/held_button.h"

#include "host/document/document.h"

#include <QEvent>
#include <QWidget>

namespace corvala::app {

namespace {

/// Lives as long as its widget.
class HeldButton : public QObject
{
public:
    explicit HeldButton(QWidget& widget)
        : QObject(&widget)
    {
        widget.installEventFilter(this);
    }
    ~HeldButton() override { end(); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress: begin(); break;
        case QEvent::MouseButtonRelease:
        case QEvent::Hide:
        case QEvent::FocusOut: end(); break;
        default: break;
        }
        return false;
    }

private:
    void begin()
    {
        end();
        host::Document::instance().undo().begin(UndoKind_StyleGroup);
        m_isOpen = true;
    }
    void end()
    {
        if (m_isOpen)
            host::Document::instance().undo().end(host::UndoHistory::Closing::OneStep);
        m_isOpen = false;
    }

    bool m_isOpen = false;
};

} // namespace

void mergeStepsWhileHeld(QWidget& widget)
{
    new HeldButton(widget);
}

} // namespace corvala::app
