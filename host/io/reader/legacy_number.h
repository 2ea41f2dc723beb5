// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvala::host::io::reader {

/// The numbers in text of legacy VTK files that VTK cannot read: exponents with D, and what is not
/// finite.

/// False for what makes a number one that VTK may not read, or no number.
bool isOfPlainNumber(char character);

/// The value of a word; none for what is no number.
std::optional<double> numberOf(std::string_view word);

/// The same text with numbers that VTK reads: exponents with E, and stand-ins for what is not
/// finite. Lines that hold anything else stay as they are.
std::string withPlainNumbers(std::string_view text);

/// What the number in a text by withPlainNumbers means: itself, but for stand-ins.
double meaningOf(double number);

} // namespace corvala::host::io::reader
