// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace corvala::app {

/// The data that were opened last, newest first, kept from run to run. Each entry is the list of
/// files that were opened together.
QList<QStringList> recentFiles();

/// Puts the files first, and forgets the oldest beyond ten entries.
void rememberFiles(const QStringList& files);

} // namespace corvala::app
