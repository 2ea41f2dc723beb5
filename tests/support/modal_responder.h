// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/prompt_responder.h"
#include "play/window_watcher.h"

#include <QStringList>

#include <deque>
#include <functional>

class QDialog;

namespace corvala::tests {

/// The robot's answers to the modal prompts that open while it lives, in the order in which they
/// were given. A prompt without an answer is refused.
class ModalResponder
{
public:
    using Answer = std::function<void(QDialog&)>; ///< must end the prompt

    ModalResponder();

    ModalResponder& answer(Answer answer);
    ModalResponder& reply(const nlohmann::json& reply); ///< as scripts give it
    ModalResponder& accept() { return reply("OK"); } ///< a question too: yes
    ModalResponder& reject() { return reply("cancel"); }

    /// What the prompts since the last call asked, each as "title: label"; a prompt for a number
    /// adds "[value, minimum to maximum]", one for an item "[current of count]".
    QStringList takeSeen();

    /// Every prompt had an answer, which it took, and every answer a prompt.
    bool isSettled();

private:
    void respond(QDialog& prompt);

    std::deque<Answer> m_answers;
    QStringList m_seen;
    play::WindowWatcher m_watcher;
};

} // namespace corvala::tests
