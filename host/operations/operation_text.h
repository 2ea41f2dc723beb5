// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/frame.h"
#include "host/operations/json_object.h"
#include "host/operations/operation.h"

#include <vector>

/// The text form of operations: one JSON object each, such as
/// {"set": ["FieldMap", "Mesh", "MeshType"], "maps": "1-3", "value": 1}.
namespace corvala::host {

/// The key that tells the kind of an operation, and those that may stand beside it.
struct OperationVerb
{
    const char* name;
    std::vector<const char*> keys;
};
std::vector<OperationVerb> operationVerbs();

nlohmann::json toJson(const Operation& operation);

/// A style path as it stands in texts: names, and at most one index among them.
struct StylePath
{
    std::vector<std::string> names;
    std::int64_t index = -1;
};
StylePath stylePath(const JsonObject& object, const char* key);

/// What a text means without saying it.
struct TextContext
{
    const Frame* frame = nullptr; ///< whose maps "all" stands for
    QString folder = {}; ///< where relative file names start
};

/// Throws a TextError that names the key for unknown keys, missing and bad values. What toJson
/// makes of an operation that a document takes comes back equal. Data are not loaded.
Operation operationFromJson(const nlohmann::json& object, const TextContext& context);

/// Why a document refused an operation, as a sentence for the user.
QString refusalText(const Operation& operation, const Outcome& outcome);

/// "there are no such maps", and so on; empty when it was done.
QString reasonText(StyleWriteResult_e result);

/// A style value as it stands in texts.
nlohmann::json toJson(const StyleOutput& value);

} // namespace corvala::host
