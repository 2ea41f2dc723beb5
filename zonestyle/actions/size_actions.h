// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vocabulary/style.h>

#include <QList>
#include <QModelIndexList>
#include <QString>

class QAction;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What a prompt for one number says, English, in the translation context "Prompt".
struct PromptTexts
{
    const char* title;
    const char* label;
};

/// The five sizes that are offered for a size-like value, smallest first.
QList<double> presetSizes(style::RealKey key);

/// A size as lists and menus show it: "0.50".
QString sizeText(double size);

/// A line between the entries of a menu; the caller owns it.
QAction* separator();

/// The menu of a size-like value: the five presets, a separator, and a prompt within the range of
/// the value. The caller owns the actions.
QList<QAction*> sizeActions(const QModelIndexList& selectedIndexes, const PromptTexts& prompt,
                            style::RealKey key);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
