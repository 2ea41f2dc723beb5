// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/stored_document.h"

#include <QStringList>

namespace corvala::host::storage {

/// Files with data of the document that are not there, each once.
QStringList missingFiles(const StoredDocument& document);

/// Takes files that are missing from a folder where they lie there, under their names or with
/// some of the folders above them.
void lookIn(const QString& folder, StoredDocument& document);

} // namespace corvala::host::storage
