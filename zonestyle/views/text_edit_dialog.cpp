// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/text_edit_dialog.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

TextEditDialog::TextEditDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                               const QString& text)
    : PopupDialogBase(globalPosition, parent, std::move(commit))
    , m_lineEdit(new QLineEdit(text, this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lineEdit);
    m_lineEdit->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    m_lineEdit->setAccessibleName(tr("New value"));
    m_lineEdit->selectAll();
    m_lineEdit->setFocus();
}

std::optional<QString> TextEditDialog::enteredText() const
{
    return m_lineEdit->text();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
