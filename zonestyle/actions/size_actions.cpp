// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/size_actions.h"

#include "zonestyle/actions/enter_single_value_action.h"
#include "zonestyle/actions/style_action.h"

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

QList<double> presetSizes(const char* presets)
{
    QList<double> sizes;
    for (const char* name : {"Tiny", "Small", "Medium", "Large", "Huge"}) {
        const toolbox::StyleValue size("BasicSize", presets, name);
        sizes.append(size.read<double>().value_or(0.0));
    }
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

QList<QAction*> sizeActions(const QModelIndexList& selectedIndexes, const SizePrompt& prompt,
                            const StylePath& path)
{
    QList<QAction*> actions;
    for (const double size : presetSizes(prompt.presets))
        actions.append(new StyleAction<double>(sizeText(size), selectedIndexes, size, path));
    actions.append(separator());
    actions.append(new EnterSingleValueAction<double>(
        QCoreApplication::translate("Menu", "Enter..."), selectedIndexes,
        QCoreApplication::translate("Prompt", prompt.title),
        QCoreApplication::translate("Prompt", prompt.label), prompt.minimum, prompt.maximum, path));
    return actions;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
