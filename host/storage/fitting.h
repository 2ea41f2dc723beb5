// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/stored_document.h"

#include <QStringList>

namespace corvala::host {
class Frame;
}

namespace corvala::host::storage {

/// Whether the data are those with which the frame was stored, as far as names, strands and the
/// shown time tell.
bool suits(const StoredFrame& frame, const DataSet& data);

/// The frame as it is with other data: zones and variables are found by their names, then by their
/// numbers; zones that are new have default style. `notes` gets a sentence for each kind of thing
/// that was not found, or by its number only.
StoredFrame fitted(const StoredFrame& frame, const DataSet& data, QStringList& notes);

/// The style of a frame for zones of the same names and line maps of the same numbers in another
/// one; `notes` as above.
StyleSheet styleSheet(const StoredDocument& document, const Frame& frame, QStringList& notes);

} // namespace corvala::host::storage
