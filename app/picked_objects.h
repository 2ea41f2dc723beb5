// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/style/number_set.h"
#include "vocabulary/types.h"

#include <QString>

namespace corvala::app {

/// The maps of what is picked in the active frame, of the kind that it shows.
host::NumberSet pickedMaps();

/// Picks a zone of a field plot or a line map of a line plot, as the active frame shows; 0 picks
/// nothing.
void pickObject(CvlInt64 number);

/// What the zone or the line map is, such as "Zone 3: wing/upper, 12,345 cells"; empty for 0.
QString objectText(CvlInt64 number);

/// The first of what is picked in the active frame, of the kind that it shows; 0 without.
CvlInt64 pickedObject();

/// The text of what is picked in the active frame, when it is one; else how many they are.
QString pickedText();

/// The map of a zone or line map; 0 for none.
CvlInt64 mapOfObject(CvlInt64 number);

} // namespace corvala::app
