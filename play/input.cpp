// SPDX-License-Identifier: BSD-3-Clause
#include "play/input.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace corvala::play {

/// The native window that gets the events of the widget, and where the widget's
/// point lies in it.
struct Target
{
    QPointer<QWindow> window;
    QPoint position;
};

/// What the window manager does for a person: the window that is used is the
/// active one.
static void activate(QWidget* widget)
{
    QWidget* window = widget->window();
    if (QApplication::activePopupWidget() || window->windowType() == Qt::Popup
        || window->isActiveWindow())
        return;
    window->activateWindow();
    QGuiApplication::sync();
    if (!window->isActiveWindow())
        QApplication::setActiveWindow(window);
}

static Target targetOf(QWidget* widget, const QPoint& position)
{
    activate(widget);
    QWidget* native = widget->nativeParentWidget() ? widget->nativeParentWidget() : widget;
    if (widget->windowHandle())
        native = widget;
    return {native->windowHandle(), widget->mapTo(native, position)};
}

static void send(QTest::MouseAction action, const Target& target, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers)
{
    if (target.window)
        QTest::mouseEvent(action, target.window, button, modifiers, target.position);
}

static Target movedBy(const Target& target, const QPoint& way)
{
    return {target.window, target.position + way};
}

/// Where a hand that is not quite still moves the mouse while it holds a
/// button.
static QPoint tremble(const QWidget* widget, const QPoint& position)
{
    const QPoint right(1, 0);
    return widget->rect().contains(position + right) ? right : -right;
}

/// Where a button was pressed last.
static Target s_pressed;

/// Where the mouse is while a button is held over a widget. Where the widget has gone since, the
/// button is let go in the window of the press, and where that has gone, in any other: a button
/// that never came up would spoil every press that follows.
static Target heldTarget(QWidget* widget, const QPoint& position)
{
    const Target target = widget && widget->isVisible() ? targetOf(widget, position) : Target();
    if (target.window)
        return target;
    return s_pressed.window ? s_pressed : Target {QGuiApplication::topLevelWindows().value(0), {}};
}

void pressMouse(QWidget* widget, const QPoint& position, Qt::MouseButton button,
                Qt::KeyboardModifiers modifiers)
{
    s_pressed = targetOf(widget, position);
    send(QTest::MouseMove, s_pressed, Qt::NoButton, modifiers);
    send(QTest::MousePress, s_pressed, button, modifiers);
}

void moveMouse(QWidget* widget, const QPoint& position, Qt::KeyboardModifiers modifiers)
{
    send(QTest::MouseMove, heldTarget(widget, position), Qt::NoButton, modifiers);
}

void releaseMouse(QWidget* widget, const QPoint& position, Qt::MouseButton button,
                  Qt::KeyboardModifiers modifiers)
{
    const QPoint aside = widget ? tremble(widget, position) : QPoint(1, 0);
    const Target target = movedBy(heldTarget(widget, position), aside);
    send(QTest::MouseMove, target, Qt::NoButton, modifiers);
    send(QTest::MouseRelease, target, button, modifiers);
}

void click(QWidget* widget, const QPoint& position, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> guard = widget;
    pressMouse(widget, position, Qt::LeftButton, modifiers);
    releaseMouse(guard, position, Qt::LeftButton, modifiers);
}

void clickCentre(QWidget* widget)
{
    click(widget, widget->rect().center());
}

void doubleClick(QWidget* widget, const QPoint& position)
{
    const QPointer<QWidget> guard = widget;
    click(widget, position);
    // Qt's test library keeps clicks apart by their times.
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    if (guard)
        click(widget, position);
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    const QPointer<QWidget> guard = widget;
    pressMouse(widget, from);
    moveMouse(guard, (from + to) / 2);
    moveMouse(guard, to);
    send(QTest::MouseRelease, heldTarget(guard, to), Qt::LeftButton, Qt::NoModifier);
}

void turnWheel(QWidget* widget, const QPoint& position, const QPoint& steps,
               Qt::KeyboardModifiers modifiers)
{
    const Target target = targetOf(widget, position);
    if (!target.window)
        return;
    static constexpr int kStep = 120;
    QWheelEvent event(target.position, target.window->mapToGlobal(target.position), {},
                      steps * kStep, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target.window, &event);
}

void pressKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers)
{
    activate(window);
    const QPointer<QWindow> handle = window->window()->windowHandle();
    if (handle)
        QTest::keyPress(handle, static_cast<Qt::Key>(key), modifiers);
    if (handle) // which the key may have destroyed
        QTest::keyRelease(handle, static_cast<Qt::Key>(key), modifiers);
}

void pressKeys(QWidget* window, const QKeySequence& keys)
{
    constexpr auto modifierMask = static_cast<uint>(Qt::KeyboardModifierMask);
    for (uint i = 0; i < static_cast<uint>(keys.count()); ++i) {
        const auto combination = static_cast<uint>(keys[i]);
        pressKey(window, static_cast<int>(combination & ~modifierMask),
                 Qt::KeyboardModifiers(static_cast<int>(combination & modifierMask)));
    }
}

static QWidget* focusOf(QWidget* window)
{
    QWidget* focus = window->window()->focusWidget();
    return focus ? focus : window;
}

static bool hasKey(QChar character)
{
    return character.isPrint() || character.category() == QChar::Other_Format;
}

static void typeCharacter(QWidget* window, QChar character)
{
    const QPointer<QWindow> handle = window->window()->windowHandle();
    const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
    for (const auto action : {QTest::Press, QTest::Release}) {
        if (handle)
            QTest::sendKeyEvent(action, handle, key, QString(character), Qt::NoModifier);
    }
}

void typeOver(QWidget* window, const QString& text)
{
    pressKeys(window, QKeySequence::SelectAll);
    if (text.isEmpty())
        pressKey(window, Qt::Key_Backspace);
    for (int i = 0; i < text.size(); ++i) {
        if (hasKey(text[i])) {
            typeCharacter(window, text[i]);
            continue;
        }
        const int length = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        QInputMethodEvent commit;
        commit.setCommitString(text.mid(i, length));
        QApplication::sendEvent(focusOf(window), &commit);
        i += length - 1;
    }
}

void enter(QWidget& field, const QString& text)
{
    field.setFocus(Qt::TabFocusReason);
    typeOver(&field, text);
    pressKey(&field, Qt::Key_Return);
}

} // namespace corvala::play
