// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/enter_number_dialog.h"

#include <sdk/common_ui/number_field.h>
#include <sdk/uicommon/edit_session.h>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace corvala::dialogs::prompt {

namespace {

class EnterNumberDialog : public QDialog
{
public:
    EnterNumberDialog(QWidget& parent, const NumberPrompt& prompt, double present);

    std::optional<double> number() const { return m_field->number(); }

private:
    ui::NumberField* m_field;
};

} // namespace

EnterNumberDialog::EnterNumberDialog(QWidget& parent, const NumberPrompt& prompt, double present)
    : QDialog(&parent)
    , m_field(new ui::NumberField(prompt.decimals, this))
{
    setWindowTitle(prompt.title);
    auto* label = new QLabel(prompt.label, this);
    label->setBuddy(m_field);
    m_field->setLimits(prompt.minimum, prompt.maximum);
    m_field->setNumber(present);
    m_field->selectAll();
    auto* range = new QLabel(m_field->rangeText(), this);
    range->setEnabled(false);
    auto* entry = new QHBoxLayout;
    entry->addWidget(m_field, 1);
    entry->addWidget(range);
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    ok->setEnabled(m_field->number().has_value());
    connect(m_field, &ui::NumberField::fitChanged, ok, &QPushButton::setEnabled);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(label);
    rows->addLayout(entry);
    rows->addWidget(buttons);
}

std::optional<double> enterNumber(QWidget& parent, const NumberPrompt& prompt, double present)
{
    const QPointer<EnterNumberDialog> dialog(new EnterNumberDialog(parent, prompt, present));
    const bool isAccepted = sdk::ui::execInEditSession(*dialog) == QDialog::Accepted;
    const std::optional<double> number = isAccepted ? dialog->number() : std::nullopt;
    delete dialog;
    return number;
}

} // namespace corvala::dialogs::prompt
