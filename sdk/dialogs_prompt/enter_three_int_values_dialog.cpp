// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/enter_three_int_values_dialog.h"

#include <sdk/dialogs_common/launch_help_action.h>
#include <sdk/private/shared_instance.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
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
        m_spinBoxes[i]->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        m_spinBoxes[i]->installEventFilter(this);
        m_labels[i] = new QLabel(this);
        m_labels[i]->setBuddy(m_spinBoxes[i]);
        form->addRow(m_labels[i], m_spinBoxes[i]);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                             | QDialogButtonBox::Help,
                                         Qt::Horizontal, this);
    form->addRow(buttons);
    m_okButton = buttons->button(QDialogButtonBox::Ok);
    m_okButton->setDefault(true);
    m_helpButton = buttons->button(QDialogButtonBox::Help);
    m_helpButton->setShortcut(Qt::Key_F1);
    m_helpButton->hide();
    for (const QSpinBox* spinBox : m_spinBoxes) {
        connect(spinBox->findChild<QLineEdit*>(), &QLineEdit::textChanged, this,
                &EnterThreeIntValuesDialog::updateOkButton);
        // The text that a spin box corrects itself is not announced.
        connect(spinBox, &QSpinBox::editingFinished, this,
                &EnterThreeIntValuesDialog::updateOkButton);
    }
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
    updateOkButton();
    return QDialog::exec();
}

bool EnterThreeIntValuesDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && !m_okButton->isEnabled()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        auto* spinBox = qobject_cast<QSpinBox*>(watched);
        if (spinBox && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            spinBox->interpretText();
            spinBox->selectAll();
            updateOkButton();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void EnterThreeIntValuesDialog::updateOkButton()
{
    m_okButton->setEnabled(
        std::all_of(m_spinBoxes.begin(), m_spinBoxes.end(),
                    [](const QSpinBox* spinBox) { return spinBox->hasAcceptableInput(); }));
}

std::array<int, 3> EnterThreeIntValuesDialog::values() const
{
    return {m_spinBoxes[0]->value(), m_spinBoxes[1]->value(), m_spinBoxes[2]->value()};
}

} // namespace corvala::dialogs::prompt
