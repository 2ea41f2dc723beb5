// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/text_preview_table.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>

namespace corvala::app {

using host::io::TextColumnKind;
using host::io::TextPreview;

static constexpr int kWidestColumn = 200; ///< pixels

/// A line without columns.
static bool isWhole(const TextPreview::Row& row)
{
    return row.role == TextPreview::Role::Above || row.role == TextPreview::Role::Header;
}

TextPreviewTable::TextPreviewTable(QWidget* parent)
    : QTableWidget(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectColumns);
    setTabKeyNavigation(false);
    horizontalHeader()->setHighlightSections(false); // bold titles are those that are chosen
    setWordWrap(false);
    setAccessibleName(tr("Preview"));
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this] {
        const bool extendsSelection =
            QApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
        if (!extendsSelection)
            askForKind();
    });
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &TextPreviewTable::askForKind);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) {
                goTo(horizontalHeader()->logicalIndexAt(place));
                askForKind();
            });
}

/// Leaves a selection alone that the column is in.
void TextPreviewTable::goTo(int column)
{
    if (column >= 0 && !selectedColumns().contains(column))
        selectColumn(column);
}

void TextPreviewTable::showPreview(const TextPreview& preview,
                                   const std::map<int, TextColumnKind>& chosen)
{
    const int current = std::max(0, currentColumn());
    const int scrolled = horizontalScrollBar()->value();
    const QVector<int> selected = selectedColumns();
    m_chosen = chosen;
    m_kinds = preview.kinds;
    clearSpans();
    clear();
    const int known = static_cast<int>(preview.columns.size());
    setColumnCount(std::clamp(known, 1, kMostColumns));
    setRowCount(static_cast<int>(preview.rows.size()));
    for (int column = 0; column < std::min(known, kMostColumns); ++column)
        showTitle(column, preview.columns[static_cast<std::size_t>(column)],
                  preview.kinds[static_cast<std::size_t>(column)]);
    m_firstDataRow = -1;
    for (int row = rowCount(); row-- > 0;) {
        const TextPreview::Row& shown = preview.rows[static_cast<std::size_t>(row)];
        if (isWhole(shown))
            continue;
        showRow(row, shown);
        m_firstDataRow = row;
    }
    resizeColumnsToContents();
    for (int column = 0; column < columnCount(); ++column)
        setColumnWidth(column, std::min(columnWidth(column), kWidestColumn));
    for (int row = 0; row < rowCount(); ++row) // which do not count for the widths
        if (const TextPreview::Row& shown = preview.rows[static_cast<std::size_t>(row)];
            isWhole(shown))
            showRow(row, shown);
    setCurrentCell(std::max(0, m_firstDataRow), std::min(current, columnCount() - 1));
    for (const int column : selected)
        selectionModel()->select(model()->index(0, column - 1),
                                 QItemSelectionModel::Select | QItemSelectionModel::Columns);
    horizontalScrollBar()->setValue(scrolled);
}

void TextPreviewTable::showTitle(int column, const std::string& name, TextColumnKind kind)
{
    auto* title = new QTableWidgetItem(
        QStringLiteral("%1\n%2 \u25BE").arg(QString::fromStdString(name), labelOf(kind)));
    QFont font = title->font();
    font.setBold(m_chosen.count(column + 1) > 0);
    title->setFont(font);
    setHorizontalHeaderItem(column, title);
}

/// From 1, the current one at least.
QVector<int> TextPreviewTable::selectedColumns() const
{
    QVector<int> columns;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int column = range.left(); column <= range.right(); ++column)
            columns << column + 1;
    if (columns.isEmpty() && currentColumn() >= 0)
        columns << currentColumn() + 1;
    return columns;
}

/// A menu below the title of the current column, for the selected ones.
void TextPreviewTable::askForKind()
{
    const QVector<int> columns = selectedColumns();
    if (columns.isEmpty() || !horizontalHeaderItem(columns.front() - 1))
        return;
    const auto chosen = m_chosen.find(columns.front());
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, std::optional<TextColumnKind> kind) {
        QAction* const action = menu->addAction(text);
        action->setCheckable(true);
        const bool isChosen = chosen != m_chosen.end();
        action->setChecked(kind ? isChosen && chosen->second == *kind : !isChosen);
        connect(action, &QAction::triggered, this,
                [this, columns, kind] { Q_EMIT kindChosen(columns, kind); });
        if (action->isChecked())
            menu->setActiveAction(action);
    };
    add(tr("detect"), std::nullopt);
    for (const TextColumnKind kind :
         {TextColumnKind::Numbers, TextColumnKind::Instants, TextColumnKind::TimesOfDay,
          TextColumnKind::Words, TextColumnKind::Skipped})
        add(labelOf(kind), kind);
    const int column = currentColumn();
    scrollTo(model()->index(std::max(0, m_firstDataRow), column));
    menu->popup(horizontalHeader()->mapToGlobal(
        {horizontalHeader()->sectionViewportPosition(column), horizontalHeader()->height()}));
}

void TextPreviewTable::keyPressEvent(QKeyEvent* event)
{
    const bool opensMenu = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Space
        || (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier);
    if (opensMenu)
        askForKind();
    else
        QTableWidget::keyPressEvent(event);
}

void TextPreviewTable::showRow(int row, const TextPreview::Row& shown)
{
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
        font.setItalic(isWhole(shown));
        font.setBold(shown.role == TextPreview::Role::Header || isBad);
        item->setFont(font);
        if (isBad)
            item->setToolTip(tr("This row cannot be read."));
        const auto place = static_cast<std::size_t>(column);
        const bool isLeftOut =
            !isWhole(shown) && place < m_kinds.size() && m_kinds[place] == TextColumnKind::Skipped;
        if (isWhole(shown)) { // which has no columns to be chosen
            item->setFlags(Qt::NoItemFlags);
            item->setForeground(palette().brush(QPalette::Active, QPalette::Text));
        }
        if (isLeftOut || shown.role == TextPreview::Role::Above)
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        setItem(row, column, item);
    }
    if (isWhole(shown) && columnCount() > 1)
        setSpan(row, 0, 1, columnCount());
}

} // namespace corvala::app
