// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace corvala::app {

/// Shows the program, and what Qt says in it, in the first of the languages (such as "de-AT") that
/// there is; English is always there. Before the first window.
void setUpLanguage(const QStringList& languages);

/// The languages that the user wants, the best one first.
QStringList userLanguages();

} // namespace corvala::app
