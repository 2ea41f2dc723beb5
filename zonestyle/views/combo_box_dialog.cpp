// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/combo_box_dialog.h"

#include <sdk/common_ui/combo_box_auto_filter.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

ComboBoxDialog::ComboBoxDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                               const QStringList& entries, const QString& current)
    : PopupDialogBase(globalPosition, parent, std::move(commit))
    , m_comboBox(new corvala::ui::ComboBoxAutoFilter(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox);
    m_comboBox->setEditable(true);
    m_comboBox->setEntries(entries);
    m_comboBox->setCurrentIndex(entries.indexOf(current));
    m_comboBox->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
    m_comboBox->setAccessibleName(tr("New value"));
    m_comboBox->lineEdit()->selectAll();
    m_comboBox->setFocus();
    connect(m_comboBox, &corvala::ui::ComboBoxAutoFilter::selectionComplete, this,
            [this] { isVisible() ? accept() : void(); });
}

bool ComboBoxDialog::event(QEvent* event)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return PopupDialogBase::event(event);
    m_comboBox->hidePopup();
    close();
    return true;
}

std::optional<QString> ComboBoxDialog::enteredText() const
{
    const int entry = m_comboBox->entryFor(m_comboBox->currentText());
    return entry < 0 ? std::nullopt : std::optional(m_comboBox->itemText(entry));
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
