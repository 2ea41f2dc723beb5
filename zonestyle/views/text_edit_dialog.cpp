// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/text_edit_dialog.h"

#include <sdk/common_ui/problem_mark.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <utility>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

TextEditDialog::TextEditDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                               const QString& text, Problem problem)
    : PopupDialogBase(globalPosition, parent, std::move(commit))
    , m_problem(std::move(problem))
    , m_lineEdit(new QLineEdit(text, this))
    , m_hint(new QLabel(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_lineEdit);
    layout->addWidget(m_hint);
    m_hint->setAutoFillBackground(true);
    m_hint->setMargin(2);
    m_hint->hide();
    m_lineEdit->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    m_lineEdit->setAccessibleName(tr("New value"));
    m_lineEdit->selectAll();
    m_lineEdit->setFocus();
    connect(m_lineEdit, &QLineEdit::textChanged, this, &TextEditDialog::showProblem);
}

void TextEditDialog::showProblem()
{
    const QString problem = m_problem(m_lineEdit->text());
    corvala::ui::markProblem(*m_lineEdit, problem);
    m_hint->setText(problem);
    m_hint->setVisible(!problem.isEmpty());
    adjustSize();
}

/// Only a text that fits is accepted.
void TextEditDialog::done(int result)
{
    if (result == Rejected || enteredText())
        PopupDialogBase::done(result);
}

std::optional<QString> TextEditDialog::enteredText() const
{
    const QString text = m_lineEdit->text();
    return m_problem(text).isEmpty() ? std::optional(text) : std::nullopt;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
