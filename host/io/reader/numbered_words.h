// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// What the numbers of a variable stand for, as notes tell it: "flow (1 hot, 2 cold)", with the
/// number of the first word. Long words and lists are shortened; words without letters are passed
/// over.
QString numberedWords(const QString& variable, const std::vector<std::string>& words, int first);

} // namespace corvala::host::io::reader
