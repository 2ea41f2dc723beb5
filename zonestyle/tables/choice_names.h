// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vocabulary/choices.h>

#include <QStringList>

#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

using style::Choice;
using style::Choices;

/// The translated name.
QString textOf(const Choice& choice);

/// Empty for a value that is not among the choices.
QString nameOf(const Choices& choices, int value);

/// In the order of the choices.
QStringList namesOf(const Choices& choices);

/// The value of a name as shown, exactly or else without regard to case.
std::optional<int> valueOf(const Choices& choices, const QString& name);

/// Position of an entry in a list, exactly or else without regard to case; -1 when it has none.
int positionOf(const QString& entry, const QStringList& entries);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
