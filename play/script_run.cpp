// SPDX-License-Identifier: BSD-3-Clause
#include "play/script_run.h"

#include "host/document/document.h"
#include "play/idle.h"
#include "play/verbs.h"

#include <QPointer>
#include <QWidget>

namespace corvala::play {

using Json = nlohmann::json;

ScriptRun::ScriptRun(Stage& stage, const QString& folder)
    : m_stage(stage)
    , m_folder(folder)
    , m_prompts([this](QWidget& prompt, const Json& reply) {
        return playDuring(Arguments(reply, m_folder), prompt);
    })
    , m_watcher(&stage.window())
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

void ScriptRun::play(const Json& line)
{
    verbOf(line).play(*this, Arguments(line, m_folder));
    settle();
    const bool hasEdited = m_afterDrop.connected() && m_changesAfterDrop > 0;
    m_afterDrop.disconnect();
    if (hasEdited)
        throw ScriptError(Text::tr("what was dropped has changed the document"));
}

bool ScriptRun::expectsDrop(const Arguments& arguments)
{
    return arguments.boolean("dropped", false);
}

bool ScriptRun::playDuring(const Arguments& arguments, QWidget& opened)
{
    const QPointer<QWidget> guard = &opened;
    int number = 0;
    for (const Json& line : arguments.has("during") ? arguments.list("during") : Json::array()) {
        ++number;
        try {
            play(line);
        } catch (const ScriptError& error) {
            throw ScriptError(
                Text::tr("line %1 of \"during\": %2").arg(number).arg(error.message()));
        }
    }
    const bool isOpen = guard && guard->isVisible();
    if (isOpen == expectsDrop(arguments))
        throw ScriptError(isOpen ? Text::tr("what is open was not dropped")
                                 : Text::tr("what was open is closed"));
    if (!isOpen) {
        m_changesAfterDrop = 0;
        m_afterDrop =
            document().events().connect([this](const host::StateEvent&) { ++m_changesAfterDrop; });
    }
    return isOpen;
}

void ScriptRun::settle()
{
    waitUntilIdle();
    m_watcher.check();
}

} // namespace corvala::play
