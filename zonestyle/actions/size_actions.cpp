// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/size_actions.h"

#include "zonestyle/actions/enter_single_value_action.h"
#include "zonestyle/actions/style_action.h"

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

QList<double> presetSizes(style::RealKey key)
{
    constexpr int kCount = 5;
    const style::Id first = style::entryOf(key).presets;
    QList<double> sizes;
    for (style::Id size = first; size < first + kCount; ++size)
        sizes.append(toolbox::StyleValue(style::Key {size}).read<double>().value_or(0.0));
    return sizes;
}

QString sizeText(double size)
{
    return QString::number(size, 'f', 2);
}

QAction* separator()
{
    auto* action = new QAction;
    action->setSeparator(true);
    return action;
}

QList<QAction*> sizeActions(const QModelIndexList& selectedIndexes, const PromptTexts& prompt,
                            style::RealKey key)
{
    const style::Entry& entry = style::entryOf(key);
    QList<QAction*> actions;
    for (const double size : presetSizes(key))
        actions.append(new StyleAction<double>(sizeText(size), selectedIndexes, size, key));
    actions.append(separator());
    actions.append(new EnterSingleValueAction<double>(
        QCoreApplication::translate("Menu", "Enter..."), selectedIndexes,
        QCoreApplication::translate("Prompt", prompt.title),
        QCoreApplication::translate("Prompt", prompt.label), entry.minimum, entry.maximum, key));
    return actions;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
