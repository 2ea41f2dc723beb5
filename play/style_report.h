// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/dialog_driver.h"

namespace corvala::play {

/// What a cell shows, by the keys of the report; what is empty is left out.
nlohmann::ordered_json describeCell(const DialogDriver& dialog, const QModelIndex& cell);

/// What the open dialog shows, tab by tab; rows for the maps of `maps` only. The current tab is
/// the same afterwards.
nlohmann::ordered_json styleReport(const DialogDriver& dialog, const QString& maps);

/// The selected rows as a set of maps, such as "1-3,7".
QString selectedMaps(const DialogDriver& dialog);

/// Writes the report as JSON text. Empty on success, else the reason.
QString writeStyleReport(const DialogDriver& dialog, const QString& maps, const QString& file);

/// "#RRGGBB"
QString colorText(const QColor& color);

} // namespace corvala::play
