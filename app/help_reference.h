// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace corvala::app {

/// Says which page of the help tells of a widget and of all that is in it: the page with its
/// anchor, such as "window.html#layers".
void setHelpReference(QWidget& widget, const QString& reference);

/// Of the widget or of the nearest one around it that has a reference; else the page of contents.
QString helpReferenceOf(const QWidget* widget);

} // namespace corvala::app
