// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vocabulary/choices.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

// Deliberate: three name tables for one enumeration. XY plots have the names of the dictionary;
// polar plots and bar charts have these.

inline constexpr style::Choice kPolarDependencies[] = {
    {FunctionDependency_YofX, CV_TEXT("R=f(Theta)")},
    {FunctionDependency_XofY, CV_TEXT("Theta=f(R)")},
};

inline constexpr style::Choice kBarDirections[] = {
    {FunctionDependency_YofX, CV_TEXT("Vertical (y=f(x))")},
    {FunctionDependency_XofY, CV_TEXT("Horizontal (x=f(y))")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
