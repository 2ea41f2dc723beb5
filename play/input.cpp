// SPDX-License-Identifier: BSD-3-Clause
#include "play/input.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace corvala::play {

/// The native window that gets the events of the widget, and where the widget's point lies in it.
struct Target
{
    QWindow* window;
    QPoint position;
};

/// What the window manager does for a person: the window that is used is the active one.
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

void click(QWidget* widget, const QPoint& position, Qt::KeyboardModifiers modifiers)
{
    const Target target = targetOf(widget, position);
    if (!target.window)
        return;
    QTest::mouseMove(target.window, target.position);
    QTest::mouseClick(target.window, Qt::LeftButton, modifiers, target.position);
}

void pressRight(QWidget* widget, const QPoint& position)
{
    const Target target = targetOf(widget, position);
    if (!target.window)
        return;
    QTest::mouseMove(target.window, target.position);
    QTest::mousePress(target.window, Qt::RightButton, Qt::NoModifier, target.position);
}

void releaseRight(QWidget* widget, const QPoint& position)
{
    const Target target = targetOf(widget, position);
    if (target.window)
        QTest::mouseRelease(target.window, Qt::RightButton, Qt::NoModifier, target.position);
}

void clickCentre(QWidget* widget)
{
    click(widget, widget->rect().center());
}

void doubleClick(QWidget* widget, const QPoint& position)
{
    const Target target = targetOf(widget, position);
    if (target.window)
        QTest::mouseDClick(target.window, Qt::LeftButton, Qt::NoModifier, target.position);
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    const Target start = targetOf(widget, from);
    if (!start.window)
        return;
    const QPoint end = start.position + (to - from);
    QTest::mouseMove(start.window, start.position);
    QTest::mousePress(start.window, Qt::LeftButton, Qt::NoModifier, start.position);
    QTest::mouseMove(start.window, (start.position + end) / 2);
    QTest::mouseMove(start.window, end);
    QTest::mouseRelease(start.window, Qt::LeftButton, Qt::NoModifier, end);
}

void pressKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers)
{
    activate(window);
    if (QWindow* handle = window->window()->windowHandle())
        QTest::keyClick(handle, static_cast<Qt::Key>(key), modifiers);
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
    QWindow* handle = window->window()->windowHandle();
    const ushort code = character.toUpper().unicode();
    QTest::sendKeyEvent(QTest::Click, handle, static_cast<Qt::Key>(code), QString(character),
                        Qt::NoModifier);
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

} // namespace corvala::play
