// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/read_folder.h"
#include "host/io/read_request.h"
#include "host/io/text_preview.h"

#include <memory>
#include <optional>

namespace corvala::host::io {

/// What the reading program left in its folder.
struct LoadedData
{
    std::shared_ptr<DataSet> data; ///< null for a preview, and when it is no answer
    QStringList noteGroups; ///< the notes of the data, one sentence for each kind
    ReadOffers offers;
    std::optional<Plot3DLayout> plot3d;
    std::optional<TextDialect> text;
    std::optional<TextPreview> preview;
};

/// Loads what is to be known of the zones; their points and cells stay where they are until they
/// are asked for. For any thread.
LoadedData loadData(std::unique_ptr<ReadFolder> folder);

} // namespace corvala::host::io
