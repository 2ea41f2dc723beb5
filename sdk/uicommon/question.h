// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMessageBox>

namespace corvala::sdk::ui {

/// Asks in an EditSession, over `parent` (null: over nothing); true when the user pressed `yes`.
/// The parent may be destroyed meanwhile, which counts as a no.
bool ask(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
         QMessageBox::StandardButton yes, QMessageBox::StandardButton no,
         QMessageBox::StandardButton preset);

/// Asks over the active window, with Yes and No, Yes preset.
bool askYesNo(const QString& title, const QString& question);

} // namespace corvala::sdk::ui
