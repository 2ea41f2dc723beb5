// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/read_failure.h"

#include <vector>

namespace corvala::host::io::reader {

/// Reads a file without those of its arrays that cannot be read, after reading all of it failed.
/// `read(chosen)` reads it with these arrays only and throws ReadFailure, `leaveOut(name, failure)`
/// is told the others. Throws when the file cannot be read without any array either.
template<class Name, class Read, class LeaveOut>
auto readSoundSubset(const std::vector<Name>& arrays, Read read, LeaveOut leaveOut)
{
    read(std::vector<Name>());
    std::vector<Name> sound;
    for (const Name& array : arrays) {
        try {
            read(std::vector<Name> {array});
            sound.push_back(array);
        } catch (const ReadFailure& failure) {
            leaveOut(array, failure);
        }
    }
    return read(sound);
}

} // namespace corvala::host::io::reader
