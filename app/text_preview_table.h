// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/text_preview.h"

#include <QTableWidget>

namespace corvala::app {

/// Shows the first lines of a table of text as they would be read: the lines above the data whole,
/// the others by column. Rows are numbered as the lines of the file.
class TextPreviewTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit TextPreviewTable(QWidget* parent = nullptr);

    void showPreview(const host::io::TextPreview& preview);

private:
    void showRow(int row, const host::io::TextPreview::Row& shown);
};

} // namespace corvala::app
