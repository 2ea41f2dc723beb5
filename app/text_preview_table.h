// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/text_preview.h"

#include <QTableWidget>
#include <QVector>

namespace corvala::app {

/// Shows the first lines of a table of text as they would be read: the lines above the data whole,
/// the others by column. Rows are numbered as the lines of the file. What a column holds stands in
/// its title, and a menu there lets the user say it.
class TextPreviewTable : public QTableWidget
{
    Q_OBJECT

public:
    static constexpr int kMostColumns = 100; ///< that are shown

    explicit TextPreviewTable(QWidget* parent = nullptr);

    /// `chosen` are the kinds that the user gave.
    void showPreview(const host::io::TextPreview& preview,
                     const std::map<int, host::io::TextColumnKind>& chosen);

Q_SIGNALS:
    /// Columns are numbered from 1. No kind leaves it to the reader.
    void kindChosen(const QVector<int>& columns, std::optional<corvala::host::io::TextColumnKind>);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showTitle(int column, const std::string& name, host::io::TextColumnKind kind);
    void showRow(int row, const host::io::TextPreview::Row& shown);
    void askForKind();
    void goTo(int column);
    QVector<int> selectedColumns() const;

    std::map<int, host::io::TextColumnKind> m_chosen;
    std::vector<host::io::TextColumnKind> m_kinds;
    int m_firstDataRow = -1;
};

} // namespace corvala::app
