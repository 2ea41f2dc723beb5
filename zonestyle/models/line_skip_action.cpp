// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_skip_action.h"

#include "zonestyle/actions/prompt_parent.h"
#include "zonestyle/actions/style_action.h"

#include <sdk/common/app_lock.h>
#include <sdk/dialogs_prompt/enter_number_dialog.h>

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using actions::StyleAction;
using corvala::dialogs::prompt::NumberPrompt;

LineModelAbstract::SkipAction::SkipAction(const QString& text,
                                          const QModelIndexList& selectedIndexes,
                                          const style::ChoiceKey<SkipMode_e>& skipMode,
                                          style::RealKey skipping, Mode mode, double number)
    : Action(text, selectedIndexes)
    , m_skipMode(skipMode)
    , m_skipping(skipping)
    , m_mode(mode)
    , m_number(number)
{
}

void LineModelAbstract::SkipAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const AppLock lock;
    // The action may go while it asks.
    const QModelIndexList rows = selectedIndexes();
    const SkipMode_e mode = writtenMode();
    const auto skipMode = m_skipMode;
    const style::RealKey skipping = m_skipping;
    const std::optional<double> number = asks() ? entered() : m_number;
    if (!number)
        return;
    actions::runAction<StyleAction<SkipMode_e>>(QString(), rows, mode, skipMode);
    actions::runAction<StyleAction<double>>(QString(), rows, *number, skipping);
}

bool LineModelAbstract::SkipAction::isPresentValue() const
{
    return !asks()
        && StyleAction<SkipMode_e>(QString(), selectedIndexes(), writtenMode(), m_skipMode)
               .isPresentValue()
        && StyleAction<double>(QString(), selectedIndexes(), m_number, m_skipping).isPresentValue();
}

SkipMode_e LineModelAbstract::SkipAction::writtenMode() const
{
    return m_mode == Mode::Index || m_mode == Mode::EnteredIndex ? SkipMode_ByIndex
                                                                 : SkipMode_ByDistance;
}

std::optional<double> LineModelAbstract::SkipAction::entered() const
{
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("Prompt", text);
    };
    constexpr double kHighestStep = std::numeric_limits<int>::max();
    constexpr double kHighestDistance = 100.0;
    const NumberPrompt prompt = m_mode == Mode::EnteredIndex
        ? NumberPrompt {translated(QT_TRANSLATE_NOOP("Prompt", "Enter the I-Index skipping")),
                        translated(QT_TRANSLATE_NOOP("Prompt", "I-Skip")), 0.0, kHighestStep, 0}
        : NumberPrompt {
            translated(QT_TRANSLATE_NOOP("Prompt", "Enter the distance in frame units")),
            translated(QT_TRANSLATE_NOOP("Prompt", "Distance [%]")), 1.0, kHighestDistance, 0};
    const double present = toolbox::StyleValue(m_skipping).read<double>(firstMap()).value_or(1.0);
    return corvala::dialogs::prompt::enterNumber(actions::promptParent(), prompt,
                                                 std::round(present));
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
