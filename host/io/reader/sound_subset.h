// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/read_failure.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace corvala::host::io::reader {

/// Indices of parts of a file, such as its arrays.
using Parts = std::vector<std::size_t>;

/// Adds to `sound`, with which reading succeeds, those of the parts from `first` up to `last` with
/// which it still does. `read(parts)` reads the file with these parts only and throws ReadFailure;
/// `leaveOut(part, failure)` is told the others. Reads by halves, which is seldom where faults are
/// few.
template<class Read, class LeaveOut>
void addSound(Parts& sound, std::size_t first, std::size_t last, const Read& read,
              const LeaveOut& leaveOut)
{
    if (first == last)
        return;
    Parts tried = sound;
    for (std::size_t part = first; part < last; ++part)
        tried.push_back(part);
    try {
        read(tried);
        sound = std::move(tried);
        return;
    } catch (const ReadFailure& failure) {
        if (last - first == 1) {
            leaveOut(first, failure);
            return;
        }
    }
    const std::size_t middle = (first + last) / 2;
    addSound(sound, first, middle, read, leaveOut);
    addSound(sound, middle, last, read, leaveOut);
}

/// Reads a file without those of its `count` parts that cannot be read, after reading all of it
/// failed. Throws when it cannot be read without any part either.
template<class Read, class LeaveOut>
auto readSoundSubset(std::size_t count, const Read& read, const LeaveOut& leaveOut)
{
    Parts sound;
    read(sound);
    addSound(sound, 0, count / 2, read, leaveOut);
    addSound(sound, count / 2, count, read, leaveOut);
    return read(sound);
}

} // namespace corvala::host::io::reader
