// SPDX-License-Identifier: BSD-3-Clause
#include "play/script_run.h"

#include "host/document/document.h"
#include "play/idle.h"

namespace corvala::play {

ScriptRun::ScriptRun(Stage& stage)
    : m_stage(stage)
    , m_watcher(stage.window())
{
    m_watcher.setHandler(WindowWatcher::Prompt,
                         [this](QWidget& prompt) { m_prompts.answer(prompt); });
    refreshesSeen = m_dialog.refreshCount();
}

host::Document& ScriptRun::document() const
{
    return host::Document::instance();
}

host::Frame& ScriptRun::frame() const
{
    host::Frame* frame = document().activeFrame();
    if (!frame)
        throw ScriptError(Text::tr("there is no frame"));
    return *frame;
}

std::int64_t ScriptRun::mapCount() const
{
    return frame().shownMapCount();
}

void ScriptRun::settle()
{
    waitUntilIdle();
    m_watcher.check();
}

} // namespace corvala::play
