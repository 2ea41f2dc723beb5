// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <array>
#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// Whether a name fits a regular expression somewhere, in upper or lower case.
bool matches(const std::string& name, const char* pattern);

/// Numbers of points, cells or blocks.
bool namesBookkeeping(const std::string& name);

/// Numbers from 1 of the variables that look most like the components of a velocity: those of an
/// array with two or three, or variables whose names differ by their component only ("U" and "V",
/// "VelocityX" and "VelocityY", "x-momentum" and "y-momentum"). 0 for a third that is missing;
/// zeros without any. Vectors that are the same everywhere come after all others.
std::array<int, 3> proposedVector(const std::vector<Variable>& variables);

} // namespace corvala::host::io::reader
