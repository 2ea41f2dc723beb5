// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace corvala::host::storage {

/// The JSON of a document's text. Throws a DocumentError that names the line, or the place, of what
/// is damaged, stands twice, is too large or nested too deeply.
nlohmann::json parsed(const std::string& text);

} // namespace corvala::host::storage
