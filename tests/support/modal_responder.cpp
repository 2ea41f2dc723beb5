// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/modal_responder.h"

#include "play/prompt_description.h"

#include <QDialog>

namespace corvala::tests {

using Json = nlohmann::json;

static QString textOf(const Json& prompt)
{
    const auto number = [&prompt](const char* key) {
        return QString::number(prompt[key].get<double>());
    };
    QString text = QString::fromStdString(prompt["title"].get<std::string>() + ": "
                                          + prompt.value("label", std::string()));
    if (prompt.contains("items") && prompt["value"].is_string())
        text += QString(" [%1 of %2]")
                    .arg(QString::fromStdString(prompt["value"].get<std::string>()))
                    .arg(prompt["items"].size());
    else if (prompt.contains("min") && prompt["min"].is_number())
        text += QString(" [%1, %2 to %3]").arg(number("value"), number("min"), number("max"));
    return text;
}

ModalResponder::ModalResponder()
{
    m_watcher.setHandler(play::WindowWatcher::Prompt,
                         [this](QWidget& prompt) { respond(static_cast<QDialog&>(prompt)); });
}

ModalResponder& ModalResponder::answer(Answer answer)
{
    m_answers.push_back(std::move(answer));
    return *this;
}

ModalResponder& ModalResponder::reply(const Json& reply)
{
    return answer([reply](QDialog& prompt) {
        play::PromptResponder responder;
        responder.queue(Json::array({reply}));
        responder.answer(prompt);
    });
}

QStringList ModalResponder::takeSeen()
{
    return std::exchange(m_seen, {});
}

bool ModalResponder::isSettled()
{
    try {
        m_watcher.check();
    } catch (const play::ScriptError& error) {
        qWarning("%s", error.what());
        return false;
    }
    return m_answers.empty();
}

void ModalResponder::respond(QDialog& prompt)
{
    m_seen.append(textOf(play::describePrompt(prompt)));
    if (m_answers.empty())
        throw play::ScriptError("no answer is left for " + m_seen.last());
    const Answer answer = m_answers.front();
    m_answers.pop_front();
    answer(prompt);
}

} // namespace corvala::tests
