// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_path.h"

#include <QList>
#include <QModelIndexList>
#include <QString>

class QAction;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What a menu for a size-like value offers. The texts are English, in the translation context
/// "Prompt".
struct SizePrompt
{
    const char* presets; ///< a list of the host's basic sizes: "LineThicknesses", ...
    const char* title;
    const char* label;
    double minimum;
    double maximum;
};

/// The five sizes of a list of the host's basic sizes, smallest first; 0 for a size that the host
/// does not have.
QList<double> presetSizes(const char* presets);

/// A size as lists and menus show it: "0.50".
QString sizeText(double size);

/// A line between the entries of a menu; the caller owns it.
QAction* separator();

/// The menu of a size-like value: the five presets, a separator, and a prompt. The caller owns the
/// actions.
QList<QAction*> sizeActions(const QModelIndexList& selectedIndexes, const SizePrompt& prompt,
                            const StylePath& path);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
