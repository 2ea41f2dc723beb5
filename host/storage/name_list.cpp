// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/name_list.h"

#include <charconv>
#include <string_view>

namespace corvala::host::storage {

/// Digits at the end of a name; none where they are too many for a number.
static std::string_view digitsOf(std::string_view name)
{
    constexpr std::size_t kMostDigits = 15;
    const std::size_t other = name.find_last_not_of("0123456789");
    const std::string_view digits = name.substr(other == name.npos ? 0 : other + 1);
    return digits.size() <= kMostDigits ? digits : std::string_view();
}

static std::int64_t numberOf(std::string_view digits)
{
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

std::string countedName(const std::string& first, std::int64_t places)
{
    const std::string_view digits = digitsOf(first);
    if (digits.empty())
        return {};
    const std::string number = std::to_string(numberOf(digits) + places);
    std::string name = first.substr(0, first.size() - digits.size());
    if (number.size() < digits.size())
        name.append(digits.size() - number.size(), '0');
    return name + number;
}

std::int64_t placesBetween(const std::string& first, const std::string& last)
{
    const std::string_view digits = digitsOf(first);
    const std::size_t prefix = first.size() - digits.size();
    if (digits.empty() || last.size() < first.size() || last.compare(0, prefix, first, 0, prefix))
        return -1;
    const std::string_view lastDigits = std::string_view(last).substr(prefix);
    const bool isPadded = lastDigits.size() > digits.size() && lastDigits.front() == '0';
    if (isPadded || lastDigits.size() > digitsOf(last).size())
        return -1;
    return std::max<std::int64_t>(-1, numberOf(lastDigits) - numberOf(digits));
}

/// Makes a name with a number at its end the next one.
static void countOn(std::string& name)
{
    std::size_t place = name.size();
    while (place > 0 && name[place - 1] == '9')
        name[--place] = '0';
    if (place > 0 && name[place - 1] >= '0' && name[place - 1] < '9')
        ++name[place - 1];
    else
        name.insert(place, 1, '1');
}

void NameList::add(const std::string& first, std::int64_t count)
{
    m_count += count;
    const bool isNext = !m_next.empty() && first == m_next;
    if (isNext)
        m_runs.back().count += count;
    else
        m_runs.push_back({first, count});
    if (isNext && count == 1)
        countOn(m_next);
    else
        m_next = countedName(m_runs.back().first, m_runs.back().count);
    if (digitsOf(m_next).empty()) // too many, or none
        m_next.clear();
}

std::vector<std::string> NameList::names() const
{
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(m_count));
    for (const Run& run : m_runs) {
        names.push_back(run.first);
        for (std::int64_t place = 1; place < run.count; ++place)
            names.push_back(countedName(run.first, place));
    }
    return names;
}

} // namespace corvala::host::storage
