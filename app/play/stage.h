// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/play/arguments.h"
#include "app/play/dialog_driver.h"
#include "app/play/prompt_responder.h"
#include "app/play/window_watcher.h"

#include <vector>

namespace corvala::host {
class Document;
class Frame;
}

namespace corvala::app {
class MainWindow;
}

namespace corvala::app::play {

/// What the verbs of one run of a script share.
class Stage
{
public:
    explicit Stage(MainWindow& window);

    MainWindow& window() { return m_window; }
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
    MainWindow& m_window;
    DialogDriver m_dialog;
    PromptResponder m_prompts;
    WindowWatcher m_watcher;
};

/// One thing that a line of a script can say.
struct Verb
{
    const char* name;
    std::vector<const char*> keys; ///< what may stand beside the verb
    void (*run)(Stage& stage, const Arguments& arguments);
};

std::vector<Verb> documentVerbs();
std::vector<Verb> dialogVerbs();
std::vector<Verb> cellVerbs();
std::vector<Verb> promptVerbs();
std::vector<Verb> lookingVerbs();

} // namespace corvala::app::play
