// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTableView>

namespace corvala::dialogs::common {

/// A table view whose size hint holds a number of rows and columns, as far as the screen has room.
class TableViewWithPreferredDimensions : public QTableView
{
    Q_OBJECT

public:
    explicit TableViewWithPreferredDimensions(QWidget* parent = nullptr);

    /// Below 1: no preference, the size hint of an ordinary table view.
    void setPreferredNumberOfRows(int rows);
    void setPreferredNumberOfColumns(int columns);
    int preferredNumberOfRows() const { return m_rows; }
    int preferredNumberOfColumns() const { return m_columns; }

    /// That many rows and columns with headers, frame and scroll bars. Rows and columns that the
    /// model does not have count with the default section size.
    QSize sizeHint() const override;

private:
    int m_rows = 0;
    int m_columns = 0;
};

} // namespace corvala::dialogs::common
