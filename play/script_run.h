// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/arguments.h"
#include "play/dialog_driver.h"
#include "play/prompt_responder.h"
#include "play/stage.h"
#include "play/window_watcher.h"

#include <vector>

namespace corvala::host {
class Document;
class Frame;
}

namespace corvala::play {

/// What the verbs of one run of a script share.
class ScriptRun
{
public:
    explicit ScriptRun(Stage& stage);

    Stage& stage() { return m_stage; }
    host::Document& document() const;
    host::Frame& frame() const; ///< the active one; throws a ScriptError without one
    std::int64_t mapCount() const; ///< maps of the kind that the active frame shows

    const DialogDriver& dialog() const { return m_dialog; }
    WindowWatcher& watcher() { return m_watcher; }
    PromptResponder& prompts() { return m_prompts; }

    /// Waits until idle, then throws what a window handler had to say.
    void settle();

    nlohmann::json lastMenu; ///< entries of the menu seen last; null before the first
    int refreshesSeen = 0; ///< refresh count at the last check of it

private:
    Stage& m_stage;
    DialogDriver m_dialog;
    PromptResponder m_prompts;
    WindowWatcher m_watcher;
};

/// One thing that a line of a script can say.
struct Verb
{
    const char* name;
    std::vector<const char*> keys; ///< what may stand beside the verb
    void (*play)(ScriptRun& run, const Arguments& arguments);
};

std::vector<Verb> documentVerbs();
std::vector<Verb> dialogVerbs();
std::vector<Verb> cellVerbs();
std::vector<Verb> promptVerbs();
std::vector<Verb> lookingVerbs();

} // namespace corvala::play
