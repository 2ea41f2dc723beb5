// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <vocabulary/entry.h>

#include <QVariant>

#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

// The whole numbers that edits stand for. Editors deliver the text that they show, other callers
// whatever they like: a number (a real is rounded), a switch.

/// In a column of numbers. A text is read as in "0.50" and "30%", rounded; 0 when it is no number.
int editedNumber(const QVariant& value);

/// Empty when the text is a number that the style value takes, else what numbers it takes.
QString numberProblem(const QString& text, const style::Entry& entry);

/// In a column of choices. A text is the name of a choice or a whole number; nothing otherwise.
std::optional<int> editedChoice(const QVariant& value, const style::Choices& choices);

/// In a column whose choices are only a list: a text that is an entry stands for its position.
std::optional<int> editedPosition(const QVariant& value, const QStringList& entries);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
