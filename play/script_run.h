// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/arguments.h"
#include "play/dialog_driver.h"
#include "play/prompt_responder.h"
#include "play/stage.h"
#include "play/window_watcher.h"

#include <boost/signals2/connection.hpp>

namespace corvala::host {
class Document;
class Frame;
}

namespace corvala::play {

/// What the verbs of one run of a script share.
class ScriptRun
{
public:
    /// File names in lines are relative to `folder`.
    ScriptRun(Stage& stage, const QString& folder);

    Stage& stage() { return m_stage; }
    host::Document& document() const;
    host::Frame& frame() const; ///< the active one; throws a ScriptError without one
    std::int64_t mapCount() const; ///< maps of the kind that the active frame shows

    const DialogDriver& dialog() const { return m_dialog; }
    WindowWatcher& watcher() { return m_watcher; }
    PromptResponder& prompts() { return m_prompts; }

    /// Plays one line of a script, then settles.
    void play(const nlohmann::json& line);

    /// Plays the lines of "during", which may close what a line or a prompt has opened. Whether
    /// the script goes on with it; false when it is "dropped", and must not change the document
    /// until the line ends. Throws a ScriptError when it is closed or open against expectation.
    bool playDuring(const Arguments& arguments, QWidget& opened);
    static bool expectsDrop(const Arguments& arguments);

    /// Waits until idle, then throws what a window handler had to say.
    void settle();

    nlohmann::json lastMenu; ///< entries of the menu seen last; null before the first
    int refreshesSeen = 0; ///< refresh count at the last check of it

private:
    Stage& m_stage;
    QString m_folder;
    boost::signals2::scoped_connection m_afterDrop;
    int m_changesAfterDrop = 0;
    DialogDriver m_dialog;
    PromptResponder m_prompts;
    WindowWatcher m_watcher;
};

} // namespace corvala::play
