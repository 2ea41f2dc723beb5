// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/operations/json_object.h"

#include <QCoreApplication>
#include <QString>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace corvala::play {

/// Translates the messages of scripts.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Script)
};

/// Why a script cannot be read or a step fails; the text goes behind "SCRIPT:LINE: ".
using ScriptError = host::TextError;

/// One line of a script that is not blank and no comment.
struct ScriptLine
{
    int number = 0; ///< from 1
    nlohmann::json object;
};

/// A problem and where it is; `line` is 0 when the file itself is the problem.
struct ScriptProblem
{
    int line = 0;
    QString message;
    bool isEmpty() const { return message.isEmpty(); }
};

/// Splits the UTF-8 text of a script into its lines. Stops at the first line that is no JSON
/// object, or holds a key twice.
ScriptProblem readLines(const QByteArray& text, std::vector<ScriptLine>& lines);

} // namespace corvala::play
