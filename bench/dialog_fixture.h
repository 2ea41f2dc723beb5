// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/dialog/zone_style_dialog.h"

#include <QItemSelection>
#include <QMainWindow>

#include <cstdint>

class QTableView;
class QTabWidget;

namespace corvala::bench {

enum class Rows { One, All, Alternate };

/// The open dialog on the embedded planar data, on the Mesh tab, with nothing selected.
class DialogFixture
{
public:
    explicit DialogFixture(std::int64_t maps);
    ~DialogFixture();

    sdk::ui::dialogs::ZoneStyleDialog& dialog() const;
    QTableView& table() const;
    QTabWidget& tabs() const;

    void select(Rows rows) const;
    /// Triggers the entry of the column's menu for the selected rows, as a choice in the open menu
    /// does, and runs until the table is painted again.
    void triggerMenu(int column, int entry) const;
    void undo() const;
    /// Changes one value of one map and runs until the dialog is refreshed and painted.
    void changeOneValue();

    static void runUntilIdle();

private:
    QMainWindow m_window;
    double m_value = 0.0;
};

/// Row 0, all rows, or every other row of a model, over all columns.
QItemSelection rowsOf(const QAbstractItemModel& model, Rows rows);

} // namespace corvala::bench
