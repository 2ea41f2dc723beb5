// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/arguments.h"

#include <QKeySequence>

class QWidget;

namespace corvala::play {

/// What a script does in the editor of a cell.
struct CellEdit
{
    bool opens = true; ///< false: the script expects that no editor comes
    bool stays = false; ///< the script expects that the end leaves it open; Escape closes it then
    nlohmann::json type; ///< text to type, or null
    nlohmann::json choose; ///< text or position of an entry, or null
    QKeySequence end; ///< a key, or empty for a click elsewhere
};

/// From the keys "opens", "stays", "type", "choose" and "end" of a line.
CellEdit cellEditOf(const Arguments& arguments);

/// Enters what the edit says and ends the editor, unless the choice has closed it already. A click
/// outside goes to the dialog.
void finishEdit(QWidget& editor, const CellEdit& edit, QWidget& dialog);

} // namespace corvala::play
