// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>

#include <nlohmann/json.hpp>

class QAbstractButton;
class QWidget;

namespace corvala::play {

/// The fields of a prompt that take a value (line edits, spin boxes, combo boxes, lists, check
/// boxes), in reading order.
QList<QWidget*> promptFields(const QWidget& prompt);

/// The enabled button that accepts (OK, Yes) or refuses (Cancel, No) the prompt; null for none.
QAbstractButton* acceptButton(const QWidget& prompt);
QAbstractButton* refuseButton(const QWidget& prompt);

/// What a prompt shows: title, label, labels, value, min, max, decimals, items, buttons, default.
/// With several fields `value`, `min` and `max` are lists.
nlohmann::json describePrompt(const QWidget& prompt);

/// Texts of the entries of a combo box or list.
QStringList itemsOf(const QWidget& field);

} // namespace corvala::play
