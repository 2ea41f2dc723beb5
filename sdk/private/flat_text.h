// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <string>

/// A copy of the text that the caller frees with CvlUtilStringDealloc.
char* cvlFlatText(const std::string& text);
