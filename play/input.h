// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QKeySequence>
#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/// Mouse and keyboard as the window system would deliver them: to windows, not to widgets, so that
/// pop-ups, modal windows, shortcuts and context menus behave as they do for a person.
namespace corvala::play {

/// `position` is in the coordinates of the widget. As a hand is never quite still, the mouse moves
/// a pixel between press and release of every click.
void click(QWidget* widget, const QPoint& position,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void clickCentre(QWidget* widget);
void doubleClick(QWidget* widget, const QPoint& position);
void drag(QWidget* widget, const QPoint& from, const QPoint& to);

/// The parts of a click. A right press returns when the menu that it opened is closed; its release
/// belongs to that menu, as a person lets go of the button before choosing. Whatever becomes of the
/// widget meanwhile (null is allowed), each press wants its release.
void pressMouse(QWidget* widget, const QPoint& position, Qt::MouseButton button = Qt::LeftButton,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void moveMouse(QWidget* widget, const QPoint& position,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void releaseMouse(QWidget* widget, const QPoint& position, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Steps of the wheel: x to the left, y upwards.
void turnWheel(QWidget* widget, const QPoint& position, const QPoint& steps,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// To the widget of the window that has its focus.
void pressKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void pressKeys(QWidget* window, const QKeySequence& keys);

/// Types over the whole content of the focused line edit; characters that no key produces arrive as
/// an input method would commit them.
void typeOver(QWidget* window, const QString& text);

/// Goes to the field, types over its content and presses Return.
void enter(QWidget& field, const QString& text);

} // namespace corvala::play
