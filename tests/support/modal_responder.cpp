// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/modal_responder.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QInputDialog>
#include <QPointer>

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
    else if (prompt.inputMode() == QInputDialog::DoubleInput)
        text += rangeText(prompt.doubleValue(), prompt.doubleMinimum(), prompt.doubleMaximum());
    else if (prompt.inputMode() == QInputDialog::IntInput)
        text += rangeText(prompt.intValue(), prompt.intMinimum(), prompt.intMaximum());
    return text;
}

static QString textOf(const QDialog& dialog)
{
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
        return box->text();
    const auto* prompt = qobject_cast<const QInputDialog*>(&dialog);
    return prompt ? question(*prompt) : QString();
}

static void enterNumber(QInputDialog& prompt, double value)
{
    const bool isReal = prompt.inputMode() == QInputDialog::DoubleInput;
    const double minimum = isReal ? prompt.doubleMinimum() : prompt.intMinimum();
    const double maximum = isReal ? prompt.doubleMaximum() : prompt.intMaximum();
    if (value < minimum || value > maximum)
        return prompt.reject();
    if (isReal)
        prompt.setDoubleValue(value);
    else
        prompt.setIntValue(qRound(value));
    prompt.accept();
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
        if (auto* prompt = qobject_cast<QInputDialog*>(&dialog))
            enterNumber(*prompt, value);
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
