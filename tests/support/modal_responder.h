// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMessageBox>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>

class QDialog;

namespace corvala::tests {

/// Answers the modal dialogs that open while it lives, in the order in which the answers were
/// given. A dialog without an answer is rejected. Neither timers nor the focus play a part.
class ModalResponder : public QObject
{
public:
    using Answer = std::function<void(QDialog&)>; ///< must end the dialog

    ModalResponder();
    ~ModalResponder() override;

    ModalResponder& answer(Answer answer);
    ModalResponder& press(QMessageBox::StandardButton button); ///< of a message box
    ModalResponder& enter(double value); ///< into a prompt for a number, if it takes it
    ModalResponder& choose(const QString& item); ///< of a prompt for an item
    ModalResponder& accept();
    ModalResponder& reject();

    /// What the dialogs since the last call asked, each as "title: text"; a prompt for a number
    /// adds "[value, minimum to maximum]", one for an item "[current of count]".
    QStringList takeSeen();

    /// Every dialog had an answer and every answer a dialog.
    bool isSettled() const { return m_answers.empty() && m_unanswered == 0; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void respond(QDialog& dialog);

    std::deque<Answer> m_answers;
    QStringList m_seen;
    int m_unanswered = 0;
};

} // namespace corvala::tests
