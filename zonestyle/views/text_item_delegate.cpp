// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/text_item_delegate.h"

#include <sdk/common_ui/problem_mark.h>

#include <QLineEdit>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

int widthOfCharacters(const QStyleOptionViewItem& option, int count)
{
    return QFontMetrics(option.font).boundingRect(QString(count, QLatin1Char('m'))).width() + 10;
}

TextItemDelegate::TextItemDelegate(QAbstractItemView& view, int option)
    : ItemDelegate(view)
    , m_option(option)
{
}

QSize TextItemDelegate::contentsSize(const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QSize size = ItemDelegate::contentsSize(option, index);
    if (m_option != 2 && m_option != 3)
        return size;
    if (m_width == 0)
        m_width = qMin(size.width(), widthOfCharacters(option, m_option == 2 ? 20 : 10));
    size.setWidth(m_width);
    return size;
}

QWidget* TextItemDelegate::makeEditor(QWidget* parent, const QModelIndex& index) const
{
    QWidget* editor = ItemDelegate::makeEditor(parent, index);
    if (auto* lineEdit = qobject_cast<QLineEdit*>(editor))
        connect(lineEdit, &QLineEdit::textChanged, lineEdit,
                [lineEdit, cell = QPersistentModelIndex(index)](const QString& text) {
                    corvala::ui::markProblem(*lineEdit, problemOf(text, cell));
                });
    return editor;
}

void TextItemDelegate::fillEditor(QWidget* editor, const QModelIndex& index) const
{
    if (auto* lineEdit = qobject_cast<QLineEdit*>(editor))
        lineEdit->setText(index.data(Qt::DisplayRole).toString());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
