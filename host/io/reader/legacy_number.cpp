// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/legacy_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace corvala::host::io::reader {

static constexpr double kInfinity = std::numeric_limits<double>::infinity();
// In single and double precision alike, and nothing that a file would hold.
static constexpr double kNoNumber = 11863283 * 0x1p-120;
static constexpr double kPositive = 12345679 * 0x1p-120;
static constexpr double kNegative = 13456787 * 0x1p-120;

bool isOfPlainNumber(char character)
{
    return (character >= '0' && character <= '9') || character == '.' || character == '-'
        || character == '+' || character == 'e' || character == 'E';
}

static std::string lower(std::string_view word)
{
    std::string result(word);
    for (char& c : result)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return result;
}

std::optional<double> numberOf(std::string_view word)
{
    std::string text = lower(word.substr(0, word.find_first_of(" \t\r\n")));
    std::replace(text.begin(), text.end(), 'd', 'e');
    const bool isSigned = !text.empty() && (text[0] == '+' || text[0] == '-');
    const double sign = isSigned && text[0] == '-' ? -1 : 1;
    if (isSigned)
        text.erase(0, 1);
    for (const char* const name : {"inf", "infinity", "1.#inf"})
        if (text == name)
            return sign * kInfinity;
    for (const char* const name : {"nan", "1.#qnan", "1.#ind", "1.#snan"})
        if (text == name || text.rfind("nan(", 0) == 0)
            return std::numeric_limits<double>::quiet_NaN();
    double result = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    const bool isDigit = !text.empty() && (text[0] == '.' || (text[0] >= '0' && text[0] <= '9'));
    if (!isDigit || end != text.data() + text.size() || error == std::errc::invalid_argument)
        return std::nullopt;
    return sign * result;
}

static std::string plain(std::string_view word)
{
    const double value = numberOf(word).value_or(0);
    if (!std::isfinite(value)) {
        char text[40];
        const double stand = std::isnan(value) ? kNoNumber : value > 0 ? kPositive : kNegative;
        std::snprintf(text, sizeof text, "%.17g", stand);
        return text;
    }
    std::string result = lower(word);
    std::replace(result.begin(), result.end(), 'd', 'e');
    return result;
}

/// The line with plain numbers; as it is when it has other words.
static std::string plainLine(std::string_view line)
{
    static constexpr std::string_view blank = " \t\r";
    std::string result;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t begin = std::min(line.find_first_not_of(blank, at), line.size());
        const std::size_t end = std::min(line.find_first_of(blank, begin), line.size());
        const std::string_view word = line.substr(begin, end - begin);
        if (!word.empty() && !numberOf(word))
            return std::string(line);
        result += line.substr(at, begin - at);
        result += std::all_of(word.begin(), word.end(), isOfPlainNumber) ? std::string(word)
                                                                         : plain(word);
        at = end;
    }
    return result;
}

std::string withPlainNumbers(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        const bool isPlain = std::all_of(line.begin(), line.end(),
                                         [](char c) { return isOfPlainNumber(c) || c == ' '; });
        result += isPlain ? std::string(line) : plainLine(line);
        if (end < text.size())
            result += '\n';
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

double meaningOf(double number)
{
    if (number == kNoNumber)
        return std::numeric_limits<double>::quiet_NaN();
    return number == kPositive ? kInfinity : number == kNegative ? -kInfinity : number;
}

} // namespace corvala::host::io::reader
