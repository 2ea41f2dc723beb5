// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/list_item_delegate.h"

#include "zonestyle/views/text_item_delegate.h"

#include <sdk/common_ui/combo_box_auto_filter.h>

#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

ListItemDelegate::ListItemDelegate(QAbstractItemView& view, int option, bool editable,
                                   bool filterWhileTyping)
    : ItemDelegate(view)
    , m_option(option)
    , m_editable(editable)
    , m_filterWhileTyping(filterWhileTyping)
{
}

QSize ListItemDelegate::contentsSize(const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QSize size = ItemDelegate::contentsSize(option, index);
    if (m_option == 0)
        return size;
    if (m_width == 0)
        m_width = widthForEntries(option, index);
    size.setWidth(m_width);
    return size;
}

/// Width of the widest text; texts beyond the limit need not be measured.
static int widestText(const QFontMetrics& metrics, const QStringList& texts, int limit)
{
    int widest = 0;
    for (const QString& text : texts) {
        widest = qMax(widest, metrics.horizontalAdvance(text));
        if (widest >= limit)
            return limit;
    }
    return widest;
}

int ListItemDelegate::widthForEntries(const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    int limit = std::numeric_limits<int>::max();
    int margin = 10;
    switch (m_option) {
    case 1: break;
    case 2: limit = widthOfCharacters(option, 20); break;
    case 3: limit = widthOfCharacters(option, 10); break;
    case 4: margin = 20; break;
    default: return 0;
    }
    const QStringList entries = index.data(Qt::EditRole).toStringList();
    return widestText(QFontMetrics(option.font), entries, limit) + margin;
}

QWidget* ListItemDelegate::makeEditor(QWidget* parent, const QModelIndex& index) const
{
    auto* editor = new corvala::ui::ComboBoxAutoFilter(parent);
    editor->setEditable(m_editable);
    editor->setFilterWhileTyping(m_filterWhileTyping);
    editor->setEntries(index.data(Qt::EditRole).toStringList());
    connect(editor, &corvala::ui::ComboBoxAutoFilter::selectionComplete, this,
            &ListItemDelegate::onSelectionComplete);
    return editor;
}

void ListItemDelegate::fillEditor(QWidget* editor, const QModelIndex& index) const
{
    auto* list = qobject_cast<corvala::ui::ComboBoxAutoFilter*>(editor);
    if (!list)
        return;
    const QString shown = index.data(Qt::DisplayRole).toString();
    list->setCurrentIndex(list->findText(shown, m_editable ? Qt::MatchContains : Qt::MatchExactly));
}

QVariant ListItemDelegate::editedValue(const QWidget& editor) const
{
    const auto& list = dynamic_cast<const corvala::ui::ComboBoxAutoFilter&>(editor);
    const int entry = list.entryFor(list.currentText());
    return entry < 0 ? QVariant() : list.itemText(entry);
}

void ListItemDelegate::onSelectionComplete()
{
    auto* editor = qobject_cast<QWidget*>(sender());
    if (!editor)
        return;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

/// An open list must not outlive its combo box, nor choose anything while it closes.
void ListItemDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    if (auto* list = qobject_cast<QComboBox*>(editor)) {
        const QSignalBlocker blocker(list);
        list->hidePopup();
    }
    ItemDelegate::destroyEditor(editor, index);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
