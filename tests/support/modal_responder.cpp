// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/modal_responder.h"

#include "sdk/common_ui/number_field.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QInputDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace corvala::tests {

static QString rangeText(double value, double minimum, double maximum)
{
    return QStringLiteral(" [%1, %2 to %3]").arg(value).arg(minimum).arg(maximum);
}

static QString question(const QInputDialog& prompt)
{
    QString text = prompt.labelText();
    if (!prompt.comboBoxItems().isEmpty())
        text += QStringLiteral(" [%1 of %2]")
                    .arg(prompt.textValue(), QString::number(prompt.comboBoxItems().size()));
    return text;
}

static QString textOf(const QDialog& dialog)
{
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
        return box->text();
    if (const auto* number = dialog.findChild<ui::NumberField*>())
        return dialog.findChild<QLabel*>()->text()
            + rangeText(number->value(), number->lowest(), number->highest());
    const auto* prompt = qobject_cast<const QInputDialog*>(&dialog);
    return prompt ? question(*prompt) : QString();
}

ModalResponder::ModalResponder()
{
    qApp->installEventFilter(this);
}

ModalResponder::~ModalResponder() = default;

ModalResponder& ModalResponder::answer(Answer answer)
{
    m_answers.push_back(std::move(answer));
    return *this;
}

ModalResponder& ModalResponder::press(QMessageBox::StandardButton button)
{
    return answer([button](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        QAbstractButton* pressed = box ? box->button(button) : nullptr;
        if (pressed)
            pressed->click();
        else
            dialog.reject();
    });
}

ModalResponder& ModalResponder::enter(double value)
{
    return answer([value](QDialog& dialog) {
        auto* field = dialog.findChild<ui::NumberField*>();
        if (field)
            field->setNumber(value);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        if (field && buttons->button(QDialogButtonBox::Ok)->isEnabled())
            dialog.accept();
        else
            dialog.reject();
    });
}

ModalResponder& ModalResponder::choose(const QString& item)
{
    return answer([item](QDialog& dialog) {
        auto* prompt = qobject_cast<QInputDialog*>(&dialog);
        if (!prompt || !prompt->comboBoxItems().contains(item))
            return dialog.reject();
        prompt->setTextValue(item);
        prompt->accept();
    });
}

ModalResponder& ModalResponder::accept()
{
    return answer([](QDialog& dialog) { dialog.accept(); });
}

ModalResponder& ModalResponder::reject()
{
    return answer([](QDialog& dialog) { dialog.reject(); });
}

QStringList ModalResponder::takeSeen()
{
    QStringList seen;
    seen.swap(m_seen);
    return seen;
}

bool ModalResponder::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show && dialog->isModal()) {
        // Queued: the answer is given from inside the dialog's own event loop.
        const QPointer<QDialog> shown(dialog);
        QMetaObject::invokeMethod(
            this,
            [this, shown] {
                if (shown)
                    respond(*shown);
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void ModalResponder::respond(QDialog& dialog)
{
    m_seen.append(dialog.windowTitle() + QStringLiteral(": ") + textOf(dialog));
    if (m_answers.empty()) {
        ++m_unanswered;
        dialog.reject();
        return;
    }
    const Answer answer = m_answers.front();
    m_answers.pop_front();
    answer(dialog);
}

} // namespace corvala::tests
