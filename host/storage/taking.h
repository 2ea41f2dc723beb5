// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/stored_document.h"

namespace corvala::host {
class Document;
}

namespace corvala::host::storage {

/// All that is kept of a document, with its present views.
StoredDocument storedDocument(Document& document);

/// What is known of data as they were read, for finding zones and variables again.
void describeData(const DataSet& data, StoredFrame& frame);

} // namespace corvala::host::storage
