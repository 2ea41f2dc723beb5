// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/list_box_dialog.h"

#include <QFormLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

ListBoxDialog::ListBoxDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                             const QStringList& entries, const QString& current, int width)
    : PopupDialogBase(globalPosition, parent, std::move(commit))
{
    setupUi();
    m_listBox->addItems(entries);
    m_listBox->setCurrentRow(entries.indexOf(current));
    fitToEntries(width);
    connect(m_listBox, SIGNAL(itemClicked(QListWidgetItem*)), this,
            SLOT(itemClicked(QListWidgetItem*)));
    m_listBox->setFocus();
}

void ListBoxDialog::setupUi()
{
    setObjectName(QStringLiteral("ListBox"));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* formLayoutWidget = new QWidget(this);
    formLayoutWidget->setObjectName(QStringLiteral("formLayoutWidget"));
    outer->addWidget(formLayoutWidget);
    auto* formLayout = new QFormLayout(formLayoutWidget);
    formLayout->setObjectName(QStringLiteral("formLayout"));
    formLayout->setContentsMargins(0, 0, 0, 0);
    m_listBox = new QListWidget(formLayoutWidget);
    m_listBox->setObjectName(QStringLiteral("listBox"));
    m_listBox->setAccessibleName(tr("Choices"));
    m_listBox->setUniformItemSizes(true);
    formLayout->addRow(m_listBox);
}

void ListBoxDialog::fitToEntries(int width)
{
    static constexpr int kMostRows = 16;
    const int frame = 2 * m_listBox->frameWidth();
    const int rows = qBound(1, m_listBox->count(), kMostRows);
    const int bar =
        m_listBox->count() > kMostRows ? m_listBox->verticalScrollBar()->sizeHint().width() : 0;
    m_listBox->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listBox->setFixedSize(qMax(width, m_listBox->sizeHintForColumn(0) + frame + bar),
                            rows * m_listBox->sizeHintForRow(0) + frame);
}

/// The selected entry: the focus alone makes the first one current.
std::optional<QString> ListBoxDialog::enteredText() const
{
    const QList<QListWidgetItem*> selected = m_listBox->selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional(selected.first()->text());
}

void ListBoxDialog::itemClicked(QListWidgetItem*)
{
    accept();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
