// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/stored_document.h"

#include <string>
#include <vector>

namespace corvala::host::storage {

/// New numbers by old ones, from 1; 0 for what is not there any more.
class NumberChange
{
public:
    explicit NumberChange(std::int64_t oldCount)
        : m_newNumbers(static_cast<std::size_t>(oldCount) + 1, 0)
    {
    }
    std::int64_t& of(std::int64_t number) { return m_newNumbers[static_cast<std::size_t>(number)]; }
    std::int64_t operator()(std::int64_t number) const
    {
        return number >= 0 && number <= oldCount() ? m_newNumbers[static_cast<std::size_t>(number)]
                                                   : 0;
    }
    NumberSet operator()(const NumberSet& numbers) const
    {
        NumberSet changed;
        for (const std::uint32_t number : numbers)
            if (const std::int64_t now = (*this)(number); now > 0)
                changed.add(static_cast<std::uint32_t>(now));
        return changed;
    }
    std::int64_t oldCount() const { return static_cast<std::int64_t>(m_newNumbers.size()) - 1; }
    NumberSet found() const { return (*this)(allUpTo(oldCount())); }
    bool isNone() const
    {
        for (std::int64_t number = 1; number <= oldCount(); ++number)
            if ((*this)(number) != number)
                return false;
        return true;
    }

private:
    std::vector<std::int64_t> m_newNumbers;
};

using Names = std::vector<std::string>;

/// Finds names again: the first of equal ones is the first of them, and so on.
NumberChange matchNames(const Names& before, const Names& now);
/// What was not found by name keeps its number, where that is free.
void matchNumbers(NumberChange& change, std::int64_t newCount);

/// What becomes of the numbers of a frame.
struct FrameChange
{
    NumberChange zones; ///< of the frame
    NumberChange fieldMaps;
    NumberChange variables;

    std::int64_t valueOf(const Attribute& attribute, std::int64_t number) const
    {
        return attribute.type == ValueType::Variable ? variables(number) : zones(number);
    }
};

/// From the change of zones of the whole data.
FrameChange frameChange(const StoredFrame& before, const StoredFrame& now,
                        const NumberChange& wholeZones, NumberChange variables);

/// The numbers that zones of the whole data, from 1, have in the frame; 0 for those that were
/// deleted.
std::vector<std::int64_t> numbersInFrame(const StoredFrame& frame);

// Give what a frame holds the new numbers.

/// Values that name nothing any more are dropped.
void renumber(std::vector<StoredValue>& values, const FrameChange& change);
/// The same for values of maps. `lost` gets the maps whose values name nothing any more.
void renumber(std::vector<StoredColumn>& columns, const FrameChange& change, NumberSet& lost);
/// Maps keep the colours that their old numbers gave them.
void moveMaps(std::vector<StoredColumn>& columns, const NumberChange& fieldMaps);
/// All of a frame that has the new data already.
void renumber(StoredFrame& frame, const FrameChange& change);

} // namespace corvala::host::storage
