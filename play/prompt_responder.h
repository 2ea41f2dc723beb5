// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nlohmann/json.hpp>

#include <deque>
#include <functional>

class QWidget;

namespace corvala::play {

/// Answers modal prompts with the replies that a script has queued, by keys and clicks.
class PromptResponder
{
public:
    /// Plays the interlude of a reply that has one; false when that closed the prompt.
    using PlayInterlude = std::function<bool(QWidget& prompt, const nlohmann::json& reply)>;

    explicit PromptResponder(PlayInterlude playInterlude = {});

    /// Appends replies, as the "answers" verb takes them. Throws a ScriptError for a reply of
    /// another form, and then queues none of them.
    void queue(const nlohmann::json& replies);

    /// Answers an open prompt with the next reply. Throws a ScriptError when there is none, or when
    /// the prompt does not take it; the prompt may then still be open.
    void answer(QWidget& prompt);

    /// What the last prompt showed before its reply; null before the first.
    const nlohmann::json& lastPrompt() const { return m_lastPrompt; }

    bool hasUnusedReplies() const { return !m_replies.empty(); }
    nlohmann::json unusedReplies() const { return nlohmann::json(m_replies); }

private:
    PlayInterlude m_playInterlude;
    std::deque<nlohmann::json> m_replies;
    nlohmann::json m_lastPrompt;
};

} // namespace corvala::play
