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

/// `position` is in the coordinates of the widget.
void click(QWidget* widget, const QPoint& position,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void clickCentre(QWidget* widget);
void doubleClick(QWidget* widget, const QPoint& position);
/// The two halves of a right click. The first returns when the menu that it opened is closed; the
/// second belongs to that menu, as a person lets go of the button before choosing.
void pressRight(QWidget* widget, const QPoint& position);
void releaseRight(QWidget* widget, const QPoint& position);
void drag(QWidget* widget, const QPoint& from, const QPoint& to);

/// To the widget of the window that has its focus.
void pressKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void pressKeys(QWidget* window, const QKeySequence& keys);

/// Types over the whole content of the focused line edit; characters that no key produces arrive
/// as an input method would commit them.
void typeOver(QWidget* window, const QString& text);

} // namespace corvala::play
