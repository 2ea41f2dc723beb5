// SPDX-License-Identifier: BSD-3-Clause
#include "host/style/number_set.h"

#include <charconv>
#include <limits>

namespace corvala::host {

NumberSet allUpTo(std::int64_t count)
{
    NumberSet set;
    if (count > 0)
        set.addRange(1, static_cast<std::uint64_t>(count) + 1);
    return set;
}

std::string toText(const NumberSet& set, std::int64_t count)
{
    if (set.isEmpty())
        return "none";
    if (static_cast<std::int64_t>(set.cardinality()) == count && set.minimum() == 1
        && set.maximum() == static_cast<std::uint64_t>(count))
        return "all";
    std::string text;
    std::uint32_t first = 0;
    std::uint32_t last = 0;
    const auto flush = [&] {
        if (first == 0)
            return;
        text += (text.empty() ? "" : ",") + std::to_string(first);
        if (last > first)
            text += "-" + std::to_string(last);
    };
    for (const std::uint32_t member : set) {
        if (first == 0 || member != last + 1) {
            flush();
            first = member;
        }
        last = member;
    }
    flush();
    return text;
}

/// Reads a number from 1 to 4294967294 and moves the position behind it.
static bool readNumber(const char*& position, const char* end, std::uint32_t& number)
{
    const auto [next, error] = std::from_chars(position, end, number);
    if (error != std::errc() || number == 0 || number == std::numeric_limits<std::uint32_t>::max())
        return false;
    position = next;
    return true;
}

bool fromText(const std::string& text, std::int64_t count, NumberSet& set)
{
    if (text == "none" || text == "all") {
        set = text == "all" ? allUpTo(count) : NumberSet();
        return true;
    }
    NumberSet read;
    const char* position = text.data();
    const char* const end = position + text.size();
    for (;;) {
        std::uint32_t first = 0;
        if (!readNumber(position, end, first))
            return false;
        std::uint32_t last = first;
        if (position != end && *position == '-' && !readNumber(++position, end, last))
            return false;
        if (last < first)
            return false;
        read.addRange(first, static_cast<std::uint64_t>(last) + 1);
        if (position == end)
            break;
        if (*position++ != ',')
            return false;
    }
    set = std::move(read);
    return true;
}

} // namespace corvala::host
