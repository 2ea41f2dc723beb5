// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/text_preview_table.h"

#include <QHeaderView>

#include <algorithm>

namespace corvala::app {

using host::io::TextColumnKind;
using host::io::TextPreview;

static constexpr int kMostColumns = 100;
static constexpr int kWidestColumn = 200; ///< pixels

TextPreviewTable::TextPreviewTable(QWidget* parent)
    : QTableWidget(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setWordWrap(false);
    setAccessibleName(tr("Preview"));
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

static QString kindText(TextColumnKind kind)
{
    switch (kind) {
    case TextColumnKind::Numbers: return TextPreviewTable::tr("numbers");
    case TextColumnKind::Instants: return TextPreviewTable::tr("dates");
    case TextColumnKind::TimesOfDay: return TextPreviewTable::tr("times");
    case TextColumnKind::Words: break;
    }
    return TextPreviewTable::tr("words");
}

void TextPreviewTable::showPreview(const TextPreview& preview)
{
    clearSpans();
    clear();
    const int known = static_cast<int>(preview.columns.size());
    setColumnCount(std::clamp(known, 1, kMostColumns));
    setRowCount(static_cast<int>(preview.rows.size()));
    QStringList titles;
    for (std::size_t i = 0; i < preview.columns.size() && i < kMostColumns; ++i)
        titles << QString::fromStdString(preview.columns[i]) + QLatin1Char('\n')
                + kindText(preview.kinds[i]);
    setHorizontalHeaderLabels(titles);
    for (int row = 0; row < rowCount(); ++row)
        showRow(row, preview.rows[static_cast<std::size_t>(row)]);
    resizeColumnsToContents();
    for (int column = 0; column < columnCount(); ++column)
        setColumnWidth(column, std::min(columnWidth(column), kWidestColumn));
}

void TextPreviewTable::showRow(int row, const TextPreview::Row& shown)
{
    const bool isWhole =
        shown.role == TextPreview::Role::Above || shown.role == TextPreview::Role::Header;
    const bool isBad = shown.role == TextPreview::Role::Bad;
    auto* number = new QTableWidgetItem(QString::number(shown.line));
    if (isBad)
        number->setText(tr("%1 bad").arg(shown.line));
    setVerticalHeaderItem(row, number);
    const int count = std::min(static_cast<int>(shown.fields.size()), columnCount());
    for (int column = 0; column < count; ++column) {
        auto* item = new QTableWidgetItem(
            QString::fromStdString(shown.fields[static_cast<std::size_t>(column)]));
        QFont font = item->font();
        font.setItalic(isWhole);
        font.setBold(shown.role == TextPreview::Role::Header || isBad);
        item->setFont(font);
        if (isBad)
            item->setToolTip(tr("This row cannot be read."));
        if (shown.role == TextPreview::Role::Above)
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        setItem(row, column, item);
    }
    if (isWhole && columnCount() > 1)
        setSpan(row, 0, 1, columnCount());
}

} // namespace corvala::app
