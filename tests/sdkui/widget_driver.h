// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/common_ui/combo_box_auto_filter.h>

#include <QApplication>
#include <QLineEdit>
#include <QtTest>

namespace corvala::tests {

/// Without a screen nobody makes a window active that is shown again, or whose pop-up has closed.
inline void activate(QWidget& window)
{
    QApplication::setActiveWindow(&window);
}

/// Types a text in place of what a combo box shows, and presses Return.
inline void chooseEntry(ui::ComboBoxAutoFilter& box, const QString& text)
{
    activate(*box.window());
    box.setFocus();
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, text);
    QTest::keyClick(&box, Qt::Key_Return);
}

} // namespace corvala::tests
