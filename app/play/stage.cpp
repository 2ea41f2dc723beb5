// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/play/stage.h"

#include "app/main_window.h"
#include "app/play/idle.h"
#include "host/document/document.h"

namespace corvala::app::play {

Stage::Stage(MainWindow& window)
    : m_window(window)
    , m_watcher(window)
{
    m_watcher.setHandler(WindowWatcher::Prompt,
                         [this](QWidget& prompt) { m_prompts.answer(prompt); });
    refreshesSeen = m_dialog.refreshCount();
}

host::Document& Stage::document() const
{
    return host::Document::instance();
}

host::Frame& Stage::frame() const
{
    host::Frame* frame = document().activeFrame();
    if (!frame)
        throw ScriptError(Text::tr("there is no frame"));
    return *frame;
}

std::int64_t Stage::mapCount() const
{
    return frame().shownMapCount();
}

void Stage::settle()
{
    waitUntilIdle();
    m_watcher.check();
}

} // namespace corvala::app::play
