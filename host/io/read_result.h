// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/read_folder.h"
#include "host/io/read_request.h"
#include "host/io/text_preview.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvala::host::io {

/// Told how much is loaded, 0 to 100 percent; false ends the loading.
using LoadProgress = std::function<bool(int percent)>;

/// What the reading program left in its folder.
struct LoadedData
{
    std::shared_ptr<DataSet> data; ///< null for a preview, and when it is no answer
    std::optional<Plot3DLayout> plot3d;
    std::optional<TextDialect> text;
    std::optional<TextPreview> preview;
};

/// Loads the index and, so that drawing finds them in memory, those large zones that are shown at
/// first. For any thread: it takes as long as the zones are large.
LoadedData loadData(std::unique_ptr<ReadFolder> folder, const LoadProgress& progress);

} // namespace corvala::host::io
