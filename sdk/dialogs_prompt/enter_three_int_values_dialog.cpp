// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/enter_three_int_values_dialog.h"

#include <sdk/dialogs_common/launch_help_action.h>
#include <sdk/dialogs_common/shared_instance.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <limits>

namespace corvala::dialogs::prompt {

EnterThreeIntValuesDialog& EnterThreeIntValuesDialog::getInstance(QWidget* parent)
{
    static QPointer<EnterThreeIntValuesDialog> instance;
    return common::sharedInstance(
        instance, parent, [](QWidget* owner) { return new EnterThreeIntValuesDialog(owner); });
}

EnterThreeIntValuesDialog::EnterThreeIntValuesDialog(QWidget* parent)
    : QDialog(parent)
{
    auto* form = new QFormLayout(this);
    for (std::size_t i = 0; i < m_spinBoxes.size(); ++i) {
        m_spinBoxes[i] = new QSpinBox(this);
        m_spinBoxes[i]->setRange(1, std::numeric_limits<int>::max());
        m_spinBoxes[i]->setAccelerated(true);
        m_labels[i] = new QLabel(this);
        m_labels[i]->setBuddy(m_spinBoxes[i]);
        form->addRow(m_labels[i], m_spinBoxes[i]);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                             | QDialogButtonBox::Help,
                                         Qt::Horizontal, this);
    form->addRow(buttons);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    m_helpButton = buttons->button(QDialogButtonBox::Help);
    m_helpButton->hide();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void EnterThreeIntValuesDialog::setTitle(const QString& title)
{
    setWindowTitle(title);
}

void EnterThreeIntValuesDialog::setLabels(const QString& first, const QString& second,
                                          const QString& third)
{
    m_labels[0]->setText(first);
    m_labels[1]->setText(second);
    m_labels[2]->setText(third);
}

void EnterThreeIntValuesDialog::setHelpReference(const QString& reference)
{
    delete m_helpAction;
    m_helpAction = nullptr;
    m_helpButton->setVisible(!reference.isEmpty());
    if (reference.isEmpty())
        return;
    m_helpAction = new common::LaunchHelpAction(reference, this);
    m_helpAction->setShortcut(Qt::Key_F1);
    addAction(m_helpAction);
    connect(m_helpButton, &QPushButton::clicked, m_helpAction, &QAction::trigger);
}

void EnterThreeIntValuesDialog::setRanges(Range first, Range second, Range third)
{
    m_spinBoxes[0]->setRange(first.minimum, first.maximum);
    m_spinBoxes[1]->setRange(second.minimum, second.maximum);
    m_spinBoxes[2]->setRange(third.minimum, third.maximum);
}

void EnterThreeIntValuesDialog::setValues(int first, int second, int third)
{
    m_spinBoxes[0]->setValue(first);
    m_spinBoxes[1]->setValue(second);
    m_spinBoxes[2]->setValue(third);
}

int EnterThreeIntValuesDialog::exec()
{
    m_spinBoxes[0]->setFocus();
    m_spinBoxes[0]->selectAll();
    return QDialog::exec();
}

std::array<int, 3> EnterThreeIntValuesDialog::values() const
{
    return {m_spinBoxes[0]->value(), m_spinBoxes[1]->value(), m_spinBoxes[2]->value()};
}

} // namespace corvala::dialogs::prompt
