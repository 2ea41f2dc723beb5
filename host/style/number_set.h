// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <roaring/roaring.hh>

#include <cstdint>
#include <string>

namespace corvala::host {

/// A set of numbers from 1 (field maps, line maps, zones, variables) as a compressed bitmap:
/// a million neighbouring members cost a few bytes.
using NumberSet = Roaring;

/// All numbers from 1 to `count`.
NumberSet allUpTo(std::int64_t count);

/// Shortest text form: "1-3,7", "all" when the set is 1 to `count` (and `count` is not 0),
/// "none" when empty.
std::string toText(const NumberSet& set, std::int64_t count);

/// Reads the text form; `count` stands for "all". False when the text is no such set or names a
/// member outside 1 to 4294967295; `set` is then unchanged.
bool fromText(const std::string& text, std::int64_t count, NumberSet& set);

} // namespace corvala::host
